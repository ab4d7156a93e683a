// SPDX-License-Identifier: MIT
#include "EquipmentListView.h"
#include "Literals.h"

#include "Chip.h"
#include "FilterMenu.h"
#include "ListParts.h"
#include "RegisterFixture.h"
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
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
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

    void headers()
    {
        RegisterFixture f;
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        const auto* model = existing<EquipmentTableView>(view, "equipmentTable").model();
        QStringList titles;
        for (int column = 0; column < model->columnCount(); ++column)
            titles.append(model->headerData(column, Qt::Horizontal).toString());
        QCOMPARE(titles,
                 QStringList({u"Nome"_s, u"Marca"_s, u"Modello"_s, u"Prossimo Tagliando"_s, u"Stato"_s, u"Azioni"_s}));
    }

    void remainingDays_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("expected");
        QTest::newRow("31 days") << 31 << u"31 giorni"_s;
        QTest::newRow("30 days") << 30 << u"SCADUTO!"_s;
        QTest::newRow("10 days") << 10 << u"SCADUTO!"_s;
        QTest::newRow("today") << 0 << u"SCADUTO!"_s;
        QTest::newRow("5 days ago") << -5 << u"SCADUTO!"_s;
        QTest::newRow("years away") << 4000 << u"4000 giorni"_s;
    }

    void remainingDays()
    {
        QFETCH(int, days);
        QFETCH(QString, expected);
        RegisterFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, u"X"_s, EquipmentType::fins, f.inDays(days)));
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        QCOMPARE(cell(view, 0, 3).section(u'\n', 1), expected);
    }

    void appearanceFallsBackToTheBuiltInKind()
    {
        RegisterFixture f(QList<Equipment>{});
        Equipment custom = makeItem(1, u"Luce"_s, EquipmentType::other, f.inDays(90));
        custom.customTypeName = u"Faro"_s;
        f.equipment.addEquipment(custom);
        f.equipment.addEquipment(makeItem(2, u"Jacket"_s, EquipmentType::bcd, f.inDays(91)));
        f.types.deleteType(*f.types.getTypeByName(u"GAV"_s));
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        auto& model = existing<EquipmentTableView>(view, "equipmentTable").equipmentModel();
        QCOMPARE(model.row(0).typeName, u"Faro"_s);
        QCOMPARE(model.row(0).appearance, (TypeAppearance{u"questionmark.circle.fill"_s, NamedColor::secondary}));
        QCOMPARE(model.row(1).appearance, (TypeAppearance{u"dive.bcd"_s, NamedColor::orange}));
    }

    void typingFiltersAndOneKeyReadsOnce()
    {
        RegisterFixture f;
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        settle();
        f.console.clear();
        auto& search = existing<QLineEdit>(view, "search");
        QCOMPARE(search.placeholderText(), u"Cerca attrezzatura..."_s);
        QTest::keyClick(&search, Qt::Key_S);
        settle();
        QCOMPARE(f.console.calls().size(), 1);
        QCOMPARE(f.takeLog().first(), u"🔍 FILTRO ATTIVO:"_s);
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
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        QAccessible::queryAccessibleInterface(&existing<QLineEdit>(view, "search"))
            ->setText(QAccessible::Value, u"scuba"_s);
        settle();
        QCOMPARE(names(view), QStringList(u"GAV Scubapro Hydros"_s));
    }

    void emptyStateClearsTheFilters()
    {
        RegisterFixture f;
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
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
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        QSignalSpy added(&view, &EquipmentListView::addRequested);
        press(existing<QWidget>(view, "emptyRegister"), u"Aggiungi la prima attrezzatura"_s);
        QCOMPARE(added.size(), 1);
        QVERIFY(!existing<QLabel>(view, "dueCount").isVisible());
        QCOMPARE(existing<QLabel>(view, "activeCount").text(), u"0 attivi"_s);
    }

    void chipShowsAndClearsTheTypeFilter()
    {
        RegisterFixture f;
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
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
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
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
        QCOMPARE(f.takeLog().first(), u"🖱️ Menu filtro cliccato: GAV"_s);
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
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        settle();
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
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        view.resize(800, 600);
        view.show();
        settle();
        QSignalSpy selected(&view, &EquipmentListView::equipmentSelected);
        auto& table = existing<EquipmentTableView>(view, "equipmentTable");
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(table.model()->index(1, 1)).center());
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.takeFirst().first().value<std::optional<Equipment>>()->name, u"GAV Scubapro Hydros"_s);
        QTest::keyClick(&table, Qt::Key_Down);
        QCOMPARE(selected.takeFirst().first().value<std::optional<Equipment>>()->name, u"Erogatore Apeks XTX50"_s);
        // A redraw keeps the row selected and tells nobody.
        view.refresh();
        settle();
        QVERIFY(selected.isEmpty());
        QVERIFY(table.selectionModel()->isRowSelected(2));
        view.setSelectedEquipment(std::nullopt);
        QVERIFY(!table.selectionModel()->hasSelection());
        QVERIFY(selected.isEmpty());
    }

    void scrollPositionSurvivesARedraw()
    {
        QList<Equipment> many;
        RegisterFixture clockOnly;
        for (int i = 0; i < 300; ++i)
            many.append(makeItem(i, u"Pinne n. %1"_s.arg(i), EquipmentType::fins, clockOnly.inDays(i)));
        RegisterFixture f(many);
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        view.resize(900, 600);
        view.show();
        settle();
        QCOMPARE(names(view).size(), 300);
        auto* bar = existing<EquipmentTableView>(view, "equipmentTable").verticalScrollBar();
        bar->setValue(bar->maximum() / 2);
        const int before = bar->value();
        QVERIFY(before > 0);
        view.refresh();
        settle();
        QCOMPARE(bar->value(), before);
    }

    void accessibleTable()
    {
        RegisterFixture f;
        EquipmentListView view(f.equipment, f.types, f.almanac, f.console, f.ids);
        view.show();
        auto& table = existing<EquipmentTableView>(view, "equipmentTable");
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&table);
        QCOMPARE(accessible->role(), QAccessible::Table);
        QCOMPARE(accessible->text(QAccessible::Name), u"Attrezzatura Subacquea"_s);
        QAccessibleInterface* cellInterface = accessible->tableInterface()->cellAt(0, 3);
        QCOMPARE(cellInterface->role(), QAccessible::Cell);
        QCOMPARE(cellInterface->text(QAccessible::Name), u"30 giugno 2026\nSCADUTO!"_s);
        QCOMPARE(accessible->tableInterface()->cellAt(1, 5)->text(QAccessible::Name), u"Azioni"_s);
        QCOMPARE(existing<QToolButton>(view, "filterButton").accessibleName(), u"Filtro"_s);
    }
};

ABISSORA_TEST(tst_EquipmentListView);

#include "tst_EquipmentListView.moc"
