// SPDX-License-Identifier: MIT
#include "WindowShape.h"

#include "Literals.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QPolygon>

namespace abissora {

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
