// SPDX-License-Identifier: MIT
#include "SidebarContent.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The lines of the sidebar and of the filter verbs, without the commentary of reads.
QStringList filterLines(const QStringList& log)
{
    QStringList kept;
    std::ranges::copy_if(log, std::back_inserter(kept), [](const QString& line) {
        return !line.startsWith("🔍"_L1) && (!line.startsWith(u' ') || line.contains("impostato"_L1));
    });
    return kept;
}

} // namespace

class tst_SidebarContent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rows()
    {
        EquipmentTypeModel boat;
        boat.name = u"Boa"_s;
        boat.icon = u"dive.tank"_s;
        boat.color = u"red"_s;
        EquipmentTypeModel unknown;
        unknown.name = u"Altro"_s;
        using enum SidebarRow::Kind;
        const QList<SidebarRow> expected{
            {SectionTitle, u"Attrezzatura"_s, {}, {}},
            {Entry, u"Tutti gli articoli"_s, u"all"_s, {u"folder"_s}},
            {Entry, u"Manutenzione scaduta"_s, u"maintenance"_s, {u"exclamationmark.triangle"_s}},
            {SectionTitle, u"Categorie"_s, {}, {}},
            {Entry, u"Boa"_s, u"type_Boa"_s, {u"dive.tank"_s, NamedColor::red}},
            {Entry, u"Altro"_s, u"type_Altro"_s, appearanceOf(unknown)},
            {Divider, {}, {}, {}},
            {Entry, u"Impostazioni"_s, u"settings"_s, {u"gear"_s}},
        };
        QCOMPARE(sidebarRows({boat, unknown}), expected);
    }

    void theFirstValueRunsNothing()
    {
        RegisterFixture f;
        f.equipment.setFilterTypeName(u"GAV"_s);
        f.console.clear();
        SidebarSelection selection(f.equipment, f.console);
        selection.followFilter();
        QCOMPARE(selection.tag(), std::optional(u"all"_s));
        QCOMPARE(f.takeLog(), QStringList());
    }

    void categorySetsTheFilter()
    {
        RegisterFixture f;
        SidebarSelection selection(f.equipment, f.console);
        QSignalSpy changed(&selection, &SidebarSelection::changed);
        QSignalSpy tab(&selection, &SidebarSelection::tabRequested);
        f.equipment.setSearchText(u"apeks"_s);
        f.equipment.setSelectedType(EquipmentType::fins);
        selection.select(u"type_GAV"_s);
        selection.followFilter();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(tab.takeFirst().constFirst().toInt(), 0);
        QCOMPARE(f.equipment.filterTypeName(), std::optional(u"GAV"_s));
        QCOMPARE(f.equipment.searchText(), QString());
        QVERIFY(!f.equipment.selectedType());
        QCOMPARE(selection.tag(), std::optional(u"type_GAV"_s));
        QCOMPARE(filterLines(f.takeLog()),
                 QStringList({u"🔄 Sidebar selection changed to: type_GAV"_s, u"🎯 Categoria selezionata: GAV"_s,
                              u"🎯 FILTRO PER NOME: 'GAV'"_s, u"📌 filterTypeName cambiato da nil a GAV"_s,
                              u"   ✅ filterTypeName impostato a: 'GAV'"_s, u"📌 filterTypeName cambiato a: GAV"_s}));
    }

    void theSameEntryAgainRunsNothing()
    {
        RegisterFixture f;
        SidebarSelection selection(f.equipment, f.console);
        QSignalSpy changed(&selection, &SidebarSelection::changed);
        selection.select(u"all"_s);
        QVERIFY(changed.isEmpty());
        QCOMPARE(f.takeLog(), QStringList());
    }

    void resettingElsewhereSelectsAll()
    {
        RegisterFixture f;
        SidebarSelection selection(f.equipment, f.console);
        selection.select(u"type_Pinne"_s);
        selection.followFilter();
        f.console.clear();
        f.equipment.resetFilters();
        selection.followFilter();
        QCOMPARE(selection.tag(), std::optional(u"all"_s));
        QCOMPARE(f.takeLog(),
                 QStringList({u"🔄 Reset filtri"_s, u"📌 filterTypeName cambiato da Pinne a nil"_s,
                              u"📌 filterTypeName cambiato a: nil"_s, u"🔄 Sincronizzazione: Imposto 'all'"_s,
                              u"🔄 Sidebar selection changed to: all"_s, u"📂 Reset filtri - Tutti gli articoli"_s,
                              u"🔄 Reset filtri"_s, u"📌 filterTypeName cambiato da nil a nil"_s}));
    }

    void filterSetElsewhereSelectsItsCategory()
    {
        RegisterFixture f;
        SidebarSelection selection(f.equipment, f.console);
        f.equipment.filterByTypeName(u"Muta"_s);
        selection.followFilter();
        QCOMPARE(selection.tag(), std::optional(u"type_Muta"_s));
        const QStringList log = f.takeLog();
        const qsizetype followed = log.indexOf(u"📌 filterTypeName cambiato a: Muta"_s);
        QVERIFY(followed > 0);
        QCOMPARE(log.value(followed + 1), u"🔄 Sincronizzazione: Imposto 'type_Muta'"_s);
        QCOMPARE(log.value(followed + 2), u"🔄 Sidebar selection changed to: type_Muta"_s);
    }

    void noneDoesNotMoveTheSelectionWhileAKindIsSelected()
    {
        RegisterFixture f;
        SidebarSelection selection(f.equipment, f.console);
        selection.select(u"type_Muta"_s);
        selection.followFilter();
        f.equipment.setSelectedType(EquipmentType::mask);
        f.equipment.setFilterTypeName(std::nullopt);
        selection.followFilter();
        QCOMPARE(selection.tag(), std::optional(u"type_Muta"_s));
        QVERIFY(f.takeLog().endsWith(u"📌 filterTypeName cambiato a: nil"_s));
    }

    void maintenanceKeepsTheFilter()
    {
        RegisterFixture f;
        SidebarSelection selection(f.equipment, f.console);
        f.equipment.filterByTypeName(u"GAV"_s);
        selection.followFilter();
        f.console.clear();
        QSignalSpy tab(&selection, &SidebarSelection::tabRequested);
        selection.select(u"maintenance"_s);
        selection.followFilter();
        QCOMPARE(tab.takeFirst().constFirst().toInt(), 1);
        QCOMPARE(f.equipment.filterTypeName(), std::optional(u"GAV"_s));
        QCOMPARE(f.takeLog(),
                 QStringList({u"🔄 Sidebar selection changed to: maintenance"_s, u"🔧 Vai a Manutenzione - Tab 1"_s}));
        // A filter that goes away leaves this entry selected.
        f.equipment.setFilterTypeName(std::nullopt);
        selection.followFilter();
        QCOMPARE(selection.tag(), std::optional(u"maintenance"_s));
    }

    void settingsAndNone()
    {
        RegisterFixture f;
        SidebarSelection selection(f.equipment, f.console);
        QSignalSpy tab(&selection, &SidebarSelection::tabRequested);
        selection.select(u"settings"_s);
        selection.select(std::nullopt);
        QCOMPARE(f.takeLog(), QStringList({u"🔄 Sidebar selection changed to: settings"_s,
                                           u"🔄 Sidebar selection changed to: nil"_s}));
        QVERIFY(tab.isEmpty());
    }
};

ABISSORA_TEST(tst_SidebarContent);

#include "tst_SidebarContent.moc"
