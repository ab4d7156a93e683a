// SPDX-License-Identifier: MIT
#include "Builders.h"
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
        QTest::newRow("blue") << QStringLiteral("blue") << NamedColor::blue;
        QTest::newRow("brown") << QStringLiteral("brown") << NamedColor::brown;
        QTest::newRow("capital") << QStringLiteral("Blue") << NamedColor::blue;
        QTest::newRow("capitals") << QStringLiteral("BLUE") << NamedColor::blue;
        QTest::newRow("capital with an i") << QStringLiteral("MINT") << NamedColor::mint;
        QTest::newRow("mixed") << QStringLiteral("Teal") << NamedColor::teal;
        QTest::newRow("Italian") << QStringLiteral("Blu") << NamedColor::primary;
        QTest::newRow("Italian label") << QStringLiteral("Verde Acqua") << NamedColor::primary;
        QTest::newRow("space") << QStringLiteral("blue ") << NamedColor::primary;
        QTest::newRow("unknown") << QStringLiteral("magenta") << NamedColor::primary;
        QTest::newRow("no choice of the form") << QStringLiteral("primary") << NamedColor::primary;
        QTest::newRow("another colour") << QStringLiteral("secondary") << NamedColor::primary;
        QTest::newRow("empty") << QString() << NamedColor::primary;
    }

    void colour()
    {
        QFETCH(QString, word);
        EquipmentTypeModel type = test::equipmentType(1, QStringLiteral("Torcia"));
        type.color = word;
        QTEST(type.colorValue(), "color");
    }

    void equalOnlyInEveryField()
    {
        const EquipmentTypeModel type = test::equipmentType(1, QStringLiteral("Torcia"));
        QVERIFY(type == EquipmentTypeModel(type));
        QCOMPARE(qHash(type), qHash(EquipmentTypeModel(type)));

        QList<EquipmentTypeModel> others(6, type);
        others[0].id = test::SequentialIds::at(2);
        others[1].name = QStringLiteral("torcia");
        others[2].icon = QStringLiteral("dive.light");
        others[3].color = QStringLiteral("Gray");
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
