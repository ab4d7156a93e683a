// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "PageLayout.h"
#include "PagePainter.h"
#include "PaperSize.h"
#include "TestRunner.h"
#include "WorkProgress.h"

#include <QBuffer>
#include <QPainter>

using namespace abissora;

namespace {

const PaperInk ink{Qt::black, Qt::darkGray, Qt::lightGray};

PrintedPaper paperOf(qsizetype count, const QString& text)
{
    return {.kind = u"Scheda"_s,
            .title = u"Titolo"_s,
            .subtitle = u"Sotto"_s,
            .columns = {{.title = u"Descrizione"_s, .share = 2}, {.title = u"Costo"_s, .isRightAligned = true}},
            .rows = QList<PrintedRow>(count, PrintedRow{{{text}, {u"€12.50"_s}}}),
            .withoutRows = u"Niente"_s,
            .closing = {u"Totale"_s, u"€1.00"_s, 1},
            .foot = u"Titolo"_s,
            .printedOn = u"Stampato il 21 novembre 2026 con Abissora"_s};
}

PageLayout layoutOf(qsizetype count, const QString& text = u"Revisione"_s)
{
    return PageLayout(paperOf(count, text), pageSize(PaperSize::A4).size(QPageSize::Point));
}

constexpr double pixelsPerUnit = 0.1;

QImage drawn(const PageLayout& layout, qsizetype page)
{
    QImage image((layout.pageSize() * pixelsPerUnit).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PagePainter::paint(painter, QRectF(QPointF(), QSizeF(image.size())), layout, page, ink);
    return image;
}

bool hasInk(const QImage& image, const QRectF& units)
{
    const QRect pixels = QRectF(units.topLeft() * pixelsPerUnit, units.size() * pixelsPerUnit).toRect() & image.rect();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white))
                return true;
        }
    }
    return false;
}

} // namespace

class tst_PagePainter : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsDrawnInTheMargins_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("short") << u"Revisione"_s;
        QTest::newRow("without blanks") << QString(3000, u'W');
        QTest::newRow("Arabic") << u"صيانة كاملة للمرحلة الأولى والثانية "_s.repeated(40);
        QTest::newRow("pictures") << u"🤿🐠"_s.repeated(100);
        QTest::newRow("many marks") << QString(u"e"_s + u"\u0301\u0323"_s.repeated(8)).repeated(50);
        QTest::newRow("lines") << u"riga\r\n"_s.repeated(200);
    }

    void nothingIsDrawnInTheMargins()
    {
        QFETCH(QString, text);
        const PageLayout layout = layoutOf(30, text);
        const QSizeF size = layout.pageSize();
        const QRectF area = layout.area();
        for (qsizetype page = 0; page < layout.pages().size(); ++page) {
            const QImage image = drawn(layout, page);
            QVERIFY(hasInk(image, area));
            QVERIFY(!hasInk(image, {0, 0, size.width(), area.top() - 100}));
            QVERIFY(!hasInk(image, {0, 0, area.left() - 40, size.height()}));
            QVERIFY(!hasInk(image, {area.right() + 40, 0, area.left(), size.height()}));
            // Between the line that closes the table and the foot.
            const double closed = layout.pages().at(page).closing.value() + 225;
            QVERIFY(!hasInk(image, {0, closed, size.width(), layout.footTop() - closed - 20}));
        }
    }

    void everyPartOfThePageHasInk()
    {
        const PageLayout layout = layoutOf(60);
        const QImage image = drawn(layout, 0);
        const QRectF area = layout.area();
        for (const PageLayout::Piece& piece : layout.pages().first().pieces)
            QVERIFY(hasInk(image, {area.left(), piece.top + PageLayout::above(piece.band), area.width(), 80}));
        const double closing = layout.pages().first().closing.value();
        QVERIFY(hasInk(image, {area.left(), closing + 60, 400, 120}));                 // the label
        QVERIFY(hasInk(image, {area.right() - 200, closing + 60, 200, 120}));          // where it goes on
        QVERIFY(hasInk(image, {area.left(), layout.footTop() + 50, 200, 120}));        // whose page it is
        QVERIFY(hasInk(image, {area.right() - 200, layout.footTop() + 50, 200, 120})); // its number
    }

    void thePictureStandsAtTheRight()
    {
        PrintedPaper paper = paperOf(1, u"x"_s);
        paper.picture = QImage(64, 64, QImage::Format_ARGB32);
        paper.picture.fill(Qt::red);
        const PageLayout layout(paper, pageSize(PaperSize::A4).size(QPageSize::Point));
        const QPointF corner(layout.area().right() - 30, layout.pages().first().pieces.at(1).top + 100);
        QCOMPARE(drawn(layout, 0).pixelColor((corner * pixelsPerUnit).toPoint()), QColor(Qt::red));
    }

    void aPdfNamesItself()
    {
        QBuffer file;
        QVERIFY(file.open(QIODevice::WriteOnly));
        WorkProgress progress;
        QVERIFY(PagePainter::writePdf(file, {layoutOf(60), layoutOf(0)}, ink, progress));
        QCOMPARE(progress.fraction(), 1.0);
        QVERIFY(file.data().startsWith("%PDF-1."));
        QCOMPARE(file.data().count("/Type /Page\n"), layoutOf(60).pages().size() + 1);
        QVERIFY(file.data().contains("/FontFile2"));
    }

    void aCancelledPdfIsNone()
    {
        QBuffer file;
        QVERIFY(file.open(QIODevice::WriteOnly));
        WorkProgress progress;
        progress.cancel();
        QCOMPARE(PagePainter::writePdf(file, {layoutOf(60)}, ink, progress).error().reason, u"Operation canceled"_s);
        QVERIFY(file.data().isEmpty());
    }
};

ABISSORA_TEST(tst_PagePainter);
#include "tst_PagePainter.moc"
