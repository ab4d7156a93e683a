// SPDX-License-Identifier: MIT
#include "IconFiles.h"

#include "IconContainers.h"
#include "Literals.h"
#include "SymbolIcon.h"

#include <QSaveFile>

namespace abissora::icons {

namespace {

QByteArray icoFile()
{
    QList<QImage> pictures;
    for (const int side : icoSides())
        pictures.append(drawn(side));
    return ico(pictures);
}

/// The two smallest as colours and mask, which every version of the system shows, the others as PNGs: "11" to "14"
/// stand for 16, 32, 128 and 256 points at two pixels a point, "10" for 512.
QByteArray icnsFile()
{
    QList<IcnsElement> elements{
        {"is32", icnsColors(drawn(16))},
        {"s8mk", icnsMask(drawn(16))},
        {"il32", icnsColors(drawn(32))},
        {"l8mk", icnsMask(drawn(32))},
    };
    for (const auto& [type, side] :
         {std::pair("ic11", 32), std::pair("ic12", 64), std::pair("ic07", 128), std::pair("ic13", 256),
          std::pair("ic08", 256), std::pair("ic14", 512), std::pair("ic09", 512), std::pair("ic10", 1024)})
        elements.append({type, png(drawn(side))});
    return icns(elements);
}

} // namespace

QList<int> themeSides()
{
    return {16, 22, 24, 32, 48, 64, 128, 256, 512};
}

QList<int> icoSides()
{
    return {16, 24, 32, 48, 64, 128, 256};
}

QString pngName(int side)
{
    return u"abissora-%1.png"_s.arg(side);
}

QImage drawn(int side)
{
    return applicationIcon().pixmap(QSize(side, side), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
}

QMap<QString, QByteArray> iconFiles()
{
    QMap<QString, QByteArray> files{{u"abissora.ico"_s, icoFile()}, {u"abissora.icns"_s, icnsFile()}};
    for (const int side : themeSides())
        files.insert(pngName(side), png(drawn(side)));
    return files;
}

bool refresh(const QDir& folder)
{
    const auto files = iconFiles();
    return std::all_of(files.keyValueBegin(), files.keyValueEnd(), [&folder](const auto& file) {
        QSaveFile out(folder.filePath(file.first));
        return out.open(QIODevice::WriteOnly) && out.write(file.second) == file.second.size() && out.commit();
    });
}

} // namespace abissora::icons
