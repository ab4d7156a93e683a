// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>
#include <QTimeZone>

using namespace abissora;
using test::at;

class tst_Equipment : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void shownTypeName_data()
    {
        QTest::addColumn<EquipmentType>("type");
        QTest::addColumn<std::optional<QString>>("customTypeName");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("linked");
        using Name = std::optional<QString>;
        QTest::newRow("built-in") << EquipmentType::drysuit << Name() << u"Muta Stagna"_s << u"Muta Stagna"_s;
        QTest::newRow("empty") << EquipmentType::fins << Name(QString()) << u"Pinne"_s << QString();
        QTest::newRow("own type") << EquipmentType::fins << Name(u"Torcia"_s) << u"Torcia"_s << u"Torcia"_s;
        QTest::newRow("blank") << EquipmentType::fins << Name(u" "_s) << u" "_s << u" "_s;
    }

    void shownTypeName()
    {
        QFETCH(EquipmentType, type);
        QFETCH(std::optional<QString>, customTypeName);
        Equipment item = test::equipment(1);
        item.type = type;
        item.customTypeName = customTypeName;
        QTEST(item.displayTypeName(), "shown");
        QTEST(item.typeName(), "linked");
    }

    void daysUntilNextService_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QByteArray>("now");
        QTest::addColumn<QByteArray>("next");
        QTest::addColumn<qint64>("days");
        const auto row = [](const char* name, const char* zone, const char* now, const char* next, qint64 days) {
            QTest::newRow(name) << QByteArray(zone) << QByteArray(now) << QByteArray(next) << days;
        };
        const char* rome = "Europe/Rome";
        const char* now = "2026-06-15T10:00:00Z";
        row("36 hours ahead", rome, now, "2026-06-16T22:00:00Z", 1);
        row("1 hour past", rome, now, "2026-06-15T09:00:00Z", 0);
        row("23 hours past", rome, now, "2026-06-14T11:00:00Z", 0);
        row("3 days past", rome, now, "2026-06-12T10:00:00Z", -3);
        row("now", rome, now, now, 0);
        row("1 s short of a day", rome, now, "2026-06-16T09:59:59Z", 0);
        row("exactly 30 days", rome, now, "2026-07-15T10:00:00Z", 30);
        row("1 s short of 31 days", rome, now, "2026-07-16T09:59:59Z", 30);
        row("exactly 31 days", rome, now, "2026-07-16T10:00:00Z", 31);
        // The clocks go forward on 29 March, back on 25 October.
        row("23 hours in spring", rome, "2026-03-28T11:00:00Z", "2026-03-29T10:00:00Z", 1);
        row("23 hours in UTC", "UTC", "2026-03-28T11:00:00Z", "2026-03-29T10:00:00Z", 0);
        row("24 hours in autumn", rome, "2026-10-24T10:00:00Z", "2026-10-25T10:00:00Z", 0);
        row("25 hours in autumn", rome, "2026-10-24T10:00:00Z", "2026-10-25T11:00:00Z", 1);
        row("last day of the calendar", "UTC", now, "9999-12-31T23:30:00Z", 2'912'277);
        row("the year 10000 in Rome", rome, now, "9999-12-31T23:30:00Z", 2'912'277);
        row("the year 0 in New York", "America/New_York", now, "0001-01-01T00:30:00Z", -739'781);
    }

    void daysUntilNextService()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QByteArray, now);
        QFETCH(QByteArray, next);
        QFETCH(qint64, days);
        Equipment item = test::equipment(1);
        item.nextServiceDate = at(next.constData());
        QCOMPARE(qint64(item.daysUntilNextService(at(now.constData()), Calendar(QTimeZone(zone)))), days);
    }

    void noDaysBeyondTheCalendar()
    {
        Equipment item = test::equipment(1);
        item.nextServiceDate = lastInstant + std::chrono::milliseconds(1);
        QCOMPARE(qint64(item.daysUntilNextService(at("2026-06-15T10:00:00Z"), Calendar(QTimeZone::utc()))), 0);
    }

    void recordsAreValues()
    {
        const Equipment original = test::equipmentWith(1, {test::maintenance(2)});
        Equipment copy = original;
        QVERIFY(copy == original);
        copy.maintenanceHistory[0].cost = 1;
        QVERIFY(copy != original);
        QCOMPARE(original.maintenanceHistory.at(0).cost, 120.5);
    }
};

ABISSORA_TEST(tst_Equipment);
#include "tst_Equipment.moc"
