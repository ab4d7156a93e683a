// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;
class QRectF;
class QPalette;
class QStyleOption;
class QStyleOptionProgressBar;
class QColor;
class QWidget;

namespace abissora::indicators {

inline constexpr int boxSide = 16;
inline constexpr QSize switchSize{36, 20};

void drawCheckBox(const QStyleOption& option, QPainter& painter);
void drawRadioButton(const QStyleOption& option, QPainter& painter);

/// `position` runs from 0 (off) to 1 (on).
void drawSwitch(const QStyleOption& option, QPainter& painter, const QRectF& rect, double position);

void drawProgressBar(const QStyleOptionProgressBar& option, QPainter& painter, const QWidget* widget);
/// A rounded bar of which `share`, from 0 to 1, is filled.
void drawBar(QPainter& painter, const QRectF& rect, double share, const QColor& fill, const QPalette& palette);

} // namespace abissora::indicators
