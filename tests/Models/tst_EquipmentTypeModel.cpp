// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QSet>
#include <QTest>

using namespace abissora;

class tst_EquipmentTypeModel : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void colour_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<NamedColor>("color");
        QTest::newRow("blue") << u"blue"_s << NamedColor::blue;
        QTest::newRow("brown") << u"brown"_s << NamedColor::brown;
        QTest::newRow("capital") << u"Blue"_s << NamedColor::blue;
        QTest::newRow("capitals") << u"BLUE"_s << NamedColor::blue;
        QTest::newRow("capital with an i") << u"MINT"_s << NamedColor::mint;
        QTest::newRow("mixed") << u"Teal"_s << NamedColor::teal;
        QTest::newRow("Italian") << u"Blu"_s << NamedColor::primary;
        QTest::newRow("Italian label") << u"Verde Acqua"_s << NamedColor::primary;
        QTest::newRow("space") << u"blue "_s << NamedColor::primary;
        QTest::newRow("unknown") << u"magenta"_s << NamedColor::primary;
        QTest::newRow("no choice of the form") << u"primary"_s << NamedColor::primary;
        QTest::newRow("another colour") << u"secondary"_s << NamedColor::primary;
        QTest::newRow("empty") << QString() << NamedColor::primary;
    }

    void colour()
    {
        QFETCH(QString, word);
        EquipmentTypeModel type = test::equipmentType(1, u"Torcia"_s);
        type.color = word;
        QTEST(type.colorValue(), "color");
    }

    void equalOnlyInEveryField()
    {
        const EquipmentTypeModel type = test::equipmentType(1, u"Torcia"_s);
        QVERIFY(type == EquipmentTypeModel(type));
        QCOMPARE(qHash(type), qHash(EquipmentTypeModel(type)));

        QList<EquipmentTypeModel> others(6, type);
        others[0].id = test::SequentialIds::at(2);
        others[1].name = u"torcia"_s;
        others[2].icon = u"dive.light"_s;
        others[3].color = u"Gray"_s;
        others[4].serviceIntervalDays = 181;
        others[5].isActive = false;
        QSet<EquipmentTypeModel> distinct{type};
        for (const EquipmentTypeModel& other : others) {
            QVERIFY(other != type);
            distinct.insert(other);
        }
        QCOMPARE(distinct.size(), 7);
        QVERIFY(distinct.contains(EquipmentTypeModel(type)));
    }
};

ABISSORA_TEST(tst_EquipmentTypeModel);
#include "tst_EquipmentTypeModel.moc"
