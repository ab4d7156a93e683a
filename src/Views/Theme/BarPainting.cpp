// SPDX-License-Identifier: MIT
#include "ControlPainting.h"

#include "ControlLook.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPainter>
#include <algorithm>

namespace abissora::bars {

namespace {

constexpr qreal barHeight = 8;

struct Thumb
{
    int start;
    int length;
};

Thumb thumbOf(const QStyleOptionSlider& option)
{
    const int groove = option.orientation == Qt::Horizontal ? option.rect.width() : option.rect.height();
    const qint64 range = qint64(option.maximum) - option.minimum;
    if (range <= 0)
        return {0, groove};
    const qint64 wanted = groove * qint64(option.pageStep) / (range + option.pageStep);
    const int length = static_cast<int>(std::clamp<qint64>(wanted, std::min(shortestThumb, groove), groove));
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      groove - length, option.upsideDown);
    return {start, length};
}

/// A rounded bar of which `share`, from 0 to 1, is filled.
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

} // namespace

void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter)
{
    if (option.maximum <= option.minimum)
        return;
    const Tokens& tokens = Tokens::of(option.palette);
    const bool touched = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const bool active = touched && (option.activeSubControls & QStyle::SC_ScrollBarSlider);
    const qreal inset = touched ? 2 : 3;
    const QRectF thumb =
        QRectF(scrollBarPart(option, QStyle::SC_ScrollBarSlider)).adjusted(inset, inset, -inset, -inset);
    drawPanel(painter, thumb, std::min(thumb.width(), thumb.height()) / 2,
              active ? tokens.secondaryText : tokens.strongBorder, {});
}

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part)
{
    const QRect& all = option.rect;
    const bool horizontal = option.orientation == Qt::Horizontal;
    const auto along = [&](int start, int length) {
        const QRect place = horizontal ? QRect(all.left() + start, all.top(), length, all.height())
                                       : QRect(all.left(), all.top() + start, all.width(), length);
        return QStyle::visualRect(option.direction, all, place);
    };
    const Thumb thumb = thumbOf(option);
    const int whole = horizontal ? all.width() : all.height();
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return all;
    case QStyle::SC_ScrollBarSlider:
        return along(thumb.start, thumb.length);
    case QStyle::SC_ScrollBarSubPage:
        return along(0, thumb.start);
    case QStyle::SC_ScrollBarAddPage:
        return along(thumb.start + thumb.length, whole - thumb.start - thumb.length);
    default:
        return {};
    }
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

} // namespace abissora::bars
