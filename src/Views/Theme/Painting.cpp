// SPDX-License-Identifier: MIT
#include "Painting.h"

#include "Literals.h"
#include "Metrics.h"
#include "Tokens.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace abissora {

namespace {

qreal deviceScale(const QPainter& painter)
{
    const qreal scale = std::abs(painter.deviceTransform().m11());
    return scale > 0 ? scale : 1;
}

QRectF roundedToPixels(const QRectF& device)
{
    const QPointF topLeft(std::round(device.left()), std::round(device.top()));
    const QPointF bottomRight(std::round(device.right()), std::round(device.bottom()));
    return {topLeft, bottomRight};
}

QPainterPath glyphPath(Glyph glyph)
{
    // In a square of side 10 around the origin.
    QPainterPath path;
    const auto line = [&path](std::initializer_list<QPointF> points) {
        path.moveTo(*points.begin());
        for (auto point = points.begin() + 1; point != points.end(); ++point)
            path.lineTo(*point);
    };
    switch (glyph) {
    case Glyph::Check:
        line({{-4, 0}, {-1.2, 2.8}, {4, -2.8}});
        break;
    case Glyph::Minus:
        line({{-4, 0}, {4, 0}});
        break;
    case Glyph::Plus:
        line({{-4, 0}, {4, 0}});
        line({{0, -4}, {0, 4}});
        break;
    case Glyph::ChevronUp:
        line({{-4, 2}, {0, -2}, {4, 2}});
        break;
    case Glyph::ChevronDown:
        line({{-4, -2}, {0, 2}, {4, -2}});
        break;
    case Glyph::ChevronLeft:
        line({{2, -4}, {-2, 0}, {2, 4}});
        break;
    case Glyph::ChevronRight:
        line({{-2, -4}, {2, 0}, {-2, 4}});
        break;
    case Glyph::ChevronUpDown:
        line({{-2.6, -2.4}, {0, -5}, {2.6, -2.4}});
        line({{-2.6, 2.4}, {0, 5}, {2.6, 2.4}});
        break;
    }
    return path;
}

} // namespace

qreal hairlineWidth(const QPainter& painter)
{
    const qreal scale = deviceScale(painter);
    return std::max(1.0, std::floor(scale)) / scale;
}

QRectF onDeviceGrid(const QPainter& painter, const QRectF& rect)
{
    const QTransform transform = painter.deviceTransform();
    return transform.inverted().mapRect(roundedToPixels(transform.mapRect(rect)));
}

void drawPanel(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& border)
{
    drawPanel(painter, rect, radius, fill, border, hairlineWidth(painter));
}

void drawPanel(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& border,
               qreal borderWidth)
{
    const QTransform toDevice = painter.deviceTransform();
    const qreal scale = deviceScale(painter);
    const QRectF device = roundedToPixels(toDevice.mapRect(rect));
    painter.save();
    // In whole device pixels there is no rounding that could blur an edge.
    painter.setWorldTransform(toDevice.inverted(), true);
    painter.setRenderHint(QPainter::Antialiasing);
    const int pen = border.isValid() ? std::max(1, qRound(borderWidth * scale)) : 0;
    const qreal inset = pen / 2.0;
    const qreal corner = std::max(0.0, radius * scale - inset);
    painter.setPen(pen > 0 ? QPen(border, pen) : QPen(Qt::NoPen));
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(device.adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.restore();
}

void drawFocusRing(QPainter& painter, const QRectF& rect, qreal radius, const QPalette& palette)
{
    drawPanel(painter, rect, radius, {}, Tokens::of(palette).accentInk, metrics::focusRingWidth);
}

bool showsFocusRing(const QStyleOption& option)
{
    constexpr QStyle::State wanted = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (option.state & wanted) == wanted;
}

bool showsFocusRing(const QWidget& widget)
{
    QStyleOption option;
    option.initFrom(&widget);
    return showsFocusRing(option);
}

void drawFocusRing(QAbstractScrollArea& area, qreal radius)
{
    if (!showsFocusRing(area))
        return;
    QPainter painter(area.viewport());
    drawFocusRing(painter, area.viewport()->rect(), radius, area.palette());
}

void drawHorizontalHairline(QPainter& painter, qreal left, qreal right, qreal y, const QColor& color)
{
    const QRectF snapped = onDeviceGrid(painter, QRectF(QPointF(left, y), QPointF(right, y)));
    painter.fillRect(QRectF(snapped.left(), snapped.top(), snapped.width(), hairlineWidth(painter)), color);
}

void drawVerticalHairline(QPainter& painter, qreal top, qreal bottom, qreal x, const QColor& color)
{
    const QRectF snapped = onDeviceGrid(painter, QRectF(QPointF(x, top), QPointF(x, bottom)));
    painter.fillRect(QRectF(snapped.left(), snapped.top(), hairlineWidth(painter), snapped.height()), color);
}

void drawGlyph(QPainter& painter, const QRectF& rect, Glyph glyph, const QColor& color, qreal size)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.center());
    painter.scale(size / 10, size / 10);
    painter.setPen(QPen(color, 1.5 * 10 / size, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(glyphPath(glyph));
    painter.restore();
}

QColor mix(const QColor& first, const QColor& second, qreal amount)
{
    const auto channel = [amount](float a, float b) { return static_cast<float>(a + (b - a) * amount); };
    return QColor::fromRgbF(channel(first.redF(), second.redF()), channel(first.greenF(), second.greenF()),
                            channel(first.blueF(), second.blueF()), channel(first.alphaF(), second.alphaF()));
}

QColor touched(const QColor& fill, const QStyleOption& option)
{
    if (!(option.state & QStyle::State_Enabled))
        return fill;
    const QColor& ink = Tokens::of(option.palette).text;
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return mix(fill, ink, 0.12);
    return option.state & QStyle::State_MouseOver ? mix(fill, ink, 0.05) : fill;
}

bool windowsCanBeTranslucent()
{
    return QGuiApplication::platformName() != "xcb"_L1;
}

QRegion roundedRegion(const QRect& rect, int radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return QRegion(path.toFillPolygon().toPolygon());
}

} // namespace abissora
