// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "PaperSize.h"
#include "PrinterOutput.h"
#include "TestRunner.h"

#include <QPrinter>
#include <QTemporaryDir>

using namespace abissora;

namespace {

PrintedPaper paper()
{
    return {.kind = u"Elenco"_s,
            .title = u"Titolo"_s,
            .subtitle = u"Sotto"_s,
            .columns = {{.title = u"Nome"_s}},
            .rows = QList<PrintedRow>(100, PrintedRow{{{u"Pinne"_s}}}),
            .withoutRows = u"Niente"_s,
            .closing = {u"Totale"_s},
            .foot = u"Titolo"_s,
            .printedOn = u"Stampato"_s};
}

/// A printer that prints into a file.
struct FilePrinter
{
    FilePrinter()
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageSize(pageSize(PaperSize::A4));
    }

    [[nodiscard]] qsizetype pages() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().count("/Type /Page\n") : -1;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"a.pdf"_s);
    QPrinter printer{QPrinter::HighResolution};
};

} // namespace

class tst_PrinterOutput : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void allPages()
    {
        FilePrinter f;
        QVERIFY(printOn(f.printer, paper()));
        QCOMPARE(f.pages(), 4);
    }

    void thePagesThatAreAskedFor()
    {
        FilePrinter f;
        f.printer.setPrintRange(QPrinter::PageRange);
        f.printer.setFromTo(2, 3);
        QVERIFY(printOn(f.printer, paper()));
        QCOMPARE(f.pages(), 2);
        f.printer.setFromTo(4, 9);
        QVERIFY(printOn(f.printer, paper()));
        QCOMPARE(f.pages(), 1);
    }

    void thePaperThatIsInThePrinter()
    {
        FilePrinter f;
        f.printer.setPageSize(QPageSize(QPageSize::A3));
        QVERIFY(printOn(f.printer, paper()));
        QVERIFY(f.pages() < 4);
    }

    void aPrinterThatTakesNothing()
    {
        FilePrinter f;
        f.printer.setOutputFileName(f.folder.filePath(u"none/a.pdf"_s));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u".*"_s));
        QVERIFY(!printOn(f.printer, paper()));
    }
};

ABISSORA_TEST(tst_PrinterOutput);
#include "tst_PrinterOutput.moc"
