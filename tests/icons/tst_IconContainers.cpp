// SPDX-License-Identifier: MIT
#include "IconContainers.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QTest>
#include <QtEndian>

using namespace abissora;
using namespace abissora::icons;

namespace {

// Half transparent at the left, wholly at the right, of a colour in every row.
QImage sample(int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side - 1; ++x)
            image.setPixel(x, y, qRgba(y % 256, 2 * x % 256, (x * y) % 256, x < side / 2 ? 128 : 255));
    }
    return image;
}

QList<QImage> readIco(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&buffer, "ico");
    QList<QImage> images;
    for (int i = 0; i < reader.imageCount() && reader.jumpToImage(i); ++i)
        images.append(reader.read());
    return images;
}

// As the toolkit's reader of this container gives them.
QImage premultiplied(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// What the container's format says of its run lengths, the other way round.
QByteArray unpacked(const QByteArray& packed)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < packed.size();) {
        const int code = static_cast<quint8>(packed.at(i++));
        if (code < 128) {
            bytes += packed.mid(i, code + 1);
            i += code + 1;
        } else {
            bytes += QByteArray(code - 125, packed.at(i++));
        }
    }
    return bytes;
}

QByteArray planes(const QImage& image)
{
    QByteArray bytes;
    using Channel = int (*)(QRgb);
    for (const auto value : std::initializer_list<Channel>{&qRed, &qGreen, &qBlue}) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                bytes.append(static_cast<char>(value(image.pixel(x, y))));
        }
    }
    return bytes;
}

} // namespace

class tst_IconContainers : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPngKeepsEveryPixelAndNothingElse();
    void theWindowsContainerGivesItsPicturesBack();
    void theWindowsContainerMasksWhatIsTransparent();
    void theMacContainerSaysHowLongItsPartsAre();
    void coloursComeBackFromTheirRunLengths_data();
    void coloursComeBackFromTheirRunLengths();
};

void tst_IconContainers::aPngKeepsEveryPixelAndNothingElse()
{
    QImage image = sample(48);
    const QByteArray bytes = png(image);
    QCOMPARE(QImage::fromData(bytes, "PNG").convertToFormat(QImage::Format_ARGB32), image);
    image.setDotsPerMeterX(5000);
    image.setText(u"Author"_s, u"nobody"_s);
    QVERIFY2(png(image) == bytes, "the resolution or a text went into the file");
}

void tst_IconContainers::theWindowsContainerGivesItsPicturesBack()
{
    const QList<QImage> pictures{sample(16), sample(24), sample(48), sample(256)};
    const QByteArray bytes = ico(pictures);
    const QList<QImage> found = readIco(bytes);
    QCOMPARE(found.size(), pictures.size());
    for (qsizetype i = 0; i < found.size(); ++i)
        QCOMPARE(premultiplied(found.at(i)), premultiplied(pictures.at(i)));
    QCOMPARE(bytes.count("\x89PNG"), 1);
    QVERIFY(bytes.endsWith(png(pictures.last())));
}

// Readers that know no opacity show what the mask leaves: one bit a pixel after the colours, the lowest row first.
void tst_IconContainers::theWindowsContainerMasksWhatIsTransparent()
{
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    image.setPixel(0, 15, 0);
    image.setPixel(9, 0, 0);
    const QByteArray bytes = ico({image});
    QByteArray mask(qsizetype{16} * 4, '\0');
    mask[0] = '\x80';
    mask[15 * 4 + 1] = '\x40';
    QCOMPARE(bytes.right(mask.size()), mask);
    QCOMPARE(bytes.size(), 6 + 16 + 40 + 16 * 16 * 4 + mask.size());
}

void tst_IconContainers::theMacContainerSaysHowLongItsPartsAre()
{
    const QByteArray bytes = icns({{"ic07", "seven"}, {"s8mk", ""}});
    QCOMPARE(bytes, QByteArray("icns\0\0\0\x1d"
                               "ic07\0\0\0\x0d"
                               "seven"
                               "s8mk\0\0\0\x08",
                               29));
}

void tst_IconContainers::coloursComeBackFromTheirRunLengths_data()
{
    QTest::addColumn<QImage>("image");
    QImage plain(16, 16, QImage::Format_ARGB32);
    plain.fill(qRgb(10, 20, 30));
    QTest::newRow("one colour") << plain;
    QTest::newRow("many colours") << sample(32);
    QImage pairs(16, 16, QImage::Format_ARGB32);
    for (int i = 0; i < 256; ++i)
        pairs.setPixel(i % 16, i / 16, qRgb(i / 2, i / 3, i));
    QTest::newRow("short runs") << pairs;
}

void tst_IconContainers::coloursComeBackFromTheirRunLengths()
{
    QFETCH(QImage, image);
    QCOMPARE(unpacked(icnsColors(image)), planes(image));
    const QByteArray mask = icnsMask(image);
    QCOMPARE(mask.size(), image.width() * image.height());
    QCOMPARE(static_cast<quint8>(mask.at(0)), qAlpha(image.pixel(0, 0)));
}

ABISSORA_TEST(tst_IconContainers);

#include "tst_IconContainers.moc"
