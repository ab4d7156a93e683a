// SPDX-License-Identifier: MIT
#include "SymbolRenderer.h"

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace abissora {

namespace {

struct PictureKey
{
    QString path;
    QRgb color;
    QSize pixels;

    friend bool operator==(const PictureKey&, const PictureKey&) = default;
};

std::size_t qHash(const PictureKey& key, std::size_t seed = 0)
{
    return qHashMulti(seed, key.path, key.color, key.pixels.width(), key.pixels.height());
}

using PictureCache = QCache<PictureKey, QImage>;

constexpr qsizetype cacheLimitInBytes = 4 * 1024 * 1024;

// One for the whole program and nobody's state: it only ever repeats what rendering again would give, and every icon
// shares it. It holds images, not pixmaps, so it may outlive the application object.
PictureCache& pictures()
{
    static PictureCache cache(cacheLimitInBytes);
    return cache;
}

QImage render(const QString& path, const QColor& color, QSize pixels)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = file.readAll();
    svg.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(svg);
    if (!renderer.isValid())
        return {};
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(color.alphaF());
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    return image;
}

} // namespace

QImage renderSymbol(const QString& path, const QColor& color, QSize pixels)
{
    if (path.isEmpty() || pixels.isEmpty())
        return {};
    const PictureKey key{path, color.rgba(), pixels};
    if (const QImage* known = pictures().object(key))
        return *known;
    const QImage image = render(path, color, pixels);
    pictures().insert(key, new QImage(image), image.sizeInBytes());
    return image;
}

} // namespace abissora
