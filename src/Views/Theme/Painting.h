// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>
#include <QRegion>

class QAbstractScrollArea;
class QPainter;
class QPalette;
class QStyleOption;
class QWidget;

/// What controls are drawn with. Rectangles are logical; every edge is moved to the nearest device pixel, so that lines
/// are crisp at fractional scales too.
namespace abissora {

/// One device pixel, two from scale 2 on; in logical units.
[[nodiscard]] qreal hairlineWidth(const QPainter& painter);
[[nodiscard]] QRectF onDeviceGrid(const QPainter& painter, const QRectF& rect);

/// An invalid colour leaves out the fill or the border. The border lies inside the rectangle.
void drawPanel(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& border);
void drawPanel(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& border,
               qreal borderWidth);

/// Inside the rectangle; radius is that of the rectangle.
void drawFocusRing(QPainter& painter, const QRectF& rect, qreal radius, const QPalette& palette);
/// For controls that have the focus by the keyboard; a mouse click leaves them without a ring.
[[nodiscard]] bool showsFocusRing(const QStyleOption& option);
[[nodiscard]] bool showsFocusRing(const QWidget& widget);
/// Inside the viewport of an area that shows one; for the area's paint event, after its content.
void drawFocusRing(QAbstractScrollArea& area, qreal radius = 0);

/// The line's upper or left edge lies at the given coordinate.
void drawHorizontalHairline(QPainter& painter, qreal left, qreal right, qreal y, const QColor& color);
void drawVerticalHairline(QPainter& painter, qreal top, qreal bottom, qreal x, const QColor& color);

enum class Glyph { Check, Plus, Minus, ChevronUp, ChevronDown, ChevronLeft, ChevronRight, ChevronUpDown };

/// Centred in the rectangle; `size` is the side of the glyph's square.
void drawGlyph(QPainter& painter, const QRectF& rect, Glyph glyph, const QColor& color, qreal size = 10);

/// `amount` of 0 gives the first colour, of 1 the second.
[[nodiscard]] QColor mix(const QColor& first, const QColor& second, qreal amount);

/// The fill of a control under the pointer or pressed: a little of the text's colour over it.
[[nodiscard]] QColor touched(const QColor& fill, const QStyleOption& option);

/// False under X11, where a translucent window shows black corners unless a compositor runs; such windows take
/// roundedRegion() as their mask instead.
[[nodiscard]] bool windowsCanBeTranslucent();

[[nodiscard]] QRegion roundedRegion(const QRect& rect, int radius);

} // namespace abissora
