// SPDX-License-Identifier: MIT
#include "KeptPictures.h"

#include "Gui.h"
#include "Pointer.h"
#include "Scenes.h"

#include <QPainter>

namespace abissora::gallery {

namespace {

QString nameOf(Scheme scheme)
{
    return scheme == Scheme::Light ? u"light"_s : u"dark"_s;
}

/// As a small file: in the commonest colours, which all that is no rim of a letter is made of.
QImage inFewColors(const QImage& picture)
{
    constexpr qsizetype mostColors = 256;
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QList<QRgb> colors = counts.keys();
    std::ranges::sort(colors, std::greater(), [&](QRgb color) { return std::pair(counts.value(color), color); });
    colors.resize(std::min(colors.size(), mostColors));
    return image.convertToFormat(QImage::Format_Indexed8, colors, Qt::ThresholdDither | Qt::AvoidDither);
}

} // namespace

QString KeptPicture::fileName() const
{
    return u"%1-%2@%3.png"_s.arg(scene, nameOf(scheme)).arg(scale);
}

QList<KeptPicture> keptPictures()
{
    QList<KeptPicture> pictures;
    for (const auto* scene : {"control-buttons", "control-fields", "control-menu", "component-list", "list",
                              "list-empty", "detail-whole", "equipment-form", "maintenance-form", "types",
                              "type-form-edit", "overview", "statistics", "settings", "help-blocks", "about"})
        pictures.append({QString::fromLatin1(scene)});
    for (const auto* scene : {"list", "equipment-form", "overview", "help-blocks"})
        pictures.append({QString::fromLatin1(scene), Scheme::Dark});
    for (const auto* scene : {"control-buttons", "statistics"})
        pictures.append({QString::fromLatin1(scene), Scheme::Light, 2});
    return pictures;
}

void pinAppearance(double pointSize)
{
    QFont font = QApplication::font();
    font.setPointSizeF(pointSize);
    QApplication::setFont(font);
    QApplication::setCursorFlashTime(0);
}

QImage draw(const KeptPicture& picture, const std::function<void(QWidget&)>& change)
{
    applyTheme(*qApp, picture.scheme);
    test::useThePointer();
    const auto widget = sceneNamed(picture.scene).make();
    widget->show();
    test::settle();
    if (change)
        change(*widget);
    QImage image(widget->size() * picture.scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(picture.scale);
    image.fill(widget->palette().color(QPalette::Window));
    widget->render(&image);
    return image;
}

bool refresh(const QDir& folder)
{
    QStringList wanted;
    bool written = folder.mkpath(u"."_s);
    for (const KeptPicture& picture : keptPictures()) {
        wanted.append(picture.fileName());
        written = inFewColors(draw(picture)).save(folder.filePath(wanted.last())) && written;
    }
    for (const QString& file : folder.entryList({u"*.png"_s}, QDir::Files)) {
        if (!wanted.contains(file))
            written = QFile::remove(folder.filePath(file)) && written;
    }
    return written;
}

} // namespace abissora::gallery
