// SPDX-License-Identifier: MIT
#include "ProgressSheet.h"

#include "Assembly.h"
#include "Buttons.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "TypeScale.h"

#include <QLayout>
#include <QPainter>
#include <QProgressBar>
#include <QStyle>
#include <QStyleOptionProgressBar>

namespace abissora {

namespace {

constexpr int sheetWidth = 400;
constexpr int barHeight = 20;
constexpr int roomForRing = metrics::spaceXS; ///< at either end of the bar
constexpr int whole = 100;

/// Takes the focus, so that the keys of somebody who was typing when the sheet came press no button.
class Bar final : public QProgressBar
{
public:
    explicit Bar(const QString& name)
    {
        setObjectName(u"progress"_s);
        setAccessibleName(name);
        setFocusPolicy(Qt::StrongFocus);
        setRange(0, whole);
        setValue(0);
        setTextVisible(false);
        setFixedHeight(barHeight);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QStyleOptionProgressBar option;
        initStyleOption(&option);
        option.rect.adjust(roomForRing, 0, -roomForRing, 0);
        style()->drawControl(QStyle::CE_ProgressBarContents, &option, &painter, this);
        if (showsFocusRing(*this))
            drawFocusRing(painter, rect(), metrics::controlRadius, palette());
    }
};

} // namespace

ProgressSheet::ProgressSheet(const QString& title, QWidget* parent)
    : SheetWindow(parent)
    , m_bar(new Bar(title))
{
    setObjectName(u"progressSheet"_s);
    setWindowTitle(title);
    auto* cancel = named(new PlainButton(u"Annulla"_s), u"cancelWork"_s);
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);
    auto* label = new WrapLabel(TextStyle::Headline, &Tokens::text, title);
    const QMargins besideBar(roomForRing, 0, roomForRing, 0);
    constexpr int margin = metrics::spaceXL - roomForRing;
    setLayout(inColumn(metrics::spaceM,
                       {inRow(0, {{label, 1}}, besideBar), m_bar, inRow(0, {Stretch(), cancel}, besideBar)},
                       {margin, margin, margin, margin}));
}

void ProgressSheet::setFraction(double fraction)
{
    m_bar->setValue(static_cast<int>(std::clamp(fraction, 0.0, 1.0) * whole));
}

QSize ProgressSheet::preferredSize() const
{
    const int width = withText(sheetWidth, fontMetrics());
    return {width, layout()->totalHeightForWidth(width)};
}

QWidget* ProgressSheet::firstFocus() const
{
    return m_bar;
}

} // namespace abissora
