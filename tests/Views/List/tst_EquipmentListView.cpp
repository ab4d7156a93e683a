// SPDX-License-Identifier: MIT
#include "EquipmentListView.h"

#include "Chip.h"
#include "FileDropping.h"
#include "FilterMenu.h"
#include "ListParts.h"
#include "TestRunner.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

using namespace abissora;
using namespace abissora::test;

class tst_EquipmentListView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sampleRows()
    {
        RegisterFixture f;
        ShownList view(f);
        QAbstractItemModelTester tester(existing<EquipmentTableView>(view, "equipmentTable").model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
        QCOMPARE(names(view),
                 QStringList({u"Computer Suunto EON Core"_s, u"GAV Scubapro Hydros"_s, u"Erogatore Apeks XTX50"_s}));
        QCOMPARE(cell(view, 0, 0), u"Computer Suunto EON Core\nComputer Subacqueo"_s);
        QCOMPARE(cell(view, 0, 1), u"Suunto"_s);
        QCOMPARE(cell(view, 0, 2), u"EON Core"_s);
        QCOMPARE(cell(view, 0, 3), u"30 giugno 2026\nSCADUTO!"_s);
        QCOMPARE(cell(view, 0, 4), u"Attivo"_s);
        QCOMPARE(cell(view, 2, 3), u"15 giugno 2027\n365 giorni"_s);
        QCOMPARE(existing<QLabel>(view, "shownCount").text(), u"3 articoli"_s);
        QCOMPARE(existing<QLabel>(view, "dueCount").text(), u"⚠️ 2 manutenzioni scadute"_s);
        QCOMPARE(existing<QLabel>(view, "activeCount").text(), u"3 attivi"_s);
    }

    void typingFiltersAndOneKeyReadsOnce()
    {
        RegisterFixture f;
        ShownList view(f);
        f.console.clear();
        auto& search = existing<QLineEdit>(view, "search");
        QCOMPARE(search.placeholderText(), u"Cerca attrezzatura..."_s);
        QTest::keyClick(&search, Qt::Key_S);
        settle();
        QCOMPARE(f.console.calls().size(), 1);
        QCOMPARE(f.takeLog().constFirst(), u"🔍 FILTRO ATTIVO:"_s);
        QTest::keyClicks(&search, u"cuba"_s);
        settle();
        QCOMPARE(f.equipment.searchText(), u"scuba"_s);
        QCOMPARE(names(view), QStringList(u"GAV Scubapro Hydros"_s));
        QCOMPARE(existing<QLabel>(view, "shownCount").text(), u"1 articoli"_s);
        QCOMPARE(existing<QLabel>(view, "dueCount").text(), u"⚠️ 2 manutenzioni scadute"_s);
    }

    void whatAScreenReaderPutsInFilters()
    {
        RegisterFixture f;
        ShownList view(f);
        QAccessible::queryAccessibleInterface(&existing<QLineEdit>(view, "search"))
            ->setText(QAccessible::Value, u"scuba"_s);
        settle();
        QCOMPARE(names(view), QStringList(u"GAV Scubapro Hydros"_s));
    }

    void emptyStateClearsTheFilters()
    {
        RegisterFixture f;
        ShownList view(f);
        f.equipment.setFilterTypeName(u"GAV"_s);
        f.equipment.setSearchText(u"niente"_s);
        settle();
        auto& empty = existing<QWidget>(view, "emptyRegister");
        QVERIFY(empty.isVisible());
        press(empty, u"Cancella filtri"_s);
        settle();
        QCOMPARE(names(view).size(), 3);
        QVERIFY(!empty.isVisible());
        QVERIFY(!f.equipment.filterTypeName());
        QCOMPARE(existing<QLineEdit>(view, "search").text(), QString());
    }

    void emptyRegisterOffersTheFirstItem()
    {
        RegisterFixture f(QList<Equipment>{});
        ShownList view(f);
        QSignalSpy added(&view, &EquipmentListView::addRequested);
        press(existing<QWidget>(view, "emptyRegister"), u"Aggiungi la prima attrezzatura"_s);
        QCOMPARE(added.size(), 1);
        QVERIFY(!existing<QLabel>(view, "dueCount").isVisible());
        QCOMPARE(existing<QLabel>(view, "activeCount").text(), u"0 attivi"_s);
    }

    void chipShowsAndClearsTheTypeFilter()
    {
        RegisterFixture f;
        ShownList view(f);
        auto& chip = existing<Chip>(view, "filterChip");
        QVERIFY(!chip.isVisible());
        f.equipment.filterByTypeName(u"GAV"_s);
        settle();
        QVERIFY(chip.isVisible());
        QCOMPARE(chip.text(), u"Filtro: GAV"_s);
        QTest::mouseClick(chip.findChild<QAbstractButton*>(), Qt::LeftButton);
        settle();
        QVERIFY(!f.equipment.filterTypeName());
        QVERIFY(!chip.isVisible());
    }

    void filterMenuChoosesAType()
    {
        RegisterFixture f;
        ShownList view(f);
        auto& menu = existing<FilterMenu>(view, "filterMenu");
        Q_EMIT menu.aboutToShow();
        QStringList entries;
        for (const QAction* entry : menu.actions())
            if (!entry->isSeparator())
                entries.append(entry->text());
        QCOMPARE(entries.size(), 17);
        QCOMPARE(entries.first(), u"Tutti"_s);
        QCOMPARE(entries.last(), u"Torcia"_s);
        const QUuid before = view.refreshID();
        f.console.clear();
        action(menu, u"GAV"_s)->trigger();
        QVERIFY(view.refreshID() != before);
        QCOMPARE(f.takeLog().constFirst(), u"🖱️ Menu filtro cliccato: GAV"_s);
        settle();
        QCOMPARE(names(view), QStringList(u"GAV Scubapro Hydros"_s));

        Q_EMIT menu.aboutToShow();
        QVERIFY(action(menu, u"Cancella filtri"_s));
        f.equipment.setSearchText(u"gav"_s);
        action(menu, u"Tutti"_s)->trigger();
        QVERIFY(!f.equipment.filterTypeName());
        QCOMPARE(f.equipment.searchText(), u"gav"_s);
        action(menu, u"Cancella filtri"_s)->trigger();
        QCOMPARE(f.equipment.searchText(), QString());
        Q_EMIT menu.aboutToShow();
        QVERIFY(!action(menu, u"Cancella filtri"_s));
    }

    void refreshRebuildsTheRows()
    {
        RegisterFixture f;
        ShownList view(f);
        const QUuid before = view.refreshID();
        QSignalSpy reset(existing<EquipmentTableView>(view, "equipmentTable").model(), &QAbstractItemModel::modelReset);
        QTest::mouseClick(&existing<QAbstractButton>(view, "refreshButton"), Qt::LeftButton);
        settle();
        QVERIFY(view.refreshID() != before);
        QCOMPARE(reset.size(), 1);
    }

    void selectingARowTellsTheParentOnce()
    {
        RegisterFixture f;
        ShownList view(f);
        QSignalSpy selected(&view, &EquipmentListView::equipmentSelected);
        auto& table = existing<EquipmentTableView>(view, "equipmentTable");
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(table.model()->index(1, 1)).center());
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.takeFirst().constFirst().value<std::optional<Equipment>>()->name, u"GAV Scubapro Hydros"_s);
        QTest::keyClick(&table, Qt::Key_Down);
        QCOMPARE(selected.takeFirst().constFirst().value<std::optional<Equipment>>()->name, u"Erogatore Apeks XTX50"_s);
        // A redraw keeps the row selected and tells nobody.
        view.refresh();
        settle();
        QVERIFY(selected.isEmpty());
        QVERIFY(table.selectionModel()->isRowSelected(2));
        view.setSelectedEquipment(std::nullopt);
        QVERIFY(!table.selectionModel()->hasSelection());
        QVERIFY(selected.isEmpty());
    }

    void accessibleTable()
    {
        RegisterFixture f;
        ShownList view(f);
        auto& table = existing<EquipmentTableView>(view, "equipmentTable");
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&table);
        QCOMPARE(accessible->role(), QAccessible::Table);
        QCOMPARE(accessible->text(QAccessible::Name), u"Attrezzatura Subacquea"_s);
        QAccessibleInterface* cellInterface = accessible->tableInterface()->cellAt(0, 3);
        QCOMPARE(cellInterface->role(), QAccessible::Cell);
        QCOMPARE(cellInterface->text(QAccessible::Name), u"30 giugno 2026\nSCADUTO!"_s);
        QCOMPARE(accessible->tableInterface()->cellAt(1, 5)->text(QAccessible::Name), u"Azioni: GAV Scubapro Hydros"_s);
        QCOMPARE(existing<QToolButton>(view, "filterButton").accessibleName(), u"Filtro"_s);
    }

    void aTableThatIsDroppedIsToBeImported()
    {
        RegisterFixture f;
        ShownList view(f);
        QStringList dropped;
        connect(&view, &EquipmentListView::tableDropped, [&](const QString& path) { dropped.append(path); });
        QVERIFY(dropOn(view, {300, 300}, {QUrl::fromLocalFile(u"/home/anna/club.CSV"_s)}));
        QVERIFY(!dropOn(view, {300, 300}, {QUrl::fromLocalFile(u"/home/anna/scontrino.pdf"_s)}));
        QCOMPARE(dropped, QStringList(u"/home/anna/club.CSV"_s));
    }
};

ABISSORA_TEST(tst_EquipmentListView);

#include "tst_EquipmentListView.moc"
