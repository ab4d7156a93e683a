// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "SampleEquipment.h"
#include "TestRunner.h"

#include <QTest>
#include <QTimeZone>

using namespace abissora;
using test::at;

namespace {

QList<Equipment> samplesOf(const char* now, const char* zone = "Europe/Rome")
{
    test::SequentialIds ids;
    return sampleEquipment(at(now), Calendar(QTimeZone(zone)), ids);
}

} // namespace

class tst_SampleEquipment : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void threeItems()
    {
        Equipment regulator;
        regulator.id = test::SequentialIds::at(1);
        regulator.name = u"Erogatore Apeks XTX50"_s;
        regulator.type = EquipmentType::regulator;
        regulator.brand = u"Apeks"_s;
        regulator.model = u"XTX50"_s;
        regulator.serialNumber = u"AP123456"_s;
        regulator.purchaseDate = at("2024-06-15T10:00:00.250Z");
        regulator.lastServiceDate = at("2025-06-15T10:00:00.250Z");
        regulator.nextServiceDate = at("2027-06-15T10:00:00.250Z");
        regulator.notes = u"Ottimo erogatore per acque fredde. Utilizzato per immersioni in Italia."_s;

        Equipment bcd;
        bcd.id = test::SequentialIds::at(2);
        bcd.name = u"GAV Scubapro Hydros"_s;
        bcd.type = EquipmentType::bcd;
        bcd.brand = u"Scubapro"_s;
        bcd.model = u"Hydros Pro"_s;
        bcd.serialNumber = u"SP789012"_s;
        bcd.purchaseDate = at("2025-06-15T10:00:00.250Z");
        bcd.lastServiceDate = at("2025-12-15T11:00:00.250Z"); // noon on the wall, then as now
        bcd.nextServiceDate = at("2026-07-15T10:00:00.250Z");
        bcd.notes = u"GAV leggero e confortevole. Perfetto per viaggi."_s;

        Equipment computer;
        computer.id = test::SequentialIds::at(3);
        computer.name = u"Computer Suunto EON Core"_s;
        computer.type = EquipmentType::computer;
        computer.brand = u"Suunto"_s;
        computer.model = u"EON Core"_s;
        computer.serialNumber = u"SU456789"_s;
        computer.purchaseDate = at("2025-06-15T10:00:00.250Z");
        computer.lastServiceDate = at("2026-05-15T10:00:00.250Z");
        computer.nextServiceDate = at("2026-06-30T10:00:00.250Z");
        computer.notes = u"Computer subacqueo con display a colori."_s;

        const QList<Equipment> samples = samplesOf("2026-06-15T10:00:00.250Z");
        QCOMPARE(samples.size(), 3);
        QCOMPARE(samples.at(0), regulator);
        QCOMPARE(samples.at(1), bcd);
        QCOMPARE(samples.at(2), computer);
        for (const Equipment& sample : samples) {
            QVERIFY(sample.isActive);
            QVERIFY(sample.maintenanceHistory.isEmpty());
            QVERIFY(!sample.customTypeName);
        }
    }

    void monthsOfDifferentLength()
    {
        const auto august = samplesOf("2026-08-31T10:00:00Z", "UTC");
        QCOMPARE(august.at(1).lastServiceDate, at("2026-02-28T10:00:00Z"));
        QCOMPARE(august.at(1).nextServiceDate, at("2026-09-30T10:00:00Z"));
        const auto leapDay = samplesOf("2028-02-29T10:00:00Z", "UTC");
        QCOMPARE(leapDay.at(0).purchaseDate, at("2026-02-28T10:00:00Z"));
        QCOMPARE(leapDay.at(0).nextServiceDate, at("2029-02-28T10:00:00Z"));
    }

    void fifteenDaysAreSeconds()
    {
        // The clocks go forward in between.
        QCOMPARE(samplesOf("2026-03-20T10:00:00Z").at(2).nextServiceDate, at("2026-04-04T10:00:00Z"));
    }

    void nowWhereTheCalendarEnds()
    {
        const auto last = samplesOf("9999-12-20T10:00:00Z", "UTC");
        QCOMPARE(last.at(0).nextServiceDate, at("9999-12-20T10:00:00Z"));
        QCOMPARE(last.at(0).lastServiceDate, at("9998-12-20T10:00:00Z"));
        QCOMPARE(last.at(1).nextServiceDate, at("9999-12-20T10:00:00Z"));
        const auto first = samplesOf("0001-03-20T10:00:00Z", "UTC");
        QCOMPARE(first.at(0).purchaseDate, at("0001-03-20T10:00:00Z"));
        QCOMPARE(first.at(2).lastServiceDate, at("0001-02-20T10:00:00Z"));
    }
};

ABISSORA_TEST(tst_SampleEquipment);
#include "tst_SampleEquipment.moc"
