// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

namespace abissora::scrollbars {

inline constexpr int extent = 12;
inline constexpr int shortestThumb = 32;

void draw(const QStyleOptionSlider& option, QPainter& painter);
[[nodiscard]] QRect part(const QStyleOptionSlider& option, QStyle::SubControl part);

} // namespace abissora::scrollbars
