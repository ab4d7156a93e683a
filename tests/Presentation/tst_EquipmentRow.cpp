// SPDX-License-Identifier: MIT
#include "EquipmentRow.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

class tst_EquipmentRow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void texts()
    {
        const RegisterFixture f;
        const EquipmentRow row = EquipmentRowMaker(f.types, f.almanac).row(f.equipment.equipment().first());
        QStringList texts;
        for (int column = 0; column < EquipmentRow::ColumnCount; ++column)
            texts.append(row.text(static_cast<EquipmentRow::Column>(column)));
        QCOMPARE(texts, QStringList({u"Erogatore Apeks XTX50\nErogatore"_s, u"Apeks"_s, u"XTX50"_s,
                                     u"15 giugno 2027\n365 giorni"_s, u"Attivo"_s, u"Azioni"_s}));
    }

    void titles()
    {
        QStringList titles;
        for (int column = 0; column < EquipmentRow::ColumnCount; ++column)
            titles.append(EquipmentRow::title(static_cast<EquipmentRow::Column>(column)));
        QCOMPARE(titles,
                 QStringList({u"Nome"_s, u"Marca"_s, u"Modello"_s, u"Prossimo Tagliando"_s, u"Stato"_s, u"Azioni"_s}));
    }

    void anInactiveItem()
    {
        const RegisterFixture f;
        Equipment item = f.equipment.equipment().first();
        item.isActive = false;
        const EquipmentRow row = EquipmentRowMaker(f.types, f.almanac).row(item);
        QVERIFY(!row.isActive);
        QCOMPARE(row.state, u"Inattivo"_s);
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
        QFETCH(const int, days);
        QFETCH(const QString, expected);
        const RegisterFixture f;
        const EquipmentRow row =
            EquipmentRowMaker(f.types, f.almanac).row(makeItem(1, u"X"_s, EquipmentType::fins, f.inDays(days)));
        QCOMPARE(row.remaining, expected);
        QCOMPARE(row.isDue, days <= 30);
    }

    void appearanceFallsBackToTheBuiltInKind()
    {
        RegisterFixture f;
        Equipment lamp = makeItem(1, u"Luce"_s, EquipmentType::other, f.inDays(90));
        lamp.customTypeName = u"Faro"_s;
        f.types.deleteType(*f.types.getTypeByName(u"GAV"_s));
        const EquipmentRowMaker rows(f.types, f.almanac);
        QCOMPARE(rows.row(lamp).typeName, u"Faro"_s);
        QCOMPARE(rows.row(lamp).appearance, (TypeAppearance{u"questionmark.circle.fill"_s, NamedColor::secondary}));
        QCOMPARE(rows.row(makeItem(2, u"Jacket"_s, EquipmentType::bcd, f.inDays(91))).appearance,
                 (TypeAppearance{u"dive.bcd"_s, NamedColor::orange}));
    }

    void allRowsAreOfOneMoment()
    {
        RegisterFixture f;
        const Equipment item = makeItem(1, u"X"_s, EquipmentType::fins, f.inDays(40));
        const EquipmentRowMaker rows(f.types, f.almanac);
        f.clock.advance(std::chrono::hours(24));
        QCOMPARE(rows.row(item).remaining, u"40 giorni"_s);
        QCOMPARE(EquipmentRowMaker(f.types, f.almanac).row(item).remaining, u"39 giorni"_s);
    }
};

ABISSORA_TEST(tst_EquipmentRow);

#include "tst_EquipmentRow.moc"
