// SPDX-License-Identifier: MIT
#include "ScrollBarPainting.h"

#include "Painting.h"
#include "Tokens.h"

#include <QPainter>
#include <QStyleOptionSlider>
#include <algorithm>

namespace abissora::scrollbars {

namespace {

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

} // namespace

void draw(const QStyleOptionSlider& option, QPainter& painter)
{
    if (option.maximum <= option.minimum)
        return;
    const Tokens& tokens = Tokens::of(option.palette);
    const bool touched = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const bool active = touched && (option.activeSubControls & QStyle::SC_ScrollBarSlider);
    const qreal inset = touched ? 2 : 3;
    const QRectF thumb = QRectF(part(option, QStyle::SC_ScrollBarSlider)).adjusted(inset, inset, -inset, -inset);
    drawPanel(painter, thumb, std::min(thumb.width(), thumb.height()) / 2,
              active ? tokens.secondaryText : tokens.strongBorder, {});
}

QRect part(const QStyleOptionSlider& option, QStyle::SubControl part)
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

} // namespace abissora::scrollbars
