// SPDX-License-Identifier: MIT
#include "Equipment.h"
#include "Literals.h"
#include "Maintenance.h"
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
            u"Erogatore"_s,          u"GAV"_s,   u"Bombola"_s, u"Maschera"_s, u"Pinne"_s, u"Muta"_s, u"Muta Stagna"_s,
            u"Computer Subacqueo"_s, u"Altro"_s,
        };
        QCOMPARE(namesOf<EquipmentType>(), expected);
        QCOMPARE(rawValue(EquipmentType::regulator), u"Erogatore"_s);
        QCOMPARE(rawValue(EquipmentType::cylinder), u"Bombola"_s);
        QCOMPARE(rawValue(EquipmentType::drysuit), u"Muta Stagna"_s);
        QCOMPARE(rawValue(EquipmentType::other), u"Altro"_s);
    }

    void kindsOfMaintenance()
    {
        const QStringList expected{u"Manutenzione Annuale"_s, u"Riparazione"_s, u"Test"_s, u"Pulizia"_s, u"Altro"_s};
        QCOMPARE(namesOf<MaintenanceType>(), expected);
        QCOMPARE(rawValue(MaintenanceType::annual), u"Manutenzione Annuale"_s);
        QCOMPARE(rawValue(MaintenanceType::cleaning), u"Pulizia"_s);
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
        QTest::newRow("lower case") << u"erogatore"_s;
        QTest::newRow("upper case") << u"EROGATORE"_s;
        QTest::newRow("accent") << u"Èrogatore"_s;
        QTest::newRow("space before") << u" Erogatore"_s;
        QTest::newRow("space after") << u"Erogatore "_s;
        QTest::newRow("beginning only") << u"Erog"_s;
        QTest::newRow("other enumeration") << u"Riparazione"_s;
        QTest::newRow("a user's type") << u"Torcia"_s;
        QTest::newRow("case name") << u"regulator"_s;
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
