// SPDX-License-Identifier: MIT
#include "IndicatorPainting.h"

#include "ControlLook.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

namespace abissora::indicators {

namespace {

constexpr qreal boxRadius = 4;
constexpr qreal barHeight = 8;

struct Box
{
    QColor fill;
    QColor border;
    QColor mark;
};

Box boxColors(const QStyleOption& option, bool filled)
{
    const Tokens& tokens = Tokens::of(option.palette);
    if (!(option.state & QStyle::State_Enabled))
        return {filled ? tokens.border : tokens.window, filled ? QColor() : tokens.border, tokens.disabled};
    if (filled)
        return {option.state & QStyle::State_Sunken ? tokens.accentFill.darker(125) : tokens.accentFill, QColor(),
                tokens.onFill};
    return {touched(tokens.field, option), tokens.strongBorder, tokens.text};
}

} // namespace

void drawCheckBox(const QStyleOption& option, QPainter& painter)
{
    const bool on = option.state & QStyle::State_On;
    const bool partly = option.state & QStyle::State_NoChange;
    const Box box = boxColors(option, on || partly);
    drawPanel(painter, option.rect, boxRadius, box.fill, box.border);
    if (on || partly)
        drawGlyph(painter, option.rect, on ? Glyph::Check : Glyph::Dash, box.mark, 11);
}

void drawRadioButton(const QStyleOption& option, QPainter& painter)
{
    const bool on = option.state & QStyle::State_On;
    const Box box = boxColors(option, on);
    drawPanel(painter, option.rect, option.rect.width() / 2.0, box.fill, box.border);
    if (on)
        drawPanel(painter, option.rect.adjusted(5, 5, -5, -5), option.rect.width() / 2.0, box.mark, {});
}

void drawSwitch(const QStyleOption& option, QPainter& painter, const QRectF& rect, double position)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const bool enabled = option.state & QStyle::State_Enabled;
    QRectF track = rect;
    if (showsFocusRing(option)) {
        // The ring takes its room from the track, so that a switch stays in line with what stands above it.
        drawFocusRing(painter, rect, rect.height() / 2, option.palette);
        constexpr qreal gap = metrics::focusRingWidth + 1;
        track.adjust(gap, gap, -gap, -gap);
    }
    drawPanel(painter, track, track.height() / 2,
              enabled ? mix(tokens.strongBorder, tokens.accentFill, position) : tokens.border, {});

    const qreal side = track.height() - 4;
    const qreal along = option.direction == Qt::RightToLeft ? 1 - position : position;
    const qreal left = track.left() + 2 + (track.width() - side - 4) * along;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled ? tokens.onFill : tokens.surface);
    painter.drawEllipse(QRectF(left, track.top() + 2, side, side));
    painter.restore();
}

void drawProgressBar(const QStyleOptionProgressBar& option, QPainter& painter, const QWidget* widget)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const int range = option.maximum - option.minimum;
    const double share = range > 0 ? double(option.progress - option.minimum) / range : 0;
    QRectF bar(option.rect);
    bar.setHeight(std::min(barHeight, bar.height()));
    bar.moveCenter(QRectF(option.rect).center());
    const std::optional<NamedColor> color = barColor(widget);
    const QColor fill = color ? tokens.named(*color) : tokens.accentFill;
    drawBar(painter, bar, share, option.state & QStyle::State_Enabled ? fill : tokens.disabled, option.palette);
}

void drawBar(QPainter& painter, const QRectF& rect, double share, const QColor& fill, const QPalette& palette)
{
    const qreal radius = rect.height() / 2;
    drawPanel(painter, rect, radius, Tokens::of(palette).divider, {});
    if (share <= 0)
        return;
    QRectF filled = rect;
    filled.setWidth(std::max(rect.height(), rect.width() * std::min(share, 1.0)));
    drawPanel(painter, filled, radius, fill, {});
}

} // namespace abissora::indicators
