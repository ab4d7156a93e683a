// SPDX-License-Identifier: MIT
#include "Painting.h"
#include "TestRunner.h"

#include <QImage>
#include <QPainter>
#include <QTest>

using namespace abissora;

namespace {

const QColor ground(Qt::white);
const QColor ink(Qt::black);

QImage canvas(qreal scale)
{
    QImage image(QSize(200, 200), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    return image;
}

/// How many pixels of the row are inked; -1 when one is neither ink nor ground, which is a blurred edge.
int inkedInRow(const QImage& image, int y, int from, int to)
{
    int inked = 0;
    for (int x = from; x < to; ++x) {
        const QColor pixel = image.pixelColor(x, y);
        if (pixel == ink)
            ++inked;
        else if (pixel != ground)
            return -1;
    }
    return inked;
}

} // namespace

class tst_Hairlines : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void scales_data();
    void linesAreCrisp_data() { scales_data(); }
    void linesAreCrisp();
    void bordersAreCrisp_data() { scales_data(); }
    void bordersAreCrisp();
    void linesFollowATranslatedPainter_data() { scales_data(); }
    void linesFollowATranslatedPainter();
};

void tst_Hairlines::scales_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("pixels");
    QTest::newRow("1") << 1.0 << 1;
    QTest::newRow("1.25") << 1.25 << 1;
    QTest::newRow("1.5") << 1.5 << 1;
    QTest::newRow("2") << 2.0 << 2;
}

void tst_Hairlines::linesAreCrisp()
{
    QFETCH(const double, scale);
    QFETCH(const int, pixels);
    for (int x = 3; x < 20; ++x) {
        QImage image = canvas(scale);
        QPainter painter(&image);
        drawVerticalHairline(painter, 0, 60, x, ink);
        painter.end();
        QCOMPARE(inkedInRow(image, 30, 0, 200), pixels);
    }
}

void tst_Hairlines::bordersAreCrisp()
{
    QFETCH(const double, scale);
    QFETCH(const int, pixels);
    for (int x = 3; x < 20; ++x) {
        QImage image = canvas(scale);
        QPainter painter(&image);
        drawPanel(painter, QRectF(x, x, 51, 41), 7, ground, ink);
        painter.end();
        const int middle = qRound((x + 20) * scale);
        QCOMPARE(inkedInRow(image, middle, 0, 200), 2 * pixels);
        const QImage turned = image.transformed(QTransform().rotate(90));
        QCOMPARE(inkedInRow(turned, qRound((x + 25) * scale), 0, 200), 2 * pixels);
    }
}

void tst_Hairlines::linesFollowATranslatedPainter()
{
    QFETCH(const double, scale);
    QFETCH(const int, pixels);
    for (int offset = 1; offset < 9; ++offset) {
        QImage image = canvas(scale);
        QPainter painter(&image);
        painter.translate(offset, offset);
        drawVerticalHairline(painter, 0, 60, 4, ink);
        painter.end();
        QCOMPARE(inkedInRow(image, 40, 0, 200), pixels);
    }
}

ABISSORA_TEST(tst_Hairlines);
#include "tst_Hairlines.moc"
