// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "ImportParts.h"
#include "Picture.h"
#include "SegmentedControl.h"
#include "TestRunner.h"
#include "Theme.h"
#include "Tokens.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

void key(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
    settle();
}

QString nameOf(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

} // namespace

class tst_ImportView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void saysWhatTheFileHolds()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        QCOMPARE(s.sheet->windowTitle(), u"Importa"_s);
        QCOMPARE(textOf(*s.sheet, u"fileName"), u"club.csv"_s);
        QCOMPARE(textOf(*s.sheet, u"format"), u"Separatore ; · UTF-8 · Virgola decimale"_s);
        QCOMPARE(textOf(*s.sheet, u"summary"), u"5 righe: 3 nuove, 1 già presente,"_s);
        QCOMPARE(textOf(*s.sheet, u"faults"), u"1 con errori"_s);
        QCOMPARE(usable<QAbstractButton>(*s.sheet, u"import").text(), u"Importa 3 articoli"_s);
        QCOMPARE(s.chosen(), QList<bool>({true, true, false, false, true}));
        QCOMPARE(s.picker(4).currentText(), u"Numero Seriale"_s);
        QCOMPARE(s.picker(6).currentText(), u"Non importare"_s);
    }

    void boxesChoose()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        ImportTable& table = s.table();
        const auto clickBox = [&](int row) {
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                              ImportDelegate::box(table.visualRect(table.model()->index(row, 0))).center());
        };
        clickBox(0);
        clickBox(2);
        clickBox(3); // faulty
        QCOMPARE(s.chosen(), QList<bool>({false, true, true, false, true}));
        QCOMPARE(usable<QAbstractButton>(*s.sheet, u"import").text(), u"Importa 3 articoli"_s);
        auto& all = usable<QAbstractButton>(*s.sheet, u"allRows");
        QVERIFY(!all.isChecked());
        QTest::mouseClick(&all, Qt::LeftButton);
        QCOMPARE(s.chosen(), QList<bool>({true, true, false, false, true}));
        QTest::mouseClick(&all, Qt::LeftButton);
        QVERIFY(!s.chosen().contains(true));
        QVERIFY(!part<QAbstractButton>(*s.sheet, u"import").isEnabled());
        QCOMPARE(part<QAbstractButton>(*s.sheet, u"import").text(), u"Importa"_s);
    }

    void keysChoose()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        QVERIFY(s.table().hasFocus());
        key(Qt::Key_Down); // selects where the keyboard stands
        key(Qt::Key_Space);
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        key(Qt::Key_Space);
        QCOMPARE(s.chosen(), QList<bool>({false, true, true, false, true}));
    }

    void tabGoesAsThingsStand()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        const auto order = [&s] {
            s.table().setFocus(Qt::TabFocusReason);
            QStringList stops = tabOrder(*s.sheet);
            stops.removeAll(QString()); // the segments of what the file contains: one stop
            return stops;
        };
        QCOMPARE(order().mid(0, 3), QStringList({u"importTable"_s, u"cancel"_s, u"import"_s}));
        s.choose(6, u"Note"_s); // pickers are made anew
        QCOMPARE(order(),
                 QStringList({u"importTable"_s, u"cancel"_s, u"import"_s, u"allRows"_s, u"column0"_s, u"column1"_s,
                              u"column2"_s, u"column3"_s, u"column4"_s, u"column5"_s, u"column6"_s}));
    }

    void aColumnCanBeChanged()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        s.choose(6, u"Note"_s);
        QCOMPARE(s.cell(0, 7), u"nero"_s);
        QVERIFY(s.picker(6).hasFocus());
        s.choose(5, u"Non importare"_s);
        // Without the date that is none the row has no fault, and its next service follows.
        QCOMPARE(s.chosen(), QList<bool>({true, true, false, true, true}));
        QCOMPARE(s.table().model()->columnCount(), 9);
        QCOMPARE(s.cell(0, 8), u"15/06/2027"_s);
        QVERIFY(!isShown(*s.sheet, u"faults"));
    }

    void rowsThatAreBeingReadLeaveTheOldOnesOnShow()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        f.work.beSlow();
        s.choose(6, u"Note"_s);
        QCOMPARE(s.cell(3, 6), u"Data non valida: 31/02/2024"_s);
        QVERIFY(!part<QAbstractButton>(*s.sheet, u"import").isEnabled());
        s.choose(5, u"Non importare"_s); // in the place of what goes on
        QVERIFY(f.work.progress(0).isCancelled());
        QVERIFY(!f.work.progress(1).isCancelled());
        f.work.finish();
        QVERIFY(!part<QAbstractButton>(*s.sheet, u"import").isEnabled());
        f.work.finish();
        settle();
        QCOMPARE(s.picker(6).currentText(), u"Note"_s);
        QCOMPARE(s.picker(5).currentText(), u"Non importare"_s);
        QVERIFY(s.picker(5).hasFocus());
        QCOMPARE(s.chosen(), QList<bool>({true, true, false, true, true}));
        QVERIFY(usable<QAbstractButton>(*s.sheet, u"import").isEnabled());
    }

    void cancelledReadingLeavesEverythingAsItWas()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        auto& subject = part<SegmentedControl>(*s.sheet, u"subject");
        f.work.beSlow();
        s.choose(0, u"Note"_s);
        f.work.progress().cancel();
        f.work.finish();
        press(*s.sheet, u"Manutenzioni"_s);
        QCOMPARE(subject.currentIndex(), 1);
        f.work.progress().cancel();
        f.work.finish();
        settle();
        QCOMPARE(subject.currentIndex(), 0);
        QCOMPARE(s.picker(0).currentText(), u"Nome"_s);
        QCOMPARE(usable<QAbstractButton>(*s.sheet, u"import").text(), u"Importa 3 articoli"_s);
        s.choose(6, u"Note"_s); // goes out from what is on show
        f.work.finish();
        settle();
        QCOMPARE(s.cell(0, 1), u"Erogatore MK25"_s);
    }

    void aViewThatGoesEndsItsReading()
    {
        ImportRegister f;
        auto s = std::make_unique<ShownImport>(f, clubTable);
        f.work.beSlow();
        s->choose(6, u"Note"_s);
        s.reset();
        QVERIFY(f.work.progress().isCancelled());
        f.work.finish();
    }

    void twoColumnsOfOneFieldAreSaid()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        s.choose(6, u"Marca"_s);
        QCOMPARE(textOf(*s.sheet, u"faults"), u"Riga 1, colonna 7: «Marca» c'è già nella colonna 3."_s);
        QVERIFY(!isShown(*s.sheet, u"summary"));
        QVERIFY(!part<QAbstractButton>(*s.sheet, u"import").isEnabled());
        QCOMPARE(s.cell(0, 7), u"nero"_s); // still there to see
        s.choose(2, u"Note"_s);
        QCOMPARE(usable<QAbstractButton>(*s.sheet, u"import").text(), u"Importa 3 articoli"_s);
    }

    void recordsAreChosenAsWell()
    {
        ImportRegister f;
        const ShownImport s(f, "Articolo,Data,Descrizione,Costo\nErogatore di prova,2/1/2026,Revisione,\"1,234.50\"\n");
        QCOMPARE(textOf(*s.sheet, u"format"), u"Separatore , · UTF-8 · Punto decimale"_s);
        QCOMPARE(s.cell(0, 4), u"1234,50"_s);
        QCOMPARE(usable<QAbstractButton>(*s.sheet, u"import").text(), u"Importa 1 manutenzione"_s);
        press(*s.sheet, u"Articoli"_s);
        settle();
        QCOMPARE(usable<QAbstractButton>(*s.sheet, u"import").text(), u"Importa 1 articolo"_s);
        press(*s.sheet, u"Manutenzioni"_s);
        settle();
        QCOMPARE(s.cell(0, 1), u"Erogatore di prova"_s);
    }

    void importsWhatIsChosenAndCloses()
    {
        ImportRegister f;
        ImportedRecords imported;
        const ShownImport s(f, clubTable, [&](const ImportPlan& plan) { imported = plan.records(f.ids); });
        const QSignalSpy closed(s.sheet, &QDialog::finished);
        click(*s.sheet, u"import");
        QCOMPARE(imported.items.size(), 3);
        QCOMPARE(imported.items.last().name, u"Pinne"_s);
        QCOMPARE(closed.size(), 1);
    }

    void escapeImportsNothing()
    {
        ImportRegister f;
        int calls = 0;
        const ShownImport s(f, clubTable, [&](const ImportPlan&) { ++calls; });
        key(Qt::Key_Escape);
        QVERIFY(!s.sheet->isVisible());
        QCOMPARE(calls, 0);
    }

    void whatIsRead()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        // Not inside the table, whose parts are its cells alone.
        QVERIFY(!s.table().isAncestorOf(&s.picker(4)));
        QCOMPARE(nameOf(s.picker(4)), u"matricola: Numero Seriale"_s);
        QCOMPARE(nameOf(part(*s.sheet, u"allRows")), u"Importa tutte le righe nuove"_s);
        QCOMPARE(s.table().accessibleName(), u"Righe da importare"_s);
        QCOMPARE(s.table().model()->index(1, 0).data(Qt::AccessibleTextRole).toString(), u"Importa la riga 2"_s);
    }

    void columnsHaveRoomAndFillTheTable()
    {
        ImportRegister f;
        const ShownImport s(f, clubTable);
        const ImportTable& table = s.table();
        QCOMPARE(table.horizontalHeader()->length(), table.viewport()->width());
        QCOMPARE(s.picker(6).geometry().right() <= table.viewport()->width(), true);
        QCOMPARE(clippedTexts(*s.sheet), QStringList());
    }

    void manyColumnsScrollAndFollowTheKeyboard()
    {
        ImportRegister f;
        QByteArray headings = "nome";
        QByteArray row = "Boa";
        for (int column = 0; column < 30; ++column) {
            headings += ";colonna " + QByteArray::number(column);
            row += ";testo " + QByteArray::number(column);
        }
        const ShownImport s(f, headings + "\n" + row + "\n");
        const ImportTable& table = s.table();
        QVERIFY(table.horizontalScrollBar()->maximum() > 0);
        s.picker(30).setFocus(Qt::TabFocusReason);
        settle();
        QVERIFY(table.horizontalHeader()->viewport()->rect().contains(s.picker(30).geometry().center()));
    }

    void faultsAreMarked_data()
    {
        QTest::addColumn<Scheme>("scheme");
        QTest::newRow("light") << Scheme::Light;
        QTest::newRow("dark") << Scheme::Dark;
    }
    void faultsAreMarked()
    {
        QFETCH(Scheme, scheme);
        applyTheme(*qApp, scheme);
        ImportRegister f;
        const ShownImport s(f, clubTable);
        const Tokens& tokens = Tokens::of(scheme);
        ImportTable& table = s.table();
        const QImage image = table.viewport()->grab().toImage();
        const auto corner = [&](int row, int column) {
            return image.pixelColor(table.visualRect(table.model()->index(row, column)).topLeft() + QPoint(2, 2));
        };
        QCOMPARE(corner(3, 6), tokens.dangerTint);
        QCOMPARE(corner(2, 2), tokens.window); // there already
        QCOMPARE(corner(1, 2), tokens.surface);
        const QRect box = ImportDelegate::box(table.visualRect(table.model()->index(0, 0)));
        QCOMPARE(image.pixelColor(box.topLeft() + QPoint(6, 6)), tokens.accentFill);
        applyTheme(*qApp, Scheme::Light);
    }
};

ABISSORA_TEST(tst_ImportView);
#include "tst_ImportView.moc"
