// SPDX-License-Identifier: MIT
#include "EquipmentType.h"
#include "MaintenanceType.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

template <typename Case>
QStringList namesOf()
{
    QStringList names;
    for (const Case value : allCases<Case>())
        names.append(rawValue(value));
    return names;
}

} // namespace

class tst_RawValues : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void kindsOfEquipment()
    {
        const QStringList expected{
            QStringLiteral("Erogatore"),   QStringLiteral("GAV"),
            QStringLiteral("Bombola"),     QStringLiteral("Maschera"),
            QStringLiteral("Pinne"),       QStringLiteral("Muta"),
            QStringLiteral("Muta Stagna"), QStringLiteral("Computer Subacqueo"),
            QStringLiteral("Altro"),
        };
        QCOMPARE(namesOf<EquipmentType>(), expected);
        QCOMPARE(rawValue(EquipmentType::regulator), QStringLiteral("Erogatore"));
        QCOMPARE(rawValue(EquipmentType::cylinder), QStringLiteral("Bombola"));
        QCOMPARE(rawValue(EquipmentType::drysuit), QStringLiteral("Muta Stagna"));
        QCOMPARE(rawValue(EquipmentType::other), QStringLiteral("Altro"));
    }

    void kindsOfMaintenance()
    {
        const QStringList expected{QStringLiteral("Manutenzione Annuale"), QStringLiteral("Riparazione"),
                                   QStringLiteral("Test"), QStringLiteral("Pulizia"), QStringLiteral("Altro")};
        QCOMPARE(namesOf<MaintenanceType>(), expected);
        QCOMPARE(rawValue(MaintenanceType::annual), QStringLiteral("Manutenzione Annuale"));
        QCOMPARE(rawValue(MaintenanceType::cleaning), QStringLiteral("Pulizia"));
    }

    void everyRawValueLeadsBack()
    {
        for (const auto type : allCases<EquipmentType>())
            QVERIFY(fromRawValue<EquipmentType>(rawValue(type)) == type);
        for (const auto type : allCases<MaintenanceType>())
            QVERIFY(fromRawValue<MaintenanceType>(rawValue(type)) == type);
    }

    void onlyTheExactTextCounts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("lower case") << QStringLiteral("erogatore");
        QTest::newRow("upper case") << QStringLiteral("EROGATORE");
        QTest::newRow("accent") << QStringLiteral("Èrogatore");
        QTest::newRow("space before") << QStringLiteral(" Erogatore");
        QTest::newRow("space after") << QStringLiteral("Erogatore ");
        QTest::newRow("beginning only") << QStringLiteral("Erog");
        QTest::newRow("other enumeration") << QStringLiteral("Riparazione");
        QTest::newRow("a user's type") << QStringLiteral("Torcia");
        QTest::newRow("case name") << QStringLiteral("regulator");
        QTest::newRow("empty") << QString();
    }

    void onlyTheExactTextCounts()
    {
        QFETCH(QString, text);
        QVERIFY(!fromRawValue<EquipmentType>(text));
    }
};

ABISSORA_TEST(tst_RawValues);
#include "tst_RawValues.moc"
