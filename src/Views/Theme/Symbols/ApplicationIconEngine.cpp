// SPDX-License-Identifier: MIT
#include "ApplicationIconEngine.h"

#include "Literals.h"

#include <QImage>
#include <QPainter>

namespace abissora {

namespace {

constexpr int leastOfWholeDrawing = 48;

/// The side that the drawing for pictures of this side was made for.
int ownSideOfSmallDrawing(int side)
{
    if (side >= 32)
        return 32;
    return side >= 22 ? 22 : 16;
}

} // namespace

ApplicationIconEngine::ApplicationIconEngine()
    : SymbolIconEngine(u"abissora"_s, u":/appicon/abissora.svg"_s, {})
{}

QIconEngine* ApplicationIconEngine::clone() const
{
    return new ApplicationIconEngine(*this);
}

QList<QSize> ApplicationIconEngine::availableSizes(QIcon::Mode, QIcon::State)
{
    QList<QSize> sizes;
    for (const int side : {16, 22, 24, 32, 48, 64, 128})
        sizes.append({side, side});
    return sizes;
}

QImage ApplicationIconEngine::render(QSize pixels, QIcon::Mode mode) const
{
    const int side = std::min(pixels.width(), pixels.height());
    if (side >= leastOfWholeDrawing)
        return SymbolIconEngine::render(pixels, mode);
    const int own = ownSideOfSmallDrawing(side);
    const bool keepsItsSize = side >= own && side - own <= own / 8;
    const QString path = u":/appicon/abissora-%1.svg"_s.arg(own);
    QImage drawing = picture(path, {}, keepsItsSize ? QSize(own, own) : pixels);
    if (drawing.isNull() || drawing.size() == pixels)
        return drawing;
    QImage image(pixels, drawing.format());
    image.fill(Qt::transparent);
    QPainter(&image).drawImage((pixels.width() - own) / 2, (pixels.height() - own) / 2, drawing);
    return image;
}

} // namespace abissora
