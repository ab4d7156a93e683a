// SPDX-License-Identifier: MIT
#include "ColorSwatch.h"

#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPainter>
#include <QStyleOption>

namespace abissora {

namespace {

constexpr int side = 28;
constexpr int inset = 3;
constexpr int checkSide = 11;

} // namespace

ColorSwatch::ColorSwatch(AvailableColors color, QWidget* parent)
    : QRadioButton(rawValue(color), parent)
    , m_color(color)
{
    setToolTip(text());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ColorSwatch::sizeHint() const
{
    return {side, side};
}

bool ColorSwatch::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    QStyleOption option;
    option.initFrom(this);
    if (isDown())
        option.state |= QStyle::State_Sunken;
    const QRect disc = rect().adjusted(inset, inset, -inset, -inset);
    drawPanel(painter, disc, disc.height() / 2.0, touched(tokens.named(colorValue(m_color)), option), {});
    if (isChecked()) {
        drawGlyph(painter, rect(), Glyph::Check, tokens.surface, checkSide);
        if (!showsFocusRing(option))
            drawFocusRing(painter, rect(), height() / 2.0, palette());
    }
    if (showsFocusRing(option))
        drawFocusRing(painter, rect(), metrics::controlRadius, palette());
}

} // namespace abissora
