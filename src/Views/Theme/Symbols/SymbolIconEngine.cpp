// SPDX-License-Identifier: MIT
#include "SymbolIconEngine.h"

#include "Literals.h"
#include "Tokens.h"

#include <QCache>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace abissora {

namespace {

/// The colour of an ink on a palette. A disabled symbol has the disabled colour whatever its ink; a selected one has
/// the colour of selected text, unless its colour is fixed.
QColor inkColor(const SymbolInk& ink, const QPalette& palette, QIcon::Mode mode)
{
    const Tokens& tokens = Tokens::of(palette);
    if (mode == QIcon::Disabled)
        return tokens.disabled;
    if (const auto* fixed = std::get_if<QColor>(&ink))
        return *fixed;
    if (mode == QIcon::Selected)
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    if (const auto* named = std::get_if<NamedColor>(&ink))
        return tokens.named(*named);
    return palette.color(QPalette::Active, QPalette::WindowText);
}

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

constexpr qsizetype cacheLimitInBytes = qsizetype{4} * 1024 * 1024;

// One for the whole program and nobody's state: it only ever repeats what rendering again would give, and every icon
// shares it. It holds images, not pixmaps, so it may outlive the application object.
PictureCache& pictures()
{
    static PictureCache cache(cacheLimitInBytes);
    return cache;
}

QImage rendered(const QString& path, const QColor& color, QSize pixels)
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

// Where a picture is to stand so that its pixels are the device's own, also at fractional scales.
QPointF onDeviceGrid(const QPainter& painter, const QPointF& point)
{
    const QTransform transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale)
        return point;
    return transform.inverted().map(QPointF(transform.map(point).toPoint()));
}

} // namespace

SymbolIconEngine::SymbolIconEngine(QString name, QString path, SymbolInk ink)
    : m_name(std::move(name))
    , m_path(std::move(path))
    , m_ink(ink)
{}

void SymbolIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    const qreal scale = painter->device()->devicePixelRatioF();
    QImage image = render((QSizeF(rect.size()) * scale).toSize(), mode);
    if (image.isNull())
        return;
    image.setDevicePixelRatio(scale);
    painter->drawImage(onDeviceGrid(*painter, rect.topLeft()), image);
}

QPixmap SymbolIconEngine::pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State)
{
    return QPixmap::fromImage(render(pixels, mode));
}

QPixmap SymbolIconEngine::scaledPixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state, qreal scale)
{
    QPixmap scaled = pixmap(pixels, mode, state);
    scaled.setDevicePixelRatio(scale);
    return scaled;
}

QIconEngine* SymbolIconEngine::clone() const
{
    return new SymbolIconEngine(*this);
}

QString SymbolIconEngine::key() const
{
    return u"AbissoraSymbol"_s;
}

QString SymbolIconEngine::iconName()
{
    return m_name;
}

bool SymbolIconEngine::isNull()
{
    return m_path.isEmpty();
}

QImage SymbolIconEngine::render(QSize pixels, QIcon::Mode mode) const
{
    return picture(m_path, inkColor(m_ink, QGuiApplication::palette(), mode), pixels);
}

QImage SymbolIconEngine::picture(const QString& path, const QColor& color, QSize pixels)
{
    if (path.isEmpty() || pixels.isEmpty())
        return {};
    const PictureKey key{path, color.rgba(), pixels};
    if (const QImage* known = pictures().object(key))
        return *known;
    const QImage image = rendered(path, color, pixels);
    pictures().insert(key, new QImage(image), image.sizeInBytes());
    return image;
}

} // namespace abissora
