// SPDX-License-Identifier: MIT
#include "SegmentedControl.h"

#include "Accessibility.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>

namespace abissora {

namespace {

constexpr int padding = metrics::spaceL;
constexpr int radius = metrics::controlRadius - 1;

/// One of the buttons of a SegmentedControl.
class Segment final : public QAbstractButton
{
public:
    Segment(QAccessible::Role role, const QString& symbol, const QString& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] QFont textFont() const;
    [[nodiscard]] int contentWidth() const;

    QString m_symbol;
};

Segment::Segment(QAccessible::Role role, const QString& symbol, const QString& text, QWidget* parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
{
    setAccessibleChoice(*this, role);
    setText(text);
    setCheckable(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QFont Segment::textFont() const
{
    QFont medium = font();
    medium.setWeight(QFont::Medium);
    return medium;
}

int Segment::contentWidth() const
{
    const int textWidth = QFontMetrics(textFont()).horizontalAdvance(text());
    return m_symbol.isEmpty() ? textWidth : textWidth + metrics::iconSize + metrics::spaceS;
}

QSize Segment::sizeHint() const
{
    return {contentWidth() + 2 * padding, controlHeight(fontMetrics()) - 2};
}

QSize Segment::minimumSizeHint() const
{
    return {contentWidth() + padding, sizeHint().height()};
}

void Segment::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    if (isChecked()) {
        drawPanel(painter, rect(), radius, tokens.surface, isEnabled() ? tokens.strongBorder : tokens.border);
    } else if (isEnabled() && (underMouse() || isDown())) {
        QColor veil = tokens.text;
        veil.setAlphaF(isDown() ? 0.12F : 0.06F);
        drawPanel(painter, rect(), radius, veil, {});
    }
    if (showsFocusRing(*this))
        drawFocusRing(painter, rect(), radius, palette());

    const NamedColor role = isChecked() ? NamedColor::primary : NamedColor::secondary;
    const QColor ink = isEnabled() ? tokens.named(role) : tokens.disabled;
    QRect content(0, 0, contentWidth(), height());
    content.moveCenter(rect().center());
    if (!m_symbol.isEmpty()) {
        const QRect place(content.left(), (height() - metrics::iconSize) / 2, metrics::iconSize, metrics::iconSize);
        symbolIcon(m_symbol, ink).paint(&painter, place);
        content.setLeft(place.right() + 1 + metrics::spaceS);
    }
    painter.setFont(textFont());
    painter.setPen(ink);
    painter.drawText(content.adjusted(0, 0, padding, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
}

void Segment::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void Segment::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace

SegmentedControl::SegmentedControl(Purpose purpose, QWidget* parent)
    : QWidget(parent)
    , m_purpose(purpose)
    , m_group(new QButtonGroup(this))
{
    setAccessibleRole(*this, purpose == Purpose::Tabs ? QAccessible::PageTabList : QAccessible::Grouping);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->setSpacing(2);
    // Not idClicked, which leaves out a screen reader's choosing.
    connect(m_group, &QButtonGroup::idToggled, this, [this](int index, bool chosen) {
        if (chosen)
            choose(index);
    });
}

void SegmentedControl::addSegment(const QString& symbol, const QString& text)
{
    const auto role = m_purpose == Purpose::Tabs ? QAccessible::PageTab : QAccessible::RadioButton;
    auto* segment = new Segment(role, symbol, text, this);
    m_group->addButton(segment, count());
    layout()->addWidget(segment);
    placeTabStop();
}

void SegmentedControl::addSegment(const QString& text)
{
    addSegment({}, text);
}

int SegmentedControl::count() const
{
    return static_cast<int>(m_group->buttons().size());
}

int SegmentedControl::currentIndex() const
{
    return m_current;
}

void SegmentedControl::setCurrentIndex(int index)
{
    m_current = m_group->button(index) != nullptr ? index : -1;
    if (m_current >= 0) {
        m_group->button(m_current)->setChecked(true);
    } else if (QAbstractButton* const checked = m_group->checkedButton()) {
        m_group->setExclusive(false);
        checked->setChecked(false);
        m_group->setExclusive(true);
    }
    placeTabStop();
}

void SegmentedControl::placeTabStop()
{
    QAbstractButton* const stop = m_group->button(std::max(0, m_current));
    const auto segments = m_group->buttons();
    const bool moves = std::ranges::any_of(segments, [](const QWidget* segment) { return segment->hasFocus(); });
    for (QAbstractButton* segment : segments)
        segment->setFocusPolicy(segment == stop ? Qt::StrongFocus : Qt::ClickFocus);
    if (moves && !stop->hasFocus())
        stop->setFocus(Qt::OtherFocusReason);
}

void SegmentedControl::choose(int index)
{
    if (index == m_current)
        return;
    m_current = index;
    placeTabStop();
    Q_EMIT activated(index);
}

void SegmentedControl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::controlRadius + 2,
              schemeOf(palette()) == Scheme::Dark ? tokens.divider : tokens.sidebar, tokens.border);
}

} // namespace abissora
