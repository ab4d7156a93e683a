// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "EquipmentTypeFormState.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace abissora::test;

class tst_EquipmentTypeFormState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewTypeStartsAsARegulator()
    {
        const EquipmentTypeFormState state;
        QCOMPARE(state.name, QString());
        QCOMPARE(state.selectedIcon, DivingIcons::regulator);
        QCOMPARE(state.selectedColor, AvailableColors::blue);
        QCOMPARE(state.serviceIntervalDays, 365);
    }

    void validNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("spaces") << QStringLiteral("   ") << false;
        QTest::newRow("tab and line break") << QStringLiteral("\t\r\n") << false;
        QTest::newRow("other spaces") << QStringLiteral(u"\u00a0\u2003\u2028") << false;
        QTest::newRow("one letter") << QStringLiteral(" a ") << true;
        QTest::newRow("a mark") << QStringLiteral("-") << true;
    }
    void validNames()
    {
        QFETCH(QString, name);
        EquipmentTypeFormState state;
        state.name = name;
        QTEST(state.isFormValid(), "valid");
    }

    void iconsOfAStoredType_data()
    {
        QTest::addColumn<QString>("icon");
        QTest::addColumn<DivingIcons>("selected");
        QTest::newRow("own picture") << QStringLiteral("dive.knife") << DivingIcons::diveKnife;
        QTest::newRow("symbol") << QStringLiteral("wrench.fill") << DivingIcons::service;
        QTest::newRow("unknown") << QStringLiteral("safari.fill") << DivingIcons::regulator;
        QTest::newRow("other letter case") << QStringLiteral("Dive.knife") << DivingIcons::regulator;
        QTest::newRow("empty") << QString() << DivingIcons::regulator;
    }
    void iconsOfAStoredType()
    {
        QFETCH(QString, icon);
        EquipmentTypeModel type = equipmentType(1, QStringLiteral("Boa"));
        type.icon = icon;
        QTEST(EquipmentTypeFormState::of(type).selectedIcon, "selected");
    }

    void coloursOfAStoredType_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<AvailableColors>("selected");
        for (const AvailableColors color : allCases<AvailableColors>())
            QTest::newRow(qPrintable(caseName(color))) << caseName(color) << color;
        QTest::newRow("shown all the same") << QStringLiteral("Teal") << AvailableColors::teal;
        QTest::newRow("a label") << QStringLiteral("Verde") << AvailableColors::blue;
        QTest::newRow("empty") << QString() << AvailableColors::blue;
    }
    void coloursOfAStoredType()
    {
        QFETCH(QString, color);
        EquipmentTypeModel type = equipmentType(1, QStringLiteral("Boa"));
        type.color = color;
        QTEST(EquipmentTypeFormState::of(type).selectedColor, "selected");
    }

    void savingActivatesAndKeepsTheRest()
    {
        EquipmentTypeModel type{SequentialIds::at(7),
                                QStringLiteral(" Boa "),
                                QStringLiteral("dive.reel"),
                                QStringLiteral("mint"),
                                -5,
                                true};
        QCOMPARE(EquipmentTypeFormState::of(type).toType(type.id), type);
        EquipmentTypeModel inactive = type;
        inactive.isActive = false;
        QCOMPARE(EquipmentTypeFormState::of(inactive).toType(type.id), type);
    }

    void savingReplacesWhatTheFormDoesNotOffer()
    {
        EquipmentTypeModel type = equipmentType(1, QStringLiteral("Boa"));
        type.icon = QStringLiteral("safari.fill");
        type.color = QStringLiteral("Verde Acqua");
        const EquipmentTypeModel saved = EquipmentTypeFormState::of(type).toType(type.id);
        QCOMPARE(saved.icon, QStringLiteral("dive.regulator"));
        QCOMPARE(saved.color, QStringLiteral("blue"));
    }
};

ABISSORA_TEST(tst_EquipmentTypeFormState);

#include "tst_EquipmentTypeFormState.moc"
