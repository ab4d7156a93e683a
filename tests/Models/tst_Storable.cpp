// SPDX-License-Identifier: MIT
#include "Storable.h"

#include "Builders.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QTest>
#include <bit>
#include <cmath>
#include <limits>

using namespace abissora;

namespace {

constexpr std::chrono::milliseconds moment{1};
constexpr double infinity = std::numeric_limits<double>::infinity();

Equipment withRecord(const Maintenance& record)
{
    return test::equipmentWith(1, {test::maintenance(2), record});
}

} // namespace

class tst_Storable : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void instants_data()
    {
        QTest::addColumn<Instant>("given");
        QTest::addColumn<Instant>("expected");
        QTest::newRow("usual") << test::at("2026-06-15T10:00:00.123Z") << test::at("2026-06-15T10:00:00.123Z");
        QTest::newRow("first") << firstInstant << firstInstant;
        QTest::newRow("before the first") << firstInstant - moment << firstInstant;
        QTest::newRow("least") << Instant::min() << firstInstant;
        QTest::newRow("last") << lastInstant << lastInstant;
        QTest::newRow("after the last") << lastInstant + moment << lastInstant;
        QTest::newRow("most") << Instant::max() << lastInstant;
    }

    /// In each field of an item and of its records.
    void instants()
    {
        QFETCH(Instant, given);
        QFETCH(Instant, expected);
        for (const auto field : {&Equipment::purchaseDate, &Equipment::lastServiceDate, &Equipment::nextServiceDate}) {
            Equipment item = withRecord(test::maintenance(3));
            Equipment settled = item;
            item.*field = given;
            settled.*field = expected;
            QCOMPARE(storable(item), settled);
            QVERIFY(encode({storable(item)}));
        }
        for (const auto field : {&Maintenance::date, &Maintenance::nextServiceDate}) {
            Maintenance record = test::maintenance(3);
            Maintenance settled = record;
            record.*field = given;
            settled.*field = expected;
            QCOMPARE(storable(record), settled);
            QCOMPARE(storable(withRecord(record)), withRecord(settled));
            QVERIFY(encode({storable(withRecord(record))}));
        }
    }

    void costs_data()
    {
        QTest::addColumn<double>("given");
        QTest::addColumn<double>("expected");
        QTest::newRow("usual") << 45.5 << 45.5;
        QTest::newRow("negative zero") << -0.0 << -0.0;
        QTest::newRow("largest") << std::numeric_limits<double>::max() << std::numeric_limits<double>::max();
        QTest::newRow("infinite") << infinity << 0.0;
        QTest::newRow("negatively infinite") << -infinity << 0.0;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0.0;
    }

    void costs()
    {
        QFETCH(double, given);
        QFETCH(double, expected);
        Maintenance record = test::maintenance(3);
        record.cost = given;
        QCOMPARE(std::bit_cast<std::uint64_t>(storable(record).cost), std::bit_cast<std::uint64_t>(expected));
        const Equipment item = storable(withRecord(record));
        QCOMPARE(std::bit_cast<std::uint64_t>(item.maintenanceHistory.at(1).cost),
                 std::bit_cast<std::uint64_t>(expected));
        QVERIFY(encode({item}));
    }

    void theArgumentStaysAsItIs()
    {
        Maintenance record = test::maintenance(3);
        record.cost = infinity;
        const Equipment item = withRecord(record);
        const Equipment copy = item; // shares the history, NOLINT(performance-unnecessary-copy-initialization)
        QVERIFY(storable(copy) != item);
        QCOMPARE(item.maintenanceHistory.at(1).cost, infinity);
    }

    void whatIsStorableStaysAsItIs()
    {
        Maintenance record = test::maintenance(3);
        record.isCompleted = true;
        record.receiptFileName = u"R.pdf"_s;
        Equipment item = withRecord(record);
        item.customTypeName = u"Torcia"_s;
        item.isActive = false;
        QCOMPARE(storable(record), record);
        QCOMPARE(storable(item), item);
    }
};

ABISSORA_TEST(tst_Storable);
#include "tst_Storable.moc"
