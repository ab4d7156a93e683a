// SPDX-License-Identifier: MIT
#include "SidebarView.h"

#include "ScreenFixture.h"
#include "TestRunner.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

void clickRow(SidebarView& view, const QString& text)
{
    const auto* model = view.model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        if (index.data().toString() == text && index.flags().testFlag(Qt::ItemIsSelectable)) {
            view.scrollTo(index);
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no row called ") + text));
}

QStringList texts(const SidebarView& view)
{
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        texts.append(view.model()->index(row, 0).data().toString());
    return texts;
}

/// The lines of the sidebar and of the filter verbs, without the commentary of reads.
QStringList filterLines(const QStringList& log)
{
    QStringList kept;
    std::copy_if(log.begin(), log.end(), std::back_inserter(kept), [](const QString& line) {
        return !line.startsWith(QLatin1String("🔍")) &&
               (!line.startsWith(QLatin1Char(' ')) || line.contains(QLatin1String("impostato")));
    });
    return kept;
}

} // namespace

class tst_SidebarView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rows()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QAbstractItemModelTester tester(view.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        const QStringList expected{QStringLiteral("Attrezzatura"),
                                   QStringLiteral("Tutti gli articoli"),
                                   QStringLiteral("Manutenzione scaduta"),
                                   QStringLiteral("Categorie"),
                                   QStringLiteral("Altro"),
                                   QStringLiteral("Bombola"),
                                   QStringLiteral("Bussola"),
                                   QStringLiteral("Cintura Zavorra"),
                                   QStringLiteral("Computer Subacqueo"),
                                   QStringLiteral("Erogatore"),
                                   QStringLiteral("GAV"),
                                   QStringLiteral("Kit Pronto Soccorso"),
                                   QStringLiteral("Manometro"),
                                   QStringLiteral("Maschera"),
                                   QStringLiteral("Muta"),
                                   QStringLiteral("Muta Stagna"),
                                   QStringLiteral("Ossigeno"),
                                   QStringLiteral("Pinne"),
                                   QStringLiteral("Profondimetro"),
                                   QStringLiteral("Torcia"),
                                   QString(),
                                   QStringLiteral("Impostazioni")};
        QCOMPARE(texts(view), expected);
        QVERIFY(view.minimumWidth() >= 220);
    }

    void theFirstValueRunsNothing()
    {
        ScreenFixture f;
        f.equipment.setFilterTypeName(QStringLiteral("GAV"));
        f.console.clear();
        SidebarView view(f.equipment, f.types, f.console);
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("all")));
        QCOMPARE(f.takeLog(), QStringList());
    }

    void categorySetsTheFilter()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.resize(228, 900);
        view.show();
        QSignalSpy tab(&view, &SidebarView::tabRequested);
        f.equipment.setSearchText(QStringLiteral("apeks"));
        f.equipment.setSelectedType(EquipmentType::fins);
        clickRow(view, QStringLiteral("GAV"));
        QCoreApplication::processEvents();
        QCOMPARE(tab.takeFirst().first().toInt(), 0);
        QCOMPARE(f.equipment.filterTypeName(), std::optional(QStringLiteral("GAV")));
        QCOMPARE(f.equipment.searchText(), QString());
        QVERIFY(!f.equipment.selectedType());
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("type_GAV")));
        QCOMPARE(filterLines(f.takeLog()), QStringList({QStringLiteral("🔄 Sidebar selection changed to: type_GAV"),
                                                        QStringLiteral("🎯 Categoria selezionata: GAV"),
                                                        QStringLiteral("🎯 FILTRO PER NOME: 'GAV'"),
                                                        QStringLiteral("📌 filterTypeName cambiato da nil a GAV"),
                                                        QStringLiteral("   ✅ filterTypeName impostato a: 'GAV'"),
                                                        QStringLiteral("📌 filterTypeName cambiato a: GAV")}));
    }

    void resettingElsewhereSelectsAll()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.setSelectedSidebarItem(QStringLiteral("type_Pinne"));
        QCoreApplication::processEvents();
        f.console.clear();
        f.equipment.resetFilters();
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("all")));
        QCOMPARE(view.currentIndex().data().toString(), QStringLiteral("Tutti gli articoli"));
        QCOMPARE(
            f.takeLog(),
            QStringList({QStringLiteral("🔄 Reset filtri"), QStringLiteral("📌 filterTypeName cambiato da Pinne a nil"),
                         QStringLiteral("📌 filterTypeName cambiato a: nil"),
                         QStringLiteral("🔄 Sincronizzazione: Imposto 'all'"),
                         QStringLiteral("🔄 Sidebar selection changed to: all"),
                         QStringLiteral("📂 Reset filtri - Tutti gli articoli"), QStringLiteral("🔄 Reset filtri"),
                         QStringLiteral("📌 filterTypeName cambiato da nil a nil")}));
    }

    void filterSetElsewhereSelectsItsCategory()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        f.equipment.filterByTypeName(QStringLiteral("Muta"));
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("type_Muta")));
        const QStringList log = f.takeLog();
        const qsizetype followed = log.indexOf(QStringLiteral("📌 filterTypeName cambiato a: Muta"));
        QVERIFY(followed > 0);
        QCOMPARE(log.value(followed + 1), QStringLiteral("🔄 Sincronizzazione: Imposto 'type_Muta'"));
        QCOMPARE(log.value(followed + 2), QStringLiteral("🔄 Sidebar selection changed to: type_Muta"));
    }

    void noneDoesNotMoveTheSelectionWhileAKindIsSelected()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.setSelectedSidebarItem(QStringLiteral("type_Muta"));
        QCoreApplication::processEvents();
        f.equipment.setSelectedType(EquipmentType::mask);
        f.equipment.setFilterTypeName(std::nullopt);
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("type_Muta")));
        QVERIFY(f.takeLog().endsWith(QStringLiteral("📌 filterTypeName cambiato a: nil")));
    }

    void maintenanceKeepsTheFilter()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        f.equipment.filterByTypeName(QStringLiteral("GAV"));
        QCoreApplication::processEvents();
        f.console.clear();
        QSignalSpy tab(&view, &SidebarView::tabRequested);
        view.setSelectedSidebarItem(QStringLiteral("maintenance"));
        QCoreApplication::processEvents();
        QCOMPARE(tab.takeFirst().first().toInt(), 1);
        QCOMPARE(f.equipment.filterTypeName(), std::optional(QStringLiteral("GAV")));
        QCOMPARE(f.takeLog(), QStringList({QStringLiteral("🔄 Sidebar selection changed to: maintenance"),
                                           QStringLiteral("🔧 Vai a Manutenzione - Tab 1")}));
        // A filter that goes away leaves this row selected.
        f.equipment.setFilterTypeName(std::nullopt);
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("maintenance")));
    }

    void settingsAndNone()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QSignalSpy tab(&view, &SidebarView::tabRequested);
        view.setSelectedSidebarItem(QStringLiteral("settings"));
        view.setSelectedSidebarItem(std::nullopt);
        QCOMPARE(f.takeLog(), QStringList({QStringLiteral("🔄 Sidebar selection changed to: settings"),
                                           QStringLiteral("🔄 Sidebar selection changed to: nil")}));
        QVERIFY(tab.isEmpty());
        QVERIFY(view.selectionModel()->selectedRows().isEmpty());
    }

    void badgeCountsWhatIsDue()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        const QModelIndex row = view.model()->index(2, 0);
        QCOMPARE(row.data(SidebarModel::BadgeRole).toInt(), 2);
        QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Manutenzione scaduta, 2"));
        const QList<Equipment> all = f.equipment.equipment();
        for (const Equipment& item : all)
            f.equipment.deleteEquipment(item);
        QCoreApplication::processEvents();
        QVERIFY(!row.data(SidebarModel::BadgeRole).isValid());
        QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Manutenzione scaduta"));
    }

    void keyboardSkipsTitlesAndDivider()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.show();
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("maintenance")));
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("type_Altro")));
        QTest::keyClick(&view, Qt::Key_End);
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("settings")));
        QTest::keyClick(&view, Qt::Key_Up);
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("type_Torcia")));
    }

    void typesAppearAndGo()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.setSelectedSidebarItem(QStringLiteral("type_GAV"));
        QCoreApplication::processEvents();
        f.console.clear();
        EquipmentTypeModel added;
        added.id = f.ids.next();
        added.name = QStringLiteral("Boa");
        auto types = f.types.types();
        types.append(added);
        types.removeIf([](const EquipmentTypeModel& type) { return type.name == QLatin1String("GAV"); });
        f.types.setTypes(types);
        QCoreApplication::processEvents();
        QVERIFY(texts(view).contains(QStringLiteral("Boa")));
        QVERIFY(!texts(view).contains(QStringLiteral("GAV")));
        // The item stays what it is, with no row to show it; nothing runs.
        QCOMPARE(view.selectedSidebarItem(), std::optional(QStringLiteral("type_GAV")));
        QVERIFY(view.selectionModel()->selectedRows().isEmpty());
        QCOMPARE(f.takeLog(), QStringList());
    }

    void accessibleRows()
    {
        ScreenFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&view);
        QVERIFY(list);
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->text(QAccessible::Name), QStringLiteral("Barra laterale"));
        QCOMPARE(list->child(2)->role(), QAccessible::ListItem);
        QCOMPARE(list->child(2)->text(QAccessible::Name), QStringLiteral("Manutenzione scaduta, 2"));
    }
};

ABISSORA_TEST(tst_SidebarView);

#include "tst_SidebarView.moc"
