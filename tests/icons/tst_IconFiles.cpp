// SPDX-License-Identifier: MIT
#include "IconContainers.h"
#include "IconFiles.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QFile>
#include <QImageReader>
#include <QTest>
#include <QtEndian>

using namespace abissora;
using namespace abissora::icons;

namespace {

// Another version of the toolkit sets the edges of a drawing a little otherwise; a line that moved is far from it.
constexpr int leastDifference = 32;

const QDir folder(QStringLiteral(ICON_FILES));

QByteArray kept(const QString& name)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage keptPicture(int side)
{
    return QImage::fromData(kept(pngName(side)), "PNG").convertToFormat(QImage::Format_ARGB32);
}

// The largest difference of a channel, where a transparent pixel has no colour; 256 where the sizes differ.
int difference(QImage one, QImage other)
{
    if (one.size() != other.size())
        return 256;
    one.convertTo(QImage::Format_ARGB32_Premultiplied);
    other.convertTo(QImage::Format_ARGB32_Premultiplied);
    int largest = 0;
    for (qsizetype i = 0; i < one.sizeInBytes(); ++i)
        largest = std::max(largest, std::abs(one.constBits()[i] - other.constBits()[i]));
    return largest;
}

QMap<QByteArray, QByteArray> icnsElements()
{
    const QByteArray bytes = kept(u"abissora.icns"_s);
    QMap<QByteArray, QByteArray> elements;
    for (qsizetype at = 8; at + 8 <= bytes.size();) {
        const auto length = qFromBigEndian<qint32>(bytes.constData() + at + 4);
        if (length < 8)
            break;
        elements.insert(bytes.mid(at, 4), bytes.mid(at + 8, length - 8));
        at += length;
    }
    return elements;
}

} // namespace

class tst_IconFiles : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFolderHoldsTheFilesAndNoOthers();
    void theFilesAreWhatTheDrawingsGive_data();
    void theFilesAreWhatTheDrawingsGive();
    void theWindowsFileHoldsTheSamePictures();
    void theMacFileHoldsTheSamePictures();
    void drawingAgainGivesTheSameBytes();
};

void tst_IconFiles::theFolderHoldsTheFilesAndNoOthers()
{
    QCOMPARE(folder.entryList(QDir::Files, QDir::Name), QStringList(iconFiles().keys()));
}

void tst_IconFiles::theFilesAreWhatTheDrawingsGive_data()
{
    QTest::addColumn<int>("side");
    for (const int side : themeSides())
        QTest::addRow("%d", side) << side;
}

void tst_IconFiles::theFilesAreWhatTheDrawingsGive()
{
    QFETCH(int, side);
    const QImage picture = keptPicture(side);
    QCOMPARE(picture.size(), QSize(side, side));
    QVERIFY2(difference(picture, drawn(side)) < leastDifference,
             "a drawing changed: look at it, then run abissora-icons --refresh");
}

void tst_IconFiles::theWindowsFileHoldsTheSamePictures()
{
    QImageReader reader(folder.filePath(u"abissora.ico"_s), "ico");
    QList<int> sides;
    for (int i = 0; i < reader.imageCount() && reader.jumpToImage(i); ++i) {
        const QImage picture = reader.read();
        QCOMPARE(difference(picture, keptPicture(picture.width())), 0);
        sides.append(picture.width());
    }
    QCOMPARE(sides, icoSides());
}

void tst_IconFiles::theMacFileHoldsTheSamePictures()
{
    const auto elements = icnsElements();
    QCOMPARE(elements.value("is32"), icnsColors(keptPicture(16)));
    QCOMPARE(elements.value("s8mk"), icnsMask(keptPicture(16)));
    QCOMPARE(elements.value("il32"), icnsColors(keptPicture(32)));
    QCOMPARE(elements.value("l8mk"), icnsMask(keptPicture(32)));
    const QMap<QByteArray, int> sides{{"ic11", 32},  {"ic12", 64},  {"ic07", 128}, {"ic13", 256},
                                      {"ic08", 256}, {"ic14", 512}, {"ic09", 512}};
    for (const auto& [type, side] : sides.asKeyValueRange())
        QVERIFY2(elements.value(type) == kept(pngName(side)), type.constData());
    QVERIFY(difference(QImage::fromData(elements.value("ic10"), "PNG"), drawn(1024)) < leastDifference);
    QCOMPARE(elements.size(), 4 + sides.size() + 1);
}

void tst_IconFiles::drawingAgainGivesTheSameBytes()
{
    QCOMPARE(iconFiles(), iconFiles());
}

ABISSORA_TEST(tst_IconFiles);

#include "tst_IconFiles.moc"
