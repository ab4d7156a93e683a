// SPDX-License-Identifier: MIT
#include "SymbolIcon.h"

#include "ApplicationIconEngine.h"
#include "Literals.h"
#include "SymbolIconEngine.h"

#include <QFile>
#include <QPixmap>

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
    QIcon icon = typeIcon(name, color);
    if (!name.startsWith("dive."_L1))
        return icon;
    const QPixmap picture = icon.pixmap(QSize(size, size), menuPictureScale);
    return picture.isNull() ? icon : QIcon(picture);
}

QIcon applicationIcon()
{
    initializeResources();
    return QIcon(new ApplicationIconEngine);
}

} // namespace abissora
