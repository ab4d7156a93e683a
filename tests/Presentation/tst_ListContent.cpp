// SPDX-License-Identifier: MIT
#include "ListContent.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

class tst_ListContent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void counts()
    {
        RegisterFixture f;
        Equipment fins = makeItem(1, u"Pinne"_s, EquipmentType::fins, f.inDays(300));
        fins.isActive = false;
        f.equipment.addEquipment(fins);
        const ListContent all = ListContent::of(f.equipment, f.types);
        QCOMPARE(all.shownCount, u"4 articoli"_s);
        QCOMPARE(all.dueCount, u"⚠️ 2 manutenzioni scadute"_s);
        QCOMPARE(all.activeCount, u"3 attivi"_s);

        // What is due is counted in the whole register, the rest among the rows.
        f.equipment.setSearchText(u"pinne"_s);
        const ListContent one = ListContent::of(f.equipment, f.types);
        QCOMPARE(one.items, EquipmentExcerpt({fins}));
        QCOMPARE(one.shownCount, u"1 articoli"_s);
        QCOMPARE(one.dueCount, u"⚠️ 2 manutenzioni scadute"_s);
        QCOMPARE(one.activeCount, u"0 attivi"_s);
    }

    void nothingDueIsNotCounted()
    {
        RegisterFixture f(QList<Equipment>{});
        f.equipment.addEquipment(makeItem(1, u"Pinne"_s, EquipmentType::fins, f.inDays(31)));
        QCOMPARE(ListContent::of(f.equipment, f.types).dueCount, QString());
    }

    void theFilteredListIsReadOnce()
    {
        RegisterFixture f;
        f.equipment.setFilterTypeName(u"GAV"_s);
        f.console.clear();
        const ListContent content = ListContent::of(f.equipment, f.types);
        QCOMPARE(f.takeLog().filter(u"FILTRO ATTIVO"_s).size(), 1);
        QCOMPARE(content.items.size(), 1);
    }

    void whatNarrows_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<bool>("byKind");
        QTest::addColumn<bool>("byName");
        QTest::addColumn<bool>("narrowed");
        QTest::newRow("nothing") << QString() << false << false << false;
        QTest::newRow("a search") << u"gav"_s << false << false << true;
        QTest::newRow("a search that finds all") << u" "_s << false << false << true;
        QTest::newRow("a kind") << QString() << true << false << true;
        QTest::newRow("a type's name") << QString() << false << true << true;
    }

    void whatNarrows()
    {
        QFETCH(const QString, search);
        QFETCH(const bool, byKind);
        QFETCH(const bool, byName);
        QFETCH(const bool, narrowed);
        RegisterFixture f;
        f.equipment.setSearchText(search);
        if (byKind)
            f.equipment.setSelectedType(EquipmentType::mask);
        if (byName)
            f.equipment.setFilterTypeName(u"Maschera"_s);
        QCOMPARE(ListContent::isNarrowed(f.equipment), narrowed);
        QCOMPARE(ListContent::of(f.equipment, f.types).offer,
                 narrowed ? u"Cancella filtri"_s : u"Aggiungi la prima attrezzatura"_s);
    }

    void theFilterLooksLikeItsType()
    {
        RegisterFixture f;
        QVERIFY(!ListContent::of(f.equipment, f.types).filter);
        f.equipment.setFilterTypeName(u"GAV"_s);
        QCOMPARE(ListContent::of(f.equipment, f.types).filter,
                 std::optional(ListContent::Filter{u"Filtro: GAV"_s, appearanceOf(*f.types.getTypeByName(u"GAV"_s))}));
    }

    void theFilterOfATypeThatIsGone()
    {
        RegisterFixture f;
        f.equipment.setFilterTypeName(u"Boa"_s);
        QCOMPARE(
            ListContent::of(f.equipment, f.types).filter,
            std::optional(ListContent::Filter{u"Filtro: Boa"_s, {u"questionmark.circle.fill"_s, NamedColor::primary}}));
    }
};

ABISSORA_TEST(tst_ListContent);

#include "tst_ListContent.moc"
