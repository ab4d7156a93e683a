// SPDX-License-Identifier: MIT
#include "ColorChoice.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOption>

namespace abissora {

namespace {

constexpr int swatchesInRow = 7; // no colour stands alone in the last row
constexpr int swatchSide = 28;
constexpr int swatchInset = 3;
constexpr int checkSide = 11;

/// One of the colours, named by its label.
class ColorSwatch final : public QRadioButton
{
public:
    explicit ColorSwatch(AvailableColors color)
        : QRadioButton(rawValue(color))
        , m_color(color)
    {
        setObjectName(caseName(color));
        setToolTip(text());
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override { return {swatchSide, swatchSide}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;

private:
    AvailableColors m_color;
};

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    QStyleOption option;
    option.initFrom(this);
    if (isDown())
        option.state |= QStyle::State_Sunken;
    const QRect disc = rect().adjusted(swatchInset, swatchInset, -swatchInset, -swatchInset);
    drawPanel(painter, disc, disc.height() / 2.0, touched(tokens.named(colorValue(m_color)), option), {});
    if (isChecked()) {
        drawGlyph(painter, rect(), Glyph::Check, tokens.surface, checkSide);
        if (!showsFocusRing(option))
            drawFocusRing(painter, rect(), height() / 2.0, palette());
    }
    if (showsFocusRing(option))
        drawFocusRing(painter, rect(), metrics::controlRadius, palette());
}

} // namespace

ColorChoice::ColorChoice(QWidget* parent)
    : QWidget(parent)
    , m_swatches(new QButtonGroup(this))
    , m_label(named(new InkLabel(TextStyle::Caption, &Tokens::secondaryText), u"colorLabel"))
{
    setAccessibleRole(*this, QAccessible::Grouping);
    setAccessibleName(u"Colore"_s);
    auto* rows = new QGridLayout;
    rows->setSpacing(metrics::spaceXS);
    rows->setColumnStretch(swatchesInRow, 1);
    for (const AvailableColors color : allCases<AvailableColors>()) {
        auto* swatch = new ColorSwatch(color);
        m_swatches->addButton(swatch, static_cast<int>(color));
        swatch->installEventFilter(this);
        const int place = m_swatches->id(swatch);
        rows->addWidget(swatch, place / swatchesInRow, place % swatchesInRow);
    }
    setLayout(inColumn(metrics::spaceXS, {rows, m_label}));
    setSelectedColor(m_selectedColor);
    connect(m_swatches, &QButtonGroup::idClicked, this, [this](int id) { choose(static_cast<AvailableColors>(id)); });
}

void ColorChoice::setSelectedColor(AvailableColors color)
{
    m_selectedColor = color;
    m_swatches->button(static_cast<int>(color))->setChecked(true);
    for (QAbstractButton* swatch : m_swatches->buttons())
        swatch->setFocusPolicy(swatch->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    m_label->setText(rawValue(color));
}

QAbstractButton* ColorChoice::beside(QAbstractButton* swatch, int key) const
{
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    const int id = m_swatches->id(swatch);
    switch (key) {
    case Qt::Key_Left:
        return m_swatches->button(id - forward);
    case Qt::Key_Right:
        return m_swatches->button(id + forward);
    case Qt::Key_Up:
        return m_swatches->button(id - 1);
    case Qt::Key_Down:
        return m_swatches->button(id + 1);
    default:
        return nullptr;
    }
}

bool ColorChoice::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    // In reading order also where the swatches take several lines, which the buttons' own way does not do.
    const int key = static_cast<const QKeyEvent*>(event)->key();
    QAbstractButton* const next = beside(static_cast<QAbstractButton*>(watched), key);
    if (next == nullptr)
        return false;
    next->setFocus(Qt::TabFocusReason);
    next->click();
    return true;
}

void ColorChoice::choose(AvailableColors color)
{
    if (color == m_selectedColor)
        return;
    setSelectedColor(color);
    Q_EMIT chosen(color);
}

} // namespace abissora
