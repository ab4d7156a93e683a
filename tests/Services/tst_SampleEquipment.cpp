// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>
#include <QTimeZone>

using namespace abissora;
using test::at;

namespace {

QList<Equipment> samplesOf(Instant now, const char* zone = "Europe/Rome")
{
    test::TemporaryRegister files;
    files.clock.set(now);
    files.calendar = Calendar(QTimeZone(zone));
    return files.storageManager().loadEquipment();
}

QList<Equipment> samplesOf(const char* now, const char* zone = "Europe/Rome")
{
    return samplesOf(at(now), zone);
}

} // namespace

class tst_SampleEquipment : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void threeItems()
    {
        const QList<Equipment> samples = samplesOf("2026-06-15T10:00:00.250Z");
        QCOMPARE(samples.size(), 3);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(samples.at(i).id, test::SequentialIds::at(i + 1));

        const Equipment& regulator = samples.at(0);
        QCOMPARE(regulator.name, u"Erogatore Apeks XTX50"_s);
        QCOMPARE(regulator.displayTypeName(), u"Erogatore"_s);
        QCOMPARE(regulator.purchaseDate, at("2024-06-15T10:00:00.250Z"));
        QCOMPARE(regulator.lastServiceDate, at("2025-06-15T10:00:00.250Z"));
        QCOMPARE(regulator.nextServiceDate, at("2027-06-15T10:00:00.250Z"));

        const Equipment& bcd = samples.at(1);
        QCOMPARE(bcd.name, u"GAV Scubapro Hydros"_s);
        QCOMPARE(bcd.displayTypeName(), u"GAV"_s);
        QCOMPARE(bcd.purchaseDate, at("2025-06-15T10:00:00.250Z"));
        QCOMPARE(bcd.lastServiceDate, at("2025-12-15T11:00:00.250Z")); // noon on the wall, then as now
        QCOMPARE(bcd.nextServiceDate, at("2026-07-15T10:00:00.250Z"));

        const Equipment& computer = samples.at(2);
        QCOMPARE(computer.name, u"Computer Suunto EON Core"_s);
        QCOMPARE(computer.displayTypeName(), u"Computer Subacqueo"_s);
        QCOMPARE(computer.purchaseDate, at("2025-06-15T10:00:00.250Z"));
        QCOMPARE(computer.lastServiceDate, at("2026-05-15T10:00:00.250Z"));
        QCOMPARE(computer.nextServiceDate, at("2026-06-30T10:00:00.250Z"));

        for (const Equipment& sample : samples) {
            QVERIFY(sample.name.contains(sample.brand));
            QVERIFY(!sample.model.isEmpty() && !sample.serialNumber.isEmpty() && !sample.notes.isEmpty());
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

    void whateverTheClockSaysTheyCanBeStored_data()
    {
        QTest::addColumn<Instant>("now");
        QTest::newRow("first") << firstInstant;
        QTest::newRow("before the first") << firstInstant - std::chrono::days(3);
        QTest::newRow("a week before the last") << lastInstant - std::chrono::days(7);
        QTest::newRow("last") << lastInstant;
        QTest::newRow("after the last") << lastInstant + std::chrono::days(3);
    }

    void whateverTheClockSaysTheyCanBeStored()
    {
        QFETCH(Instant, now);
        for (const char* zone : {"Europe/Rome", "America/New_York", "Asia/Tokyo", "UTC"}) {
            const auto json = encode(samplesOf(now, zone));
            QVERIFY2(json, qPrintable(json ? QString() : json.error().description()));
        }
    }
};

ABISSORA_TEST(tst_SampleEquipment);
#include "tst_SampleEquipment.moc"
