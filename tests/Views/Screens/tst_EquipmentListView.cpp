// SPDX-License-Identifier: MIT
#include "EquipmentListView.h"

#include "Chip.h"
#include "FilterMenu.h"
#include "ListParts.h"
#include "ScreenFixture.h"
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
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        QAbstractItemModelTester tester(part<EquipmentTableView>(view, "equipmentTable").model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
        QCOMPARE(names(view),
                 QStringList({QStringLiteral("Computer Suunto EON Core"), QStringLiteral("GAV Scubapro Hydros"),
                              QStringLiteral("Erogatore Apeks XTX50")}));
        QCOMPARE(cell(view, 0, 0), QStringLiteral("Computer Suunto EON Core\nComputer Subacqueo"));
        QCOMPARE(cell(view, 0, 1), QStringLiteral("Suunto"));
        QCOMPARE(cell(view, 0, 2), QStringLiteral("EON Core"));
        QCOMPARE(cell(view, 0, 3), QStringLiteral("30 giugno 2026\nSCADUTO!"));
        QCOMPARE(cell(view, 0, 4), QStringLiteral("Attivo"));
        QCOMPARE(cell(view, 2, 3), QStringLiteral("15 giugno 2027\n365 giorni"));
        QCOMPARE(part<QLabel>(view, "shownCount").text(), QStringLiteral("3 articoli"));
        QCOMPARE(part<QLabel>(view, "dueCount").text(), QStringLiteral("⚠️ 2 manutenzioni scadute"));
        QCOMPARE(part<QLabel>(view, "activeCount").text(), QStringLiteral("3 attivi"));
    }

    void headers()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        const auto* model = part<EquipmentTableView>(view, "equipmentTable").model();
        QStringList titles;
        for (int column = 0; column < model->columnCount(); ++column)
            titles.append(model->headerData(column, Qt::Horizontal).toString());
        QCOMPARE(titles, QStringList({QStringLiteral("Nome"), QStringLiteral("Marca"), QStringLiteral("Modello"),
                                      QStringLiteral("Prossimo Tagliando"), QStringLiteral("Stato"),
                                      QStringLiteral("Azioni")}));
    }

    void remainingDays_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("expected");
        QTest::newRow("31 days") << 31 << QStringLiteral("31 giorni");
        QTest::newRow("30 days") << 30 << QStringLiteral("SCADUTO!");
        QTest::newRow("10 days") << 10 << QStringLiteral("SCADUTO!");
        QTest::newRow("today") << 0 << QStringLiteral("SCADUTO!");
        QTest::newRow("5 days ago") << -5 << QStringLiteral("SCADUTO!");
        QTest::newRow("years away") << 4000 << QStringLiteral("4000 giorni");
    }

    void remainingDays()
    {
        QFETCH(int, days);
        QFETCH(QString, expected);
        ScreenFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, QStringLiteral("X"), EquipmentType::fins, f.inDays(days)));
        EquipmentListView view(f.context);
        view.show();
        QCOMPARE(cell(view, 0, 3).section(QLatin1Char('\n'), 1), expected);
    }

    void appearanceFallsBackToTheBuiltInKind()
    {
        ScreenFixture f(QList<Equipment>{});
        Equipment custom = makeItem(1, QStringLiteral("Luce"), EquipmentType::other, f.inDays(90));
        custom.customTypeName = QStringLiteral("Faro");
        f.equipment.addEquipment(custom);
        f.equipment.addEquipment(makeItem(2, QStringLiteral("Jacket"), EquipmentType::bcd, f.inDays(91)));
        f.types.deleteType(*f.types.getTypeByName(QStringLiteral("GAV")));
        EquipmentListView view(f.context);
        view.show();
        auto& model = part<EquipmentTableView>(view, "equipmentTable").equipmentModel();
        QCOMPARE(model.row(0).typeName, QStringLiteral("Faro"));
        QCOMPARE(model.row(0).appearance,
                 (TypeAppearance{QStringLiteral("questionmark.circle.fill"), NamedColor::secondary}));
        QCOMPARE(model.row(1).appearance, (TypeAppearance{QStringLiteral("dive.bcd"), NamedColor::orange}));
    }

    void typingFiltersAndOneKeyReadsOnce()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        settle();
        f.console.clear();
        auto& search = part<QLineEdit>(view, "search");
        QCOMPARE(search.placeholderText(), QStringLiteral("Cerca attrezzatura..."));
        QTest::keyClick(&search, Qt::Key_S);
        settle();
        QCOMPARE(f.console.calls().size(), 1);
        QCOMPARE(f.takeLog().first(), QStringLiteral("🔍 FILTRO ATTIVO:"));
        QTest::keyClicks(&search, QStringLiteral("cuba"));
        settle();
        QCOMPARE(f.equipment.searchText(), QStringLiteral("scuba"));
        QCOMPARE(names(view), QStringList(QStringLiteral("GAV Scubapro Hydros")));
        QCOMPARE(part<QLabel>(view, "shownCount").text(), QStringLiteral("1 articoli"));
        QCOMPARE(part<QLabel>(view, "dueCount").text(), QStringLiteral("⚠️ 2 manutenzioni scadute"));
    }

    void whatAScreenReaderPutsInFilters()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        QAccessible::queryAccessibleInterface(&part<QLineEdit>(view, "search"))
            ->setText(QAccessible::Value, QStringLiteral("scuba"));
        settle();
        QCOMPARE(names(view), QStringList(QStringLiteral("GAV Scubapro Hydros")));
    }

    void emptyStateClearsTheFilters()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        f.equipment.setFilterTypeName(QStringLiteral("GAV"));
        f.equipment.setSearchText(QStringLiteral("niente"));
        settle();
        auto& empty = part<QWidget>(view, "emptyRegister");
        QVERIFY(empty.isVisible());
        press(empty, QStringLiteral("Cancella filtri"));
        settle();
        QCOMPARE(names(view).size(), 3);
        QVERIFY(!empty.isVisible());
        QVERIFY(!f.equipment.filterTypeName());
        QCOMPARE(part<QLineEdit>(view, "search").text(), QString());
    }

    void emptyRegisterOffersTheFirstItem()
    {
        ScreenFixture f(QList<Equipment>{});
        EquipmentListView view(f.context);
        view.show();
        QSignalSpy added(&view, &EquipmentListView::addRequested);
        press(part<QWidget>(view, "emptyRegister"), QStringLiteral("Aggiungi la prima attrezzatura"));
        QCOMPARE(added.size(), 1);
        QVERIFY(!part<QLabel>(view, "dueCount").isVisible());
        QCOMPARE(part<QLabel>(view, "activeCount").text(), QStringLiteral("0 attivi"));
    }

    void chipShowsAndClearsTheTypeFilter()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        auto& chip = part<Chip>(view, "filterChip");
        QVERIFY(!chip.isVisible());
        f.equipment.filterByTypeName(QStringLiteral("GAV"));
        settle();
        QVERIFY(chip.isVisible());
        QCOMPARE(chip.text(), QStringLiteral("Filtro: GAV"));
        QTest::mouseClick(chip.findChild<QAbstractButton*>(), Qt::LeftButton);
        settle();
        QVERIFY(!f.equipment.filterTypeName());
        QVERIFY(!chip.isVisible());
    }

    void filterMenuChoosesAType()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        auto& menu = part<FilterMenu>(view, "filterMenu");
        Q_EMIT menu.aboutToShow();
        QStringList entries;
        for (const QAction* entry : menu.actions())
            if (!entry->isSeparator())
                entries.append(entry->text());
        QCOMPARE(entries.size(), 17);
        QCOMPARE(entries.first(), QStringLiteral("Tutti"));
        QCOMPARE(entries.last(), QStringLiteral("Torcia"));
        const QUuid before = view.refreshID();
        f.console.clear();
        action(menu, QStringLiteral("GAV"))->trigger();
        QVERIFY(view.refreshID() != before);
        QCOMPARE(f.takeLog().first(), QStringLiteral("🖱️ Menu filtro cliccato: GAV"));
        settle();
        QCOMPARE(names(view), QStringList(QStringLiteral("GAV Scubapro Hydros")));

        Q_EMIT menu.aboutToShow();
        QVERIFY(action(menu, QStringLiteral("Cancella filtri")));
        f.equipment.setSearchText(QStringLiteral("gav"));
        action(menu, QStringLiteral("Tutti"))->trigger();
        QVERIFY(!f.equipment.filterTypeName());
        QCOMPARE(f.equipment.searchText(), QStringLiteral("gav"));
        action(menu, QStringLiteral("Cancella filtri"))->trigger();
        QCOMPARE(f.equipment.searchText(), QString());
        Q_EMIT menu.aboutToShow();
        QVERIFY(!action(menu, QStringLiteral("Cancella filtri")));
    }

    void refreshRebuildsTheRows()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        settle();
        const QUuid before = view.refreshID();
        QSignalSpy reset(part<EquipmentTableView>(view, "equipmentTable").model(), &QAbstractItemModel::modelReset);
        QTest::mouseClick(&part<QAbstractButton>(view, "refreshButton"), Qt::LeftButton);
        settle();
        QVERIFY(view.refreshID() != before);
        QCOMPARE(reset.size(), 1);
    }

    void selectingARowTellsTheParentOnce()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        view.resize(800, 600);
        view.show();
        settle();
        QSignalSpy selected(&view, &EquipmentListView::equipmentSelected);
        auto& table = part<EquipmentTableView>(view, "equipmentTable");
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(table.model()->index(1, 1)).center());
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.takeFirst().first().value<std::optional<Equipment>>()->name,
                 QStringLiteral("GAV Scubapro Hydros"));
        QTest::keyClick(&table, Qt::Key_Down);
        QCOMPARE(selected.takeFirst().first().value<std::optional<Equipment>>()->name,
                 QStringLiteral("Erogatore Apeks XTX50"));
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
        ScreenFixture clockOnly;
        for (int i = 0; i < 300; ++i)
            many.append(makeItem(i, QStringLiteral("Pinne n. %1").arg(i), EquipmentType::fins, clockOnly.inDays(i)));
        ScreenFixture f(many);
        EquipmentListView view(f.context);
        view.show();
        view.resize(900, 600);
        view.show();
        settle();
        QCOMPARE(names(view).size(), 300);
        auto* bar = part<EquipmentTableView>(view, "equipmentTable").verticalScrollBar();
        bar->setValue(bar->maximum() / 2);
        const int before = bar->value();
        QVERIFY(before > 0);
        view.refresh();
        settle();
        QCOMPARE(bar->value(), before);
    }

    void accessibleTable()
    {
        ScreenFixture f;
        EquipmentListView view(f.context);
        view.show();
        auto& table = part<EquipmentTableView>(view, "equipmentTable");
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&table);
        QCOMPARE(accessible->role(), QAccessible::Table);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Attrezzatura Subacquea"));
        QAccessibleInterface* cellInterface = accessible->tableInterface()->cellAt(0, 3);
        QCOMPARE(cellInterface->role(), QAccessible::Cell);
        QCOMPARE(cellInterface->text(QAccessible::Name), QStringLiteral("30 giugno 2026\nSCADUTO!"));
        QCOMPARE(accessible->tableInterface()->cellAt(1, 5)->text(QAccessible::Name), QStringLiteral("Azioni"));
        QCOMPARE(part<QToolButton>(view, "filterButton").accessibleName(), QStringLiteral("Filtro"));
    }
};

ABISSORA_TEST(tst_EquipmentListView);

#include "tst_EquipmentListView.moc"
