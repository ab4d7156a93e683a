// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "SidebarView.h"

#include "RegisterFixture.h"
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
    QFAIL(qPrintable(u"no row called "_s + text));
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
        return !line.startsWith("🔍"_L1) && (!line.startsWith(u' ') || line.contains("impostato"_L1));
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
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QAbstractItemModelTester tester(view.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        const QStringList expected{u"Attrezzatura"_s,
                                   u"Tutti gli articoli"_s,
                                   u"Manutenzione scaduta"_s,
                                   u"Categorie"_s,
                                   u"Altro"_s,
                                   u"Bombola"_s,
                                   u"Bussola"_s,
                                   u"Cintura Zavorra"_s,
                                   u"Computer Subacqueo"_s,
                                   u"Erogatore"_s,
                                   u"GAV"_s,
                                   u"Kit Pronto Soccorso"_s,
                                   u"Manometro"_s,
                                   u"Maschera"_s,
                                   u"Muta"_s,
                                   u"Muta Stagna"_s,
                                   u"Ossigeno"_s,
                                   u"Pinne"_s,
                                   u"Profondimetro"_s,
                                   u"Torcia"_s,
                                   QString(),
                                   u"Impostazioni"_s};
        QCOMPARE(texts(view), expected);
        QVERIFY(view.minimumWidth() >= 220);
    }

    void theFirstValueRunsNothing()
    {
        RegisterFixture f;
        f.equipment.setFilterTypeName(u"GAV"_s);
        f.console.clear();
        SidebarView view(f.equipment, f.types, f.console);
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"all"_s));
        QCOMPARE(f.takeLog(), QStringList());
    }

    void categorySetsTheFilter()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.resize(228, 900);
        view.show();
        QSignalSpy tab(&view, &SidebarView::tabRequested);
        f.equipment.setSearchText(u"apeks"_s);
        f.equipment.setSelectedType(EquipmentType::fins);
        clickRow(view, u"GAV"_s);
        QCoreApplication::processEvents();
        QCOMPARE(tab.takeFirst().first().toInt(), 0);
        QCOMPARE(f.equipment.filterTypeName(), std::optional(u"GAV"_s));
        QCOMPARE(f.equipment.searchText(), QString());
        QVERIFY(!f.equipment.selectedType());
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_GAV"_s));
        QCOMPARE(filterLines(f.takeLog()),
                 QStringList({u"🔄 Sidebar selection changed to: type_GAV"_s, u"🎯 Categoria selezionata: GAV"_s,
                              u"🎯 FILTRO PER NOME: 'GAV'"_s, u"📌 filterTypeName cambiato da nil a GAV"_s,
                              u"   ✅ filterTypeName impostato a: 'GAV'"_s, u"📌 filterTypeName cambiato a: GAV"_s}));
    }

    void resettingElsewhereSelectsAll()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.setSelectedSidebarItem(u"type_Pinne"_s);
        QCoreApplication::processEvents();
        f.console.clear();
        f.equipment.resetFilters();
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"all"_s));
        QCOMPARE(view.currentIndex().data().toString(), u"Tutti gli articoli"_s);
        QCOMPARE(f.takeLog(),
                 QStringList({u"🔄 Reset filtri"_s, u"📌 filterTypeName cambiato da Pinne a nil"_s,
                              u"📌 filterTypeName cambiato a: nil"_s, u"🔄 Sincronizzazione: Imposto 'all'"_s,
                              u"🔄 Sidebar selection changed to: all"_s, u"📂 Reset filtri - Tutti gli articoli"_s,
                              u"🔄 Reset filtri"_s, u"📌 filterTypeName cambiato da nil a nil"_s}));
    }

    void filterSetElsewhereSelectsItsCategory()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        f.equipment.filterByTypeName(u"Muta"_s);
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_Muta"_s));
        const QStringList log = f.takeLog();
        const qsizetype followed = log.indexOf(u"📌 filterTypeName cambiato a: Muta"_s);
        QVERIFY(followed > 0);
        QCOMPARE(log.value(followed + 1), u"🔄 Sincronizzazione: Imposto 'type_Muta'"_s);
        QCOMPARE(log.value(followed + 2), u"🔄 Sidebar selection changed to: type_Muta"_s);
    }

    void noneDoesNotMoveTheSelectionWhileAKindIsSelected()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.setSelectedSidebarItem(u"type_Muta"_s);
        QCoreApplication::processEvents();
        f.equipment.setSelectedType(EquipmentType::mask);
        f.equipment.setFilterTypeName(std::nullopt);
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_Muta"_s));
        QVERIFY(f.takeLog().endsWith(u"📌 filterTypeName cambiato a: nil"_s));
    }

    void maintenanceKeepsTheFilter()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        f.equipment.filterByTypeName(u"GAV"_s);
        QCoreApplication::processEvents();
        f.console.clear();
        QSignalSpy tab(&view, &SidebarView::tabRequested);
        view.setSelectedSidebarItem(u"maintenance"_s);
        QCoreApplication::processEvents();
        QCOMPARE(tab.takeFirst().first().toInt(), 1);
        QCOMPARE(f.equipment.filterTypeName(), std::optional(u"GAV"_s));
        QCOMPARE(f.takeLog(),
                 QStringList({u"🔄 Sidebar selection changed to: maintenance"_s, u"🔧 Vai a Manutenzione - Tab 1"_s}));
        // A filter that goes away leaves this row selected.
        f.equipment.setFilterTypeName(std::nullopt);
        QCoreApplication::processEvents();
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"maintenance"_s));
    }

    void settingsAndNone()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QSignalSpy tab(&view, &SidebarView::tabRequested);
        view.setSelectedSidebarItem(u"settings"_s);
        view.setSelectedSidebarItem(std::nullopt);
        QCOMPARE(f.takeLog(), QStringList({u"🔄 Sidebar selection changed to: settings"_s,
                                           u"🔄 Sidebar selection changed to: nil"_s}));
        QVERIFY(tab.isEmpty());
        QVERIFY(view.selectionModel()->selectedRows().isEmpty());
    }

    void badgeCountsWhatIsDue()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        const QModelIndex row = view.model()->index(2, 0);
        QCOMPARE(row.data(SidebarModel::BadgeRole).toInt(), 2);
        QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), u"Manutenzione scaduta, 2"_s);
        const QList<Equipment> all = f.equipment.equipment();
        for (const Equipment& item : all)
            f.equipment.deleteEquipment(item);
        QCoreApplication::processEvents();
        QVERIFY(!row.data(SidebarModel::BadgeRole).isValid());
        QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), u"Manutenzione scaduta"_s);
    }

    void keyboardSkipsTitlesAndDivider()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.show();
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"maintenance"_s));
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_Altro"_s));
        QTest::keyClick(&view, Qt::Key_End);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"settings"_s));
        QTest::keyClick(&view, Qt::Key_Up);
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_Torcia"_s));
    }

    void typesAppearAndGo()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        view.setSelectedSidebarItem(u"type_GAV"_s);
        QCoreApplication::processEvents();
        f.console.clear();
        EquipmentTypeModel added;
        added.id = f.ids.next();
        added.name = u"Boa"_s;
        auto types = f.types.types();
        types.append(added);
        types.removeIf([](const EquipmentTypeModel& type) { return type.name == "GAV"_L1; });
        f.types.setTypes(types);
        QCoreApplication::processEvents();
        QVERIFY(texts(view).contains(u"Boa"_s));
        QVERIFY(!texts(view).contains(u"GAV"_s));
        // The item stays what it is, with no row to show it; nothing runs.
        QCOMPARE(view.selectedSidebarItem(), std::optional(u"type_GAV"_s));
        QVERIFY(view.selectionModel()->selectedRows().isEmpty());
        QCOMPARE(f.takeLog(), QStringList());
    }

    void accessibleRows()
    {
        RegisterFixture f;
        SidebarView view(f.equipment, f.types, f.console);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&view);
        QVERIFY(list);
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->text(QAccessible::Name), u"Barra laterale"_s);
        QCOMPARE(list->child(2)->role(), QAccessible::ListItem);
        QCOMPARE(list->child(2)->text(QAccessible::Name), u"Manutenzione scaduta, 2"_s);
    }
};

ABISSORA_TEST(tst_SidebarView);

#include "tst_SidebarView.moc"
