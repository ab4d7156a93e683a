// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QLineEdit>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::test;

namespace {

/// So many items, due one day after the other.
QList<Equipment> manyItems(const TemporaryRegister& base, int count)
{
    QList<Equipment> items;
    for (int i = 0; i < count; ++i)
        items.append(makeItem(i, u"Pinne n. %1"_s.arg(i, 3, 10, QChar(u'0')), EquipmentType::fins,
                              base.calendar.addDays(base.clock.now(), i).value()));
    return items;
}

struct WindowWithList : ShownWindow
{
    using ShownWindow::ShownWindow;

    void search(const QString& text)
    {
        type(window, "search", text);
        settle();
    }
    void select(int row)
    {
        table().selectRow(row);
        settle();
    }
    [[nodiscard]] bool isPaneShown() const { return isShown(window, "detailPane"); }
    [[nodiscard]] bool isSelectionInSight()
    {
        const QModelIndexList rows = table().selectionModel()->selectedRows();
        return rows.size() == 1 && table().viewport()->rect().contains(table().visualRect(rows.first()).center());
    }
    [[nodiscard]] QString selectedName()
    {
        const QModelIndexList rows = table().selectionModel()->selectedRows();
        return rows.isEmpty() ? QString() : table().equipmentModel().equipment().at(rows.first().row()).name;
    }
};

} // namespace

/// The selected item through searches, filters, saves and keys.
class tst_ListPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSearchThatHidesTheRowHidesTheItem()
    {
        ShellFixture f;
        WindowWithList s(f);
        s.select(1);
        QVERIFY(s.isPaneShown());
        s.search(u"suunto"_s);
        QVERIFY(!s.isPaneShown());
        QVERIFY2(!s.window.content().item(), "nothing can be done with what is not seen");
        s.search(u"hydros"_s);
        QVERIFY(s.isPaneShown());
        QCOMPARE(textOf(s.window, "detailName"), u"GAV Scubapro Hydros"_s);
        QCOMPARE(s.selectedName(), u"GAV Scubapro Hydros"_s);
        QVERIFY(part<QLineEdit>(s.window, "search").hasFocus());
    }

    void aFilterThatHidesTheRowHidesTheItem()
    {
        ShellFixture f;
        WindowWithList s(f);
        s.select(1);
        f.equipment.filterByTypeName(u"Pinne"_s);
        settle();
        QVERIFY(!s.isPaneShown());
        f.equipment.resetFilters();
        settle();
        QVERIFY(s.isPaneShown());
        QCOMPARE(s.selectedName(), u"GAV Scubapro Hydros"_s);
    }

    void anotherChoiceForgetsTheHiddenItem()
    {
        ShellFixture f;
        WindowWithList s(f);
        s.select(1);
        s.search(u"suunto"_s);
        s.select(0);
        s.search({});
        QCOMPARE(s.selectedName(), u"Computer Suunto EON Core"_s);
        QCOMPARE(textOf(s.window, "detailName"), u"Computer Suunto EON Core"_s);
    }

    void aNewItemIsShownThoughAFilterHidesItsRow()
    {
        ShellFixture f;
        WindowWithList s(f);
        f.equipment.filterByTypeName(u"GAV"_s);
        settle();
        QTest::keyClick(&s.window, Qt::Key_N, Qt::ControlModifier);
        auto& form = openDialog<EquipmentFormView>(s.window);
        type(form, "name", u"Coltello"_s);
        type(form, "brand", u"Mares"_s);
        press(form, u"Salva"_s);
        settle();
        QVERIFY(s.isPaneShown());
        QCOMPARE(textOf(s.window, "detailName"), u"Coltello"_s);
        QCOMPARE(s.selectedName(), QString());
        f.equipment.resetFilters();
        settle();
        QCOMPARE(s.selectedName(), u"Coltello"_s);
    }

    void aNewItemsRowComesIntoSight()
    {
        ShellFixture f(manyItems(TemporaryRegister(), 100));
        WindowWithList s(f);
        s.window.content().addEquipment();
        auto& form = openDialog<EquipmentFormView>(s.window);
        type(form, "name", u"Coltello"_s);
        type(form, "brand", u"Mares"_s);
        press(form, u"Salva"_s); // due in a year: the last one
        settle();
        QCOMPARE(s.selectedName(), u"Coltello"_s);
        QVERIFY(s.isSelectionInSight());
    }

    void aSavedItemIsFollowedToItsNewPlace()
    {
        ShellFixture f(manyItems(TemporaryRegister(), 100));
        WindowWithList s(f);
        s.select(2);
        Equipment later = s.window.content().item().value();
        later.nextServiceDate = f.inDays(90) + std::chrono::hours(1);
        f.equipment.updateEquipment(later);
        settle();
        QCOMPARE(s.selectedName(), later.name);
        QVERIFY(s.table().verticalScrollBar()->value() > 0);
        QVERIFY(s.isSelectionInSight());
    }

    void aRedrawOfOtherThingsScrollsNothing()
    {
        ShellFixture f(manyItems(TemporaryRegister(), 100));
        WindowWithList s(f);
        s.select(2);
        s.table().verticalScrollBar()->setValue(s.table().verticalScrollBar()->maximum());
        f.equipment.refreshDates();
        settle();
        QCOMPARE(s.table().verticalScrollBar()->value(), s.table().verticalScrollBar()->maximum());
    }

    void escapeClosesThePane_data()
    {
        QTest::addColumn<QString>("from");
        for (const QString& name : {u"equipmentTable"_s, u"search"_s, u"editEquipment"_s, u"notes"_s, u"addButton"_s})
            QTest::newRow(qUtf8Printable(name)) << name;
    }

    void escapeClosesThePane()
    {
        QFETCH(const QString, from);
        ShellFixture f;
        WindowWithList s(f);
        s.select(1);
        QWidget& place = part(s.window, from);
        place.setFocus();
        QTest::keyClick(&place, Qt::Key_Escape);
        QVERIFY(!s.isPaneShown());
        QVERIFY(!s.window.content().selectedEquipment());
        QVERIFY(s.window.focusWidget()->isVisible());
        QTest::keyClick(s.window.focusWidget(), Qt::Key_Escape);
        QVERIFY(s.window.isVisible());
    }

    void escapeEmptiesTheSearchFirst()
    {
        ShellFixture f;
        WindowWithList s(f);
        s.select(1);
        s.search(u"hydros"_s);
        auto& search = part<QLineEdit>(s.window, "search");
        QTest::keyClick(&search, Qt::Key_Escape);
        QCOMPARE(search.text(), QString());
        QVERIFY(s.isPaneShown());
        QTest::keyClick(&search, Qt::Key_Escape);
        QVERIFY(!s.isPaneShown());
    }

    void downInTheSearchGoesToTheFirstRow()
    {
        ShellFixture f;
        WindowWithList s(f);
        s.search(u"hydros"_s);
        QTest::keyClick(&part(s.window, "search"), Qt::Key_Down);
        QVERIFY(s.table().hasFocus());
        QCOMPARE(s.selectedName(), u"GAV Scubapro Hydros"_s);
        s.search(u"nothing of the kind"_s);
        QTest::keyClick(&part(s.window, "search"), Qt::Key_Down);
        QVERIFY(part(s.window, "emptyStateButton").hasFocus());
    }

    void aRightClickOpensNoPane()
    {
        ShellFixture f;
        WindowWithList s(f);
        QTest::mouseClick(s.table().viewport(), Qt::RightButton, {},
                          s.table().visualRect(s.table().model()->index(1, 1)).center());
        settle();
        QVERIFY(!s.isPaneShown());
    }

    void theKeyboardGoesOnVisiblyAfterADeletion()
    {
        ShellFixture f;
        WindowWithList s(f);
        s.select(1);
        QTest::keyClick(&s.table(), Qt::Key_Delete);
        auto& alert = openDialog<Alert>(s.window);
        alert.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &alert);
        press(alert, u"Elimina"_s);
        settle();
        QTRY_VERIFY(s.table().hasFocus());
        QVERIFY(s.table().hasKeyboard());
        QCOMPARE(s.table().currentIndex().row(), 1);
        QVERIFY(s.window.content().item());
    }
};

ABISSORA_TEST(tst_ListPage);

#include "tst_ListPage.moc"
