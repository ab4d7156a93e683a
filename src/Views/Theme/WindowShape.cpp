// SPDX-License-Identifier: MIT
#include "WindowShape.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QPolygon>

namespace abissora {

bool windowsCanBeTranslucent()
{
    return QGuiApplication::platformName() != QLatin1String("xcb");
}

QRegion roundedRegion(const QRect& rect, int radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return QRegion(path.toFillPolygon().toPolygon());
}

} // namespace abissora
