// SPDX-License-Identifier: MIT
#include "PaperParts.h"
#include "PrintedList.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

class tst_PrintedList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itemsInTheirOrder()
    {
        RegisterFixture f;
        const QList<Equipment> items{makeItem(2, u"Pinne"_s, EquipmentType::fins, f.inDays(100)),
                                     makeItem(1, u"GAV"_s, EquipmentType::bcd, f.inDays(-3))};
        const PrintedPaper paper = PrintedList::listOf(items, {}, f.types, f.almanac);
        QCOMPARE(paper.title, u"Attrezzatura Subacquea"_s);
        QCOMPARE(paper.subtitle, u"2 articoli"_s);
        QCOMPARE(cellsOf(paper.rows.at(0)), (QStringList{u"Pinne"_s, u"Pinne"_s, u"Marca2"_s, u"Modello2"_s,
                                                         u"23 settembre 2026"_s, u"100 giorni"_s, u"Attivo"_s}));
        QCOMPARE(paper.rows.at(1).cells.at(5), (PrintedCell{u"SCADUTO!"_s, true}));
        QCOMPARE(paper.closing.label, u"2 articoli"_s);
        for (const PrintedRow& row : paper.rows)
            QCOMPARE(row.cells.size(), paper.columns.size());
        QCOMPARE(PrintedList::listOf({}, {}, f.types, f.almanac).withoutRows, u"Nessuna attrezzatura trovata"_s);
    }

    void whatHidesOthersIsNamed()
    {
        RegisterFixture f;
        const auto subtitle = [&f](const ListContent::Narrowing& narrowing) {
            return PrintedList::listOf({}, narrowing, f.types, f.almanac).subtitle;
        };
        QCOMPARE(subtitle({u"ap"_s, {}, {}}), u"Ricerca: «ap»"_s);
        QCOMPARE(subtitle({{}, u"GAV"_s, {}}), u"Filtro: GAV"_s);
        QCOMPARE(subtitle({u"ap"_s, {}, EquipmentType::fins}), u"Filtro: Pinne · Ricerca: «ap»"_s);
        QCOMPARE(subtitle({{}, u"GAV"_s, EquipmentType::fins}), u"Filtro: GAV"_s);
        QCOMPARE(subtitle({{}, QString(), {}}), u"nessun articolo"_s);
    }

    void whatIsDueAsTheOverviewSaysIt()
    {
        RegisterFixture f;
        Equipment inactive = makeItem(3, u"Muta"_s, EquipmentType::wetsuit, f.inDays(-10));
        inactive.isActive = false;
        const QList<Equipment> items{makeItem(1, u"Computer"_s, EquipmentType::computer, f.inDays(15)), inactive,
                                     makeItem(2, u"Pinne"_s, EquipmentType::fins, f.inDays(100)),
                                     makeItem(4, u"GAV"_s, EquipmentType::bcd, f.inDays(-3))};
        const auto summary = RegisterSummary::of(items, f.almanac.now(), f.calendar);
        const PrintedPaper paper = PrintedList::dueOf(summary, f.types, f.almanac);
        QCOMPARE(paper.rows.size(), 2);
        QCOMPARE(cellsOf(paper.rows.at(0)),
                 (QStringList{u"Computer"_s, u"Computer Subacqueo"_s, u"Marca1"_s, u"Modello1"_s, u"30 giugno 2026"_s,
                              u"Scaduto da 15 giorni"_s}));
        QCOMPARE(paper.rows.at(1).cells.last().text, u"Scaduto da 3 giorni"_s);
        QCOMPARE(paper.subtitle, u"2 articoli"_s);
        for (const PrintedRow& row : paper.rows)
            QCOMPARE(row.cells.size(), paper.columns.size());
    }
};

ABISSORA_TEST(tst_PrintedList);
#include "tst_PrintedList.moc"
