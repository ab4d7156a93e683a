// SPDX-License-Identifier: MIT
#include "IconContainers.h"

#include <QBuffer>
#include <QDataStream>
#include <QIODevice>

namespace abissora::icons {

namespace {

constexpr int pngFrom = 256;       ///< side from which Windows' container holds PNGs
constexpr int dotsPerMeter = 3780; ///< 96 dots per inch, whatever the screen
constexpr int smallestFile = 0;    ///< as the PNG writer's quality

using Channel = int (*)(QRgb);

void writeBitmap(QDataStream& out, const QImage& picture)
{
    const int side = picture.width();
    const qint32 maskRow = (side + 31) / 32 * 4;
    const qint32 bytes = side * (side * 4 + maskRow);
    // The height counts the mask.
    out << qint32(40) << qint32(side) << qint32(2 * side) << qint16(1) << qint16(32) << qint32(0) << bytes;
    out << qint32(0) << qint32(0) << qint32(0) << qint32(0);
    for (int y = side - 1; y >= 0; --y) {
        for (int x = 0; x < side; ++x)
            out << quint32(picture.pixel(x, y));
    }
    for (int y = side - 1; y >= 0; --y) {
        QByteArray row(maskRow, '\0');
        for (int x = 0; x < side; ++x) {
            if (qAlpha(picture.pixel(x, y)) == 0)
                row[x / 8] = static_cast<char>(row.at(x / 8) | (0x80 >> (x % 8)));
        }
        out.writeRawData(row.constData(), static_cast<int>(row.size()));
    }
}

QByteArray icoPicture(const QImage& picture)
{
    if (picture.width() >= pngFrom)
        return png(picture);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    writeBitmap(out, picture.convertToFormat(QImage::Format_ARGB32));
    return bytes;
}

QByteArray channel(const QImage& picture, Channel value)
{
    QByteArray bytes;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            bytes.append(static_cast<char>(value(picture.pixel(x, y))));
    }
    return bytes;
}

/// 0 to 127: one byte more than that many follow as they are. 128 to 255: the next byte 3 to 130 times.
QByteArray inRunLengths(const QByteArray& bytes)
{
    QByteArray out;
    QByteArray plain;
    const auto endPlain = [&] {
        if (!plain.isEmpty())
            out.append(static_cast<char>(plain.size() - 1)).append(plain);
        plain.clear();
    };
    for (qsizetype i = 0; i < bytes.size();) {
        qsizetype run = 1;
        while (run < 130 && i + run < bytes.size() && bytes.at(i + run) == bytes.at(i))
            ++run;
        if (run >= 3) {
            endPlain();
            out.append(static_cast<char>(run + 125)).append(bytes.at(i));
            i += run;
            continue;
        }
        plain.append(bytes.at(i++));
        if (plain.size() == 128)
            endPlain();
    }
    endPlain();
    return out;
}

} // namespace

QByteArray png(const QImage& picture)
{
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    // The same pixels without the texts that the picture may have.
    QImage image(pixels.constBits(), pixels.width(), pixels.height(), pixels.bytesPerLine(), pixels.format());
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG", smallestFile))
        return {};
    return bytes;
}

QByteArray ico(const QList<QImage>& pictures)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << qint16(0) << qint16(1) << static_cast<qint16>(pictures.size());
    QList<QByteArray> contents;
    auto offset = static_cast<qint32>(6 + 16 * pictures.size());
    for (const QImage& picture : pictures) {
        contents.append(icoPicture(picture));
        const auto side = static_cast<quint8>(picture.width() % pngFrom); // 0 stands for 256
        const auto size = static_cast<qint32>(contents.last().size());
        out << side << side << quint8(0) << quint8(0) << qint16(1) << qint16(32) << size << offset;
        offset += size;
    }
    return bytes + contents.join();
}

QByteArray icns(const QList<IcnsElement>& elements)
{
    QByteArray body;
    QDataStream out(&body, QIODevice::WriteOnly); // big endian, as the container is
    for (const IcnsElement& element : elements) {
        out.writeRawData(element.type.constData(), 4);
        out << static_cast<qint32>(8 + element.data.size());
        out.writeRawData(element.data.constData(), static_cast<int>(element.data.size()));
    }
    QByteArray head;
    QDataStream begin(&head, QIODevice::WriteOnly);
    begin.writeRawData("icns", 4);
    begin << static_cast<qint32>(8 + body.size());
    return head + body;
}

QByteArray icnsColors(const QImage& picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    QByteArray bytes;
    for (const Channel value : std::initializer_list<Channel>{&qRed, &qGreen, &qBlue})
        bytes += inRunLengths(channel(image, value));
    return bytes;
}

QByteArray icnsMask(const QImage& picture)
{
    return channel(picture.convertToFormat(QImage::Format_ARGB32), &qAlpha);
}

} // namespace abissora::icons
