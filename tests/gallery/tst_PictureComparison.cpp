// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "PictureComparison.h"
#include "TestRunner.h"

#include <QPainter>

using namespace abissora;
using gallery::blockSide;
using gallery::compare;
using gallery::Comparison;

namespace {

constexpr int columns = 20;
constexpr int rows = 10;
const QColor ground(200, 200, 200);

QImage picture(qreal scale = 1)
{
    QImage image(QSize(columns, rows) * blockSide * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    return image;
}

/// With the part of a block, in logical pixels from its corner, in another colour.
QImage marked(QImage image, int column, int row, const QRectF& part, const QColor& color)
{
    QPainter painter(&image);
    painter.fillRect(part.translated(column * blockSide, row * blockSide), color);
    painter.end();
    return image;
}

const QRectF whole(0, 0, blockSide, blockSide);

} // namespace

class tst_PictureComparison : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void equalPicturesAreAlike()
    {
        const Comparison same = compare(picture(), picture());
        QVERIFY(same.alike());
        QCOMPARE(same.differing, 0);
        QCOMPARE(same.blocks, columns * rows);
        QCOMPARE(same.text(), u"0 of 200 blocks differ"_s);
    }

    void picturesOfOtherSizesAreNot()
    {
        const Comparison other = compare(picture(), picture().copy(0, 0, 100, 100));
        QVERIFY(!other.alike());
        QCOMPARE(other.text(), u"the sizes differ"_s);
        QVERIFY(!other.difference.isNull());
    }

    void aBlockDiffers_data()
    {
        QTest::addColumn<QRectF>("part");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<int>("differing");
        QTest::newRow("its ground is a little darker") << whole << QColor(195, 200, 200) << 1;
        QTest::newRow("its ground is hardly another") << whole << QColor(198, 202, 200) << 0;
        QTest::newRow("a stroke of a letter") << QRectF(4, 2, 1, 10) << QColor(Qt::black) << 0;
        QTest::newRow("a word") << QRectF(2, 4, 12, 8) << QColor(100, 100, 100) << 1;
        QTest::newRow("a faint line") << QRectF(0, 6, 16, 1) << QColor(170, 170, 170) << 0;
    }

    void aBlockDiffers()
    {
        QFETCH(const QRectF, part);
        QFETCH(const QColor, color);
        QFETCH(const int, differing);
        for (const qreal scale : {1.0, 2.0}) {
            const Comparison found = compare(picture(scale), marked(picture(scale), 3, 2, part, color));
            QCOMPARE(found.differing, differing);
            QCOMPARE(found.blocks, columns * rows);
            const Comparison turned = compare(marked(picture(scale), 3, 2, part, color), picture(scale));
            QCOMPARE(turned.differing, differing);
        }
    }

    void aFewBlocksAreForgiven()
    {
        QImage drawn = picture();
        for (int block = 0; block < 3; ++block)
            drawn = marked(drawn, block, block, whole, Qt::black);
        QVERIFY(compare(picture(), drawn).alike());
        QVERIFY(!compare(picture(), marked(drawn, 9, 9, whole, Qt::black)).alike());
    }

    void whatDiffersIsMarked()
    {
        const QImage marks = compare(picture(2), marked(picture(2), 3, 2, whole, Qt::black)).difference;
        const int side = 2 * blockSide;
        const auto redness = [&marks](int x, int y) {
            const QColor color = marks.pixelColor(x, y);
            return color.red() - color.green();
        };
        QVERIFY(redness(3 * side, 2 * side) > 50 && redness(4 * side - 1, 3 * side - 1) > 50);
        QCOMPARE(redness(3 * side - 1, 2 * side), 0);
        QCOMPARE(redness(4 * side, 2 * side), 0);
    }
};

ABISSORA_TEST(tst_PictureComparison);
#include "tst_PictureComparison.moc"
