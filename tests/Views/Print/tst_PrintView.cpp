// SPDX-License-Identifier: MIT
#include "Gui.h"
#include "PagePreview.h"
#include "PrintView.h"
#include "RegisterFixture.h"
#include "TestRunner.h"
#include "Theme.h"
#include "ViewSheet.h"

#include <QAbstractButton>
#include <QAccessible>

using namespace abissora;
using namespace abissora::test;

namespace {

/// One who answers at once, or not at all.
struct Printer
{
    QList<PrintedPaper> papers;
    QList<QSizeF> sizes;
    std::optional<bool> answer = true;
};

struct ShownPrint
{
    explicit ShownPrint(RegisterFixture& f, const std::optional<Equipment>& item = std::nullopt)
    {
        window.resize(1200, 800);
        activate(window);
        const auto print = [this](const PrintedPaper& paper, const QPageSize& size, QWidget*,
                                  const std::function<void(bool)>& done) {
            printer.papers.append(paper);
            printer.sizes.append(size.size(QPageSize::Point));
            if (printer.answer)
                done(*printer.answer);
        };
        sheet = PrintView::makeSheet({f.equipment, f.types, f.almanac, f.panel, f.work, print}, item, &window);
        sheet->open();
        settle();
    }

    [[nodiscard]] QString title() const { return textOf(*sheet, u"paperTitle"); }
    [[nodiscard]] QString count() const { return textOf(*sheet, u"pageCount"); }
    [[nodiscard]] QStringList choices() const
    {
        QStringList texts;
        for (const QAbstractButton* button : part(*sheet, u"printWhat").findChildren<QAbstractButton*>())
            texts.append(button->text());
        return texts;
    }

    Printer printer;
    QWidget window;
    ViewSheet* sheet = nullptr;
};

QList<Equipment> items(RegisterFixture& f, int count)
{
    QList<Equipment> all;
    for (int i = 0; i < count; ++i)
        all.append(makeItem(i, u"Articolo %1"_s.arg(i), EquipmentType::bcd, f.inDays(i - 10)));
    return all;
}

void fill(RegisterFixture& f, int count)
{
    for (const Equipment& item : items(f, count))
        f.equipment.addEquipment(item);
}

} // namespace

class tst_PrintView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void withoutAnItemTheListIsChosen()
    {
        RegisterFixture f(QList<Equipment>{});
        fill(f, 60);
        f.equipment.setSearchText(u"Articolo 5"_s);
        const ShownPrint s(f);
        QCOMPARE(s.sheet->windowTitle(), u"Stampa"_s);
        QCOMPARE(s.choices(), (QStringList{u"Elenco"_s, u"Scadenze"_s}));
        QCOMPARE(s.title(), u"Attrezzatura Subacquea"_s);
        QCOMPARE(s.count(), u"1 pagina"_s);
    }

    void aSelectedItemIsChosenAtFirst()
    {
        RegisterFixture f(QList<Equipment>{});
        fill(f, 60);
        const ShownPrint s(f, f.equipment.equipment().at(3));
        QCOMPARE(s.choices(), (QStringList{u"Elenco"_s, u"Scadenze"_s, u"Scheda"_s}));
        QCOMPARE(s.title(), u"Articolo 3"_s);
    }

    void keysChooseWhatAndWhere()
    {
        RegisterFixture f(QList<Equipment>{});
        fill(f, 60);
        ShownPrint s(f, f.equipment.equipment().at(3));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(s.title(), u"Manutenzioni Scadute"_s);
        QCOMPARE(s.count(), u"2 pagine"_s); // 41 items
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(s.title(), u"Attrezzatura Subacquea"_s);
        const QStringList order = tabOrder(*s.sheet);
        QCOMPARE(order.mid(order.indexOf(u"page"_s)),
                 (QStringList{u"page"_s, u"pageOn"_s, u"cancel"_s, u"savePdf"_s, u"print"_s}));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        part<QWidget>(*s.sheet, u"print").setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(s.printer.sizes, QList<QSizeF>{QSizeF(612, 792)});
    }

    void printsWhatIsChosen()
    {
        RegisterFixture f(QList<Equipment>{});
        fill(f, 3);
        ShownPrint s(f);
        click(*s.sheet, u"print");
        QCOMPARE(s.printer.papers.size(), 1);
        QCOMPARE(s.printer.papers.first().rows.size(), 3);
        QVERIFY(!s.sheet->isVisible());
    }

    void aPrinterThatFailsIsToldOf()
    {
        RegisterFixture f(QList<Equipment>{});
        ShownPrint s(f);
        s.printer.answer = false;
        QVERIFY(!isShown(*s.sheet, u"printError"));
        click(*s.sheet, u"print");
        QVERIFY(s.sheet->isVisible());
        QCOMPARE(textOf(*s.sheet, u"printError"), u"Non è stato possibile stampare."_s);
        s.printer.answer.reset(); // the dialog is given up
        click(*s.sheet, u"print");
        QVERIFY(s.sheet->isVisible());
        QVERIFY(!isShown(*s.sheet, u"printError"));
    }

    void savesAPdf()
    {
        RegisterFixture f(QList<Equipment>{});
        fill(f, 3);
        Equipment item = f.equipment.equipment().at(1);
        item.name = u"GAV/Hydros: 2"_s;
        ShownPrint s(f, item);
        click(*s.sheet, u"savePdf"); // dismissed
        QVERIFY(s.sheet->isVisible());
        QCOMPARE(f.panel.saveRequests().last().suggestedName, u"GAV-Hydros- 2"_s);
        f.panel.answer(f.path(u"a.pdf"_s));
        click(*s.sheet, u"savePdf");
        QTRY_VERIFY(!s.sheet->isVisible());
        QVERIFY(f.content(u"a.pdf"_s).startsWith("%PDF-"));
    }

    void aFailureToSaveIsToldAndTheSheetStays()
    {
        RegisterFixture f(QList<Equipment>{});
        ShownPrint s(f);
        f.panel.answer(f.path(u"none/a.pdf"_s));
        click(*s.sheet, u"savePdf");
        QTRY_VERIFY(isShown(*s.sheet, u"printError"));
        QVERIFY(textOf(*s.sheet, u"printError").startsWith(u"Non è stato possibile scrivere «"_s));
        QVERIFY(s.sheet->isVisible());
        const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&part(*s.sheet, u"printError"));
        QCOMPARE(reader->role(), QAccessible::AlertMessage);
        QTest::keyClick(s.sheet, Qt::Key_Escape);
        QVERIFY(!s.sheet->isVisible());
    }

    void whatIsNoLongerWantedIsGivenUp()
    {
        RegisterFixture f;
        RegisterFixture large(items(f, 1500));
        large.work.beSlow();
        ShownPrint s(large);
        press(*s.sheet, u"Letter"_s);
        QCOMPARE(large.work.held(), 2);
        QVERIFY(large.work.progress(0).isCancelled() && !large.work.progress(1).isCancelled());
        large.work.finish(0);
        QVERIFY(!part(*s.sheet, u"print").isEnabled());
        large.work.finish(0);
        QTRY_VERIFY(part(*s.sheet, u"print").isEnabled());
        press(*s.sheet, u"A4"_s);
        click(*s.sheet, u"cancel");
        delete s.sheet;
        QVERIFY(large.work.progress(0).isCancelled());
    }

    void manyItemsAreLaidOutElsewhere()
    {
        RegisterFixture f;
        RegisterFixture large(items(f, 1500));
        large.work.beSlow();
        ShownPrint s(large);
        QCOMPARE(s.count(), u"Impaginazione in corso…"_s);
        QVERIFY(!part(*s.sheet, u"print").isEnabled());
        QVERIFY(!part(*s.sheet, u"savePdf").isEnabled());
        large.work.finish();
        QTRY_VERIFY(part(*s.sheet, u"print").isEnabled());
        QVERIFY(s.count().endsWith(u" pagine"_s));
    }
};

ABISSORA_TEST(tst_PrintView);
#include "tst_PrintView.moc"
