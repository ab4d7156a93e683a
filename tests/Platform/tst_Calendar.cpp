// SPDX-License-Identifier: MIT
#include "CalendarParts.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>
#include <limits>

using namespace abissora;
using namespace abissora::test;

namespace {

QString iso(std::optional<Instant> instant)
{
    if (!instant)
        return u"nothing"_s;
    return QDateTime::fromMSecsSinceEpoch(instant->time_since_epoch().count(), Qt::UTC).toString(Qt::ISODate);
}

QDateTime wall(const QString& text)
{
    return QDateTime::fromString(text, u"yyyy-MM-dd HH:mm"_s);
}

} // namespace

class tst_Calendar : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void localTimeToInstant_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("local");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* zone, const char* local, const char* expected) {
            QTest::addRow("%s %s", zone, local)
                << QString::fromLatin1(zone) << QString::fromLatin1(local) << QString::fromLatin1(expected);
        };
        row("Europe/Rome", "2026-01-15 12:00", "2026-01-15T11:00:00Z");
        row("Europe/Rome", "2026-07-15 12:00", "2026-07-15T10:00:00Z");
        row("Europe/Rome", "2026-03-29 01:59", "2026-03-29T00:59:00Z");
        row("Europe/Rome", "2026-03-29 02:00", "2026-03-29T01:00:00Z"); // skipped: 03:00
        row("Europe/Rome", "2026-03-29 02:30", "2026-03-29T01:30:00Z"); // skipped: 03:30
        row("Europe/Rome", "2026-03-29 03:00", "2026-03-29T01:00:00Z");
        row("Europe/Rome", "2026-10-25 01:59", "2026-10-24T23:59:00Z");
        row("Europe/Rome", "2026-10-25 02:00", "2026-10-25T00:00:00Z"); // twice: the first
        row("Europe/Rome", "2026-10-25 02:30", "2026-10-25T00:30:00Z"); // twice: the first
        row("Europe/Rome", "2026-10-25 03:00", "2026-10-25T02:00:00Z");
        row("Europe/Rome", "2060-07-15 12:00", "2060-07-15T10:00:00Z");
        row("America/New_York", "2026-03-08 02:30", "2026-03-08T07:30:00Z");
        row("America/New_York", "2026-11-01 01:30", "2026-11-01T05:30:00Z");
        row("America/Sao_Paulo", "2018-11-04 00:30", "2018-11-04T03:30:00Z"); // skipped: 01:30
        row("America/Sao_Paulo", "2018-02-17 23:30", "2018-02-18T01:30:00Z"); // twice: the first
        row("Pacific/Apia", "2011-12-29 12:00", "2011-12-29T22:00:00Z");
        row("Pacific/Apia", "2011-12-30 12:00", "2011-12-30T22:00:00Z"); // the day that never was: the 31st
        row("Pacific/Apia", "2011-12-31 12:00", "2011-12-30T22:00:00Z");
        row("Australia/Lord_Howe", "2026-10-04 02:15", "2026-10-03T15:45:00Z"); // half an hour skipped: 02:45
        row("Asia/Kathmandu", "2026-01-01 00:00", "2025-12-31T18:15:00Z");
        row("UTC", "2026-01-01 00:00", "2026-01-01T00:00:00Z");
    }

    void localTimeToInstant()
    {
        QFETCH(QString, zone);
        QFETCH(QString, local);
        QFETCH(QString, expected);
        QCOMPARE(iso(in(zone).instant(wall(local).date(), wall(local).time())), expected);
    }

    void noInstantOutsideTheCalendar()
    {
        const Calendar rome = in(u"Europe/Rome"_s);
        QVERIFY(!rome.instant(QDate(), QTime(1, 0)));
        QVERIFY(!rome.instant(QDate(2026, 2, 30), QTime(1, 0)));
        QVERIFY(!rome.instant(QDate(2026, 2, 1), QTime()));
        QVERIFY(!rome.instant(QDate(-1, 12, 31), QTime(1, 0)));
        QVERIFY(!rome.instant(QDate(10000, 1, 1), QTime(0, 0)));
        QVERIFY(rome.instant(QDate(1, 1, 1), QTime(0, 0)));
        QVERIFY(rome.instant(QDate(9999, 12, 31), QTime(23, 59, 59, 999)));
    }

    void instantToLocalTime()
    {
        const QDateTime local = in(u"Europe/Rome"_s).local(at(u"2026-12-31T23:30:00.250Z"_s));
        QCOMPARE(local.date(), QDate(2027, 1, 1));
        QCOMPARE(local.time(), QTime(0, 30, 0, 250));
    }

    void addsDays_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("from");
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const char* zone, const char* from, int days, const char* expected) {
            QTest::newRow(name) << QString::fromLatin1(zone) << QString::fromLatin1(from) << days
                                << QString::fromLatin1(expected);
        };
        row("plain", "Europe/Rome", "2026-06-15T10:00:00Z", 1, "2026-06-16T10:00:00Z");
        row("none", "Europe/Rome", "2026-06-15T10:00:00Z", 0, "2026-06-15T10:00:00Z");
        row("back", "Europe/Rome", "2026-03-01T10:00:00Z", -1, "2026-02-28T10:00:00Z");
        row("across spring", "Europe/Rome", "2026-03-28T11:00:00Z", 1, "2026-03-29T10:00:00Z");
        row("across autumn", "Europe/Rome", "2026-10-24T10:00:00Z", 1, "2026-10-25T11:00:00Z");
        row("into the gap", "Europe/Rome", "2026-03-28T01:30:00Z", 1, "2026-03-29T01:30:00Z");
        row("over the gap", "Europe/Rome", "2026-03-28T01:30:00Z", 2, "2026-03-30T00:30:00Z");
        row("back into the gap", "Europe/Rome", "2026-03-30T00:30:00Z", -1, "2026-03-29T01:30:00Z");
        row("into the overlap", "Europe/Rome", "2026-10-24T00:30:00Z", 1, "2026-10-25T00:30:00Z");
        row("none from the second of two", "Europe/Rome", "2026-10-25T01:30:00Z", 0, "2026-10-25T01:30:00Z");
        row("from the second of two", "Europe/Rome", "2026-10-25T01:30:00Z", 1, "2026-10-26T01:30:00Z");
        row("onto the missing day", "Pacific/Apia", "2011-12-29T22:00:00Z", 1, "2011-12-30T22:00:00Z");
        row("over the missing day", "Pacific/Apia", "2011-12-29T22:00:00Z", 2, "2011-12-30T22:00:00Z");
        row("years", "Europe/Rome", "2026-01-15T11:00:00Z", 36525, "2126-01-16T11:00:00Z");
        row("last day", "UTC", "9999-12-30T11:00:00Z", 1, "9999-12-31T11:00:00Z");
        row("beyond the last day", "UTC", "9999-12-31T11:00:00Z", 1, "nothing");
        row("before the first day", "UTC", "0001-01-01T11:00:00Z", -1, "nothing");
    }

    void addsDays()
    {
        QFETCH(QString, zone);
        QFETCH(QString, from);
        QFETCH(int, days);
        QFETCH(QString, expected);
        QCOMPARE(iso(in(zone).addDays(at(from), days)), expected);
    }

    void addsMonthsAndYears()
    {
        const Calendar rome = in(u"Europe/Rome"_s);
        const auto noon = [&](int year, int month, int day) {
            return *rome.instant(QDate(year, month, day), QTime(12, 0));
        };
        QCOMPARE(rome.addMonths(noon(2026, 3, 31), 1), noon(2026, 4, 30));
        QCOMPARE(rome.addMonths(noon(2026, 3, 31), -1), noon(2026, 2, 28));
        QCOMPARE(rome.addMonths(noon(2026, 1, 15), 12), noon(2027, 1, 15));
        QCOMPARE(rome.addMonths(noon(2026, 1, 15), 6), noon(2026, 7, 15)); // the clock change between
        QCOMPARE(rome.addMonths(noon(2026, 1, 15), 0), noon(2026, 1, 15));
        QCOMPARE(rome.addMonths(noon(2026, 1, 15), -13), noon(2024, 12, 15));
        QCOMPARE(rome.addYears(noon(2024, 2, 29), 1), noon(2025, 2, 28));
        QCOMPARE(rome.addYears(noon(2024, 2, 29), 4), noon(2028, 2, 29));
        QCOMPARE(rome.addYears(noon(2026, 5, 5), -1), noon(2025, 5, 5));
        QVERIFY(rome.addYears(noon(2026, 5, 5), 7973));
        QVERIFY(!rome.addYears(noon(2026, 5, 5), 7974));
        QVERIFY(!rome.addYears(noon(2026, 5, 5), -2026));
        QVERIFY(!rome.addMonths(noon(9999, 12, 31), 1));
    }

    void localTimesAreTheZones_data()
    {
        QTest::addColumn<QByteArray>("id");
        for (const char* id : {"Europe/Rome", "America/New_York", "America/Sao_Paulo", "Pacific/Apia", "Asia/Kathmandu",
                               "Africa/Casablanca", "Australia/Lord_Howe", "UTC", "UTC+05:30"})
            QTest::newRow(id) << QByteArray(id);
    }

    void localTimesAreTheZones()
    {
        QFETCH(QByteArray, id);
        const QTimeZone zone(id);
        const Calendar calendar(zone);
        QCOMPARE(calendar.zone(), zone);
        const auto check = [&](Instant instant) {
            const QDateTime local = calendar.local(instant);
            const Instant back = calendar.instant(local.date(), local.time()).value();
            QVERIFY(back <= instant); // the first of two occurrences
            const QDateTime again = calendar.local(back);
            QCOMPARE(again.date(), local.date());
            QCOMPARE(again.time(), local.time());
        };
        for (Instant day = at(u"1850-01-01T00:00:00Z"_s); day < at(u"2150-01-01T00:00:00Z"_s);
             day += std::chrono::hours{24 * 30 + 5})
            check(day);
        // To the millisecond at the changes themselves.
        for (const auto& change : zone.transitions(QDateTime(QDate(1960, 1, 1), QTime(0, 0), Qt::UTC),
                                                   QDateTime(QDate(2036, 1, 1), QTime(0, 0), Qt::UTC))) {
            const Instant instant{std::chrono::milliseconds{change.atUtc.toMSecsSinceEpoch()}};
            check(instant);
            check(instant - std::chrono::milliseconds{1});
        }
    }

    void hugeArgumentsGiveNothing()
    {
        const Calendar rome = in(u"Europe/Rome"_s);
        const Instant now = at(u"2026-06-15T10:00:00Z"_s);
        QVERIFY(!rome.addDays(now, std::numeric_limits<std::int64_t>::max()));
        QVERIFY(!rome.addDays(now, std::numeric_limits<std::int64_t>::min()));
        QVERIFY(!rome.addMonths(now, std::numeric_limits<int>::max()));
        QVERIFY(!rome.addMonths(now, std::numeric_limits<int>::min()));
        QVERIFY(!rome.addYears(now, std::numeric_limits<int>::max()));
        QVERIFY(!rome.addYears(now, std::numeric_limits<int>::min()));
        for (const Instant extreme : {Instant::max(), Instant::min()}) {
            QVERIFY(!rome.addDays(extreme, 0));
            QVERIFY(!rome.addMonths(extreme, 0));
            QVERIFY(!rome.daysBetween(now, extreme));
            QVERIFY(!rome.daysBetween(extreme, now));
        }
    }

    void followsTheSystemsZone()
    {
        const Calendar calendar;
        const QByteArray before = qgetenv("TZ");
        const Instant noon = at(u"2026-06-15T12:00:00Z"_s);
        qputenv("TZ", "Asia/Kathmandu");
        QCOMPARE(calendar.local(noon).time(), QTime(17, 45));
        qputenv("TZ", "Europe/Rome");
        QCOMPARE(calendar.local(noon).time(), QTime(14, 0));
        QCOMPARE(calendar.zone().id(), QByteArray("Europe/Rome"));
        qputenv("TZ", "Nowhere/Land");
        QCOMPARE(calendar.local(noon).time(), QTime(12, 0));
        qunsetenv("TZ");
        QVERIFY(calendar.zone().isValid());
        qputenv("TZ", before);
    }

    void anInvalidZoneIsUtc()
    {
        const Instant noon = at(u"2026-06-15T12:00:00Z"_s);
        QCOMPARE(Calendar(QTimeZone()).local(noon).time(), QTime(12, 0));
        QVERIFY(Calendar(QTimeZone()).zone().isValid());
    }
};

ABISSORA_TEST(tst_Calendar);
#include "tst_Calendar.moc"
