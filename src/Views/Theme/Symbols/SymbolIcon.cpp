// SPDX-License-Identifier: MIT
#include "SymbolIcon.h"

#include "Literals.h"
#include "Tokens.h"

#include <QCache>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <variant>

// Outside the namespace, as the resources' functions are. A static library's own registration is dropped by the linker.
static void initializeResources()
{
    static const bool initialized = [] {
        Q_INIT_RESOURCE(symbols);
        Q_INIT_RESOURCE(appicon);
        return true;
    }();
    Q_UNUSED(initialized)
}

namespace abissora {

namespace {

constexpr qreal menuPictureScale = 2;

/// What a symbol is painted with: the palette's text colour, a colour of the scheme by its name, or one fixed colour.
using SymbolInk = std::variant<std::monostate, NamedColor, QColor>;

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

/// The SVG at a resource path with its currentColor replaced, as large as its proportions allow in the middle of
/// `pixels`, on a transparent ground. Recent pictures are kept. Null when the file or the size is empty.
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

// Where a picture is to stand so that its pixels are the device's own, also at fractional scales.
QPointF onDeviceGrid(const QPainter& painter, const QPointF& point)
{
    const QTransform transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale)
        return point;
    return transform.inverted().map(QPointF(transform.map(point).toPoint()));
}

/// Draws one SVG for whatever device, size, mode and palette it meets; keeps no picture of its own. As it is sharp at
/// every size, it has no list of available sizes.
class SymbolIconEngine final : public QIconEngine
{
public:
    /// `path` is the SVG's resource path; an empty one draws nothing.
    SymbolIconEngine(QString name, QString path, SymbolInk ink);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state, qreal scale) override;

    QIconEngine* clone() const override;
    QString key() const override;
    QString iconName() override;
    bool isNull() override;

private:
    [[nodiscard]] QImage render(QSize pixels, QIcon::Mode mode) const;

    QString m_name;
    QString m_path;
    SymbolInk m_ink;
};

SymbolIconEngine::SymbolIconEngine(QString name, QString path, SymbolInk ink)
    : m_name(std::move(name))
    , m_path(std::move(path))
    , m_ink(std::move(ink))
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
    QPixmap picture = pixmap(pixels, mode, state);
    picture.setDevicePixelRatio(scale);
    return picture;
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
    return renderSymbol(m_path, inkColor(m_ink, QGuiApplication::palette(), mode), pixels);
}

// Empty for a name that the library does not have. A separator would lead out of the library's folder.
QString symbolPath(const QString& name)
{
    initializeResources();
    if (name.isEmpty() || name.contains(u'/'))
        return {};
    const QString path = ":/symbols/"_L1 + name + ".svg"_L1;
    return QFile::exists(path) ? path : QString();
}

QIcon iconOf(const QString& name, const SymbolInk& ink)
{
    return QIcon(new SymbolIconEngine(name, symbolPath(name), ink));
}

} // namespace

bool ResourceSymbolLibrary::contains(const QString& name) const
{
    return !symbolPath(name).isEmpty();
}

QIcon symbolIcon(const QString& name, std::optional<NamedColor> color)
{
    return iconOf(name, color ? SymbolInk(*color) : SymbolInk());
}

QIcon symbolIcon(const QString& name, const QColor& color)
{
    return iconOf(name, color);
}

QIcon typeIcon(const QString& name, NamedColor color)
{
    return iconOf(name, color);
}

QIcon typeIconForMenu(const QString& name, int size, NamedColor color)
{
    const QIcon icon = typeIcon(name, color);
    if (!name.startsWith("dive."_L1))
        return icon;
    const QPixmap picture = icon.pixmap(QSize(size, size), menuPictureScale);
    return picture.isNull() ? icon : QIcon(picture);
}

QIcon applicationIcon()
{
    initializeResources();
    return QIcon(new SymbolIconEngine(u"abissora"_s, u":/appicon/abissora.svg"_s, {}));
}

} // namespace abissora
