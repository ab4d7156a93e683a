// SPDX-License-Identifier: MIT
#include "CalendarParts.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QRandomGenerator>
#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr auto zones = {"Europe/Rome",        "America/New_York",  "Asia/Tokyo",
                        "Pacific/Kiritimati", "Pacific/Pago_Pago", "UTC"};

QString isoWithMs(std::optional<Instant> instant)
{
    if (!instant)
        return u"nothing"_s;
    return QDateTime::fromMSecsSinceEpoch(instant->time_since_epoch().count(), Qt::UTC).toString(Qt::ISODateWithMs);
}

QDateTime wallWithMs(const QString& text)
{
    return QDateTime::fromString(text, u"yyyy-MM-dd HH:mm:ss.zzz"_s);
}

bool isStorable(Instant instant)
{
    const int year = QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC).date().year();
    return year >= 1 && year <= 9999;
}

} // namespace

class tst_CalendarLimits : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theEnds()
    {
        QCOMPARE(firstInstant, at(u"0001-01-01T00:00:00.000Z"_s));
        QCOMPARE(lastInstant, at(u"9999-12-31T23:59:59.999Z"_s));
        QVERIFY(isStorable(firstInstant) && !isStorable(firstInstant - std::chrono::milliseconds{1}));
        QVERIFY(isStorable(lastInstant) && !isStorable(lastInstant + std::chrono::milliseconds{1}));
    }

    void localTimes_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("instant");
        QTest::addColumn<QString>("local");
        const auto row = [](const char* zone, const char* instant, const char* local) {
            QTest::addRow("%s %s", zone, instant)
                << QByteArray(zone) << QString::fromLatin1(instant) << QString::fromLatin1(local);
        };
        const char* first = "0001-01-01T00:00:00.000Z";
        const char* last = "9999-12-31T23:59:59.999Z";
        row("Europe/Rome", first, "0001-01-01 00:49:56.000");
        row("Europe/Rome", last, "9999-12-31 23:59:59.999"); // as in UTC
        row("Europe/Rome", "9999-12-31T23:00:00.000Z", "9999-12-31 23:00:00.000");
        row("Europe/Rome", "9999-12-31T22:59:59.999Z", "9999-12-31 23:59:59.999");
        row("America/New_York", first, "0001-01-01 00:00:00.000"); // as in UTC
        row("America/New_York", "0001-01-01T04:56:01.999Z", "0001-01-01 04:56:01.999");
        row("America/New_York", "0001-01-01T04:56:02.000Z", "0001-01-01 00:00:00.000");
        row("America/New_York", last, "9999-12-31 18:59:59.999");
        row("Asia/Tokyo", first, "0001-01-01 09:18:59.000");
        row("Asia/Tokyo", last, "9999-12-31 23:59:59.999");          // as in UTC
        row("Pacific/Kiritimati", first, "0001-01-01 00:00:00.000"); // as in UTC, at both ends
        row("Pacific/Kiritimati", "0001-01-01T10:29:20.000Z", "0001-01-01 00:00:00.000");
        row("Pacific/Kiritimati", "9999-12-31T09:59:59.999Z", "9999-12-31 23:59:59.999");
        row("Pacific/Kiritimati", "9999-12-31T10:00:00.000Z", "9999-12-31 10:00:00.000");
        row("Pacific/Kiritimati", last, "9999-12-31 23:59:59.999");
        row("Pacific/Pago_Pago", first, "0001-01-01 12:37:12.000");
        row("Pacific/Pago_Pago", last, "9999-12-31 12:59:59.999");
        row("UTC", first, "0001-01-01 00:00:00.000");
        row("UTC", last, "9999-12-31 23:59:59.999");
    }

    void localTimes()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QString, instant);
        QFETCH(QString, local);
        const QDateTime shown = in(zone).local(at(instant));
        QCOMPARE(shown.date(), wallWithMs(local).date());
        QCOMPARE(shown.time(), wallWithMs(local).time());
        QCOMPARE(shown.toMSecsSinceEpoch(), at(instant).time_since_epoch().count());
    }

    void daysAtTheEnds_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("local");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* zone, const char* local, const char* expected) {
            QTest::addRow("%s %s", zone, local)
                << QByteArray(zone) << QString::fromLatin1(local) << QString::fromLatin1(expected);
        };
        const char* first = "0001-01-01T00:00:00.000Z";
        const char* last = "9999-12-31T23:59:59.999Z";
        row("Europe/Rome", "0001-01-01 00:00:00.000", first);
        row("Europe/Rome", "0001-01-01 00:49:55.999", first);
        row("Europe/Rome", "0001-01-01 00:49:56.001", "0001-01-01T00:00:00.001Z");
        row("Europe/Rome", "9999-12-31 23:59:59.999", "9999-12-31T22:59:59.999Z");
        row("America/New_York", "0001-01-01 00:00:00.000", "0001-01-01T04:56:02.000Z");
        row("America/New_York", "9999-12-31 18:59:59.998", "9999-12-31T23:59:59.998Z");
        row("America/New_York", "9999-12-31 19:00:00.000", last);
        row("America/New_York", "9999-12-31 23:59:59.999", last);
        row("Asia/Tokyo", "0001-01-01 09:00:00.000", first);
        row("Asia/Tokyo", "0001-01-01 23:59:59.999", "0001-01-01T14:41:00.999Z");
        row("Asia/Tokyo", "9999-12-31 23:59:59.999", "9999-12-31T14:59:59.999Z");
        row("Pacific/Kiritimati", "0001-01-01 00:00:00.000", "0001-01-01T10:29:20.000Z");
        row("Pacific/Kiritimati", "9999-12-31 23:59:59.999", "9999-12-31T09:59:59.999Z");
        row("Pacific/Pago_Pago", "0001-01-01 12:37:11.999", first);
        row("Pacific/Pago_Pago", "0001-01-01 12:37:12.001", "0001-01-01T00:00:00.001Z");
        row("Pacific/Pago_Pago", "9999-12-31 12:59:59.998", "9999-12-31T23:59:59.998Z");
        row("Pacific/Pago_Pago", "9999-12-31 13:00:00.000", last);
        row("UTC", "0001-01-01 00:00:00.000", first);
        row("UTC", "9999-12-31 23:59:59.999", last);
        // A whole day away from UTC nothing of the day is left.
        row("FAR24", "9999-12-30 23:59:59.999", last);
        row("FAR24", "9999-12-31 00:00:00.000", "nothing");
        row("FAR24:30", "9999-12-30 23:59:59.999", last);
        row("FAR24:30", "9999-12-31 23:59:59.999", "nothing");
        row("FAR-24", "0001-01-02 00:00:00.000", first);
        row("FAR-24", "0001-01-01 23:59:59.999", "nothing");
    }

    void daysAtTheEnds()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QString, local);
        QFETCH(QString, expected);
        const Calendar calendar = in(zone);
        QCOMPARE(calendar.zone().id(), zone);
        const auto instant = calendar.instant(wallWithMs(local).date(), wallWithMs(local).time());
        QCOMPARE(isoWithMs(instant), expected);
        if (instant)
            QCOMPARE(calendar.local(*instant).date(), wallWithMs(local).date());
    }

    void sums_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("from");
        QTest::addColumn<int>("days");
        QTest::addColumn<int>("months");
        QTest::addColumn<int>("years");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* zone, const char* from, int days, int months, int years, const char* expected) {
            QTest::addRow("%s %s %+d %+d %+d", zone, from, days, months, years)
                << QByteArray(zone) << QString::fromLatin1(from) << days << months << years
                << QString::fromLatin1(expected);
        };
        const char* first = "0001-01-01T00:00:00.000Z";
        const char* last = "9999-12-31T23:59:59.999Z";
        // Local years are not enough: eight in the evening of the last day is the year 10000 in UTC.
        row("America/New_York", "9999-12-30T23:00:00.000Z", 1, 0, 0, "9999-12-31T23:00:00.000Z");
        row("America/New_York", "9999-12-31T01:00:00.000Z", 1, 0, 0, "nothing");
        row("America/New_York", "9999-11-01T00:00:00.000Z", 0, 2, 0, "nothing");
        row("America/New_York", "9999-11-01T00:00:00.000Z", 0, 1, 0, "9999-12-01T01:00:00.000Z");
        row("America/New_York", "9999-01-01T01:00:00.000Z", 0, 0, 1, "nothing");
        row("Europe/Rome", "0001-01-02T00:00:00.000Z", -1, 0, 0, first);
        row("Europe/Rome", "0001-01-01T23:20:00.000Z", -1, 0, 0, "nothing");
        row("Europe/Rome", "0001-01-31T23:20:00.000Z", 0, -1, 0, "nothing");
        row("Europe/Rome", "0001-12-31T23:20:00.000Z", 0, 0, -1, "nothing");
        row("Asia/Tokyo", "0001-01-01T19:41:01.000Z", -1, 0, 0, "nothing");
        row("Pacific/Pago_Pago", "9999-12-31T01:00:00.000Z", 1, 0, 0, "nothing");
        row("Pacific/Pago_Pago", "0001-01-01T23:00:00.000Z", -1, 0, 0, "nothing");
        // Nor are the years in UTC.
        row("Europe/Rome", "9999-12-30T23:30:00.000Z", 1, 0, 0, "nothing");
        row("Pacific/Kiritimati", "0001-01-02T10:00:00.000Z", -1, 0, 0, "nothing");
        row("Pacific/Kiritimati", "9999-12-30T10:00:00.000Z", 1, 0, 0, "nothing");
        // From where the local time is that of UTC.
        row("Europe/Rome", last, 0, 0, 0, last);
        row("Europe/Rome", last, 1, 0, 0, "nothing");
        row("Europe/Rome", last, -1, 0, 0, "9999-12-30T22:59:59.999Z");
        row("Europe/Rome", last, 0, -1, 0, "9999-11-30T22:59:59.999Z");
        row("Europe/Rome", last, 0, 0, -1, "9998-12-31T22:59:59.999Z");
        row("America/New_York", first, 1, 0, 0, "0001-01-02T04:56:02.000Z");
        row("America/New_York", first, -1, 0, 0, "nothing");
        row("Pacific/Kiritimati", first, 0, 1, 0, "0001-02-01T10:29:20.000Z");
    }

    void sums()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QString, from);
        QFETCH(int, days);
        QFETCH(int, months);
        QFETCH(int, years);
        QFETCH(QString, expected);
        const Calendar calendar = in(zone);
        if (months == 0 && years == 0)
            QCOMPARE(isoWithMs(calendar.addDays(at(from), days)), expected);
        if (days == 0 && years == 0)
            QCOMPARE(isoWithMs(calendar.addMonths(at(from), months)), expected);
        if (days == 0 && months == 0)
            QCOMPARE(isoWithMs(calendar.addYears(at(from), years)), expected);
    }

    void dayCounts_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<qint64>("toFirst");
        QTest::addColumn<qint64>("toLast");
        // From 15 June 2026, but from the midnight after it in Kiritimati, from the evening before in Pago Pago.
        QTest::newRow("Europe/Rome") << QByteArray("Europe/Rome") << qint64{-739'781} << qint64{2'912'277};
        QTest::newRow("America/New_York") << QByteArray("America/New_York") << qint64{-739'781} << qint64{2'912'277};
        QTest::newRow("Asia/Tokyo") << QByteArray("Asia/Tokyo") << qint64{-739'781} << qint64{2'912'277};
        QTest::newRow("Pacific/Kiritimati")
            << QByteArray("Pacific/Kiritimati") << qint64{-739'782} << qint64{2'912'276};
        QTest::newRow("Pacific/Pago_Pago") << QByteArray("Pacific/Pago_Pago") << qint64{-739'780} << qint64{2'912'277};
        QTest::newRow("UTC") << QByteArray("UTC") << qint64{-739'781} << qint64{2'912'277};
    }

    void dayCounts()
    {
        QFETCH(QByteArray, zone);
        QFETCH(qint64, toFirst);
        QFETCH(qint64, toLast);
        const Calendar calendar = in(zone);
        const Instant now = at(u"2026-06-15T10:00:00.000Z"_s);
        QCOMPARE(qint64{calendar.daysBetween(now, firstInstant).value()}, toFirst);
        QCOMPARE(qint64{calendar.daysBetween(now, lastInstant).value()}, toLast);
        QVERIFY(!calendar.daysBetween(now, firstInstant - std::chrono::milliseconds{1}));
        QVERIFY(!calendar.daysBetween(now, lastInstant + std::chrono::milliseconds{1}));
        QVERIFY(!calendar.daysBetween(lastInstant + std::chrono::milliseconds{1}, now));
    }

    void atTheEndsAsAnywhere_data()
    {
        QTest::addColumn<QByteArray>("zone");
        for (const char* zone : zones)
            QTest::newRow(zone) << QByteArray(zone);
    }

    /// Whatever the calendar gives around its ends can be stored and lies on the day that was asked for, and the day
    /// counts are those of their definition.
    void atTheEndsAsAnywhere()
    {
        QFETCH(QByteArray, zone);
        const Calendar calendar = in(zone);
        QRandomGenerator random(31129999);
        const auto moment = [&] {
            const std::chrono::milliseconds away{qint64{random.bounded(4 * 86'400)} * 1000 + random.bounded(1000)};
            return random.bounded(2) == 0 ? firstInstant + away : lastInstant - away;
        };
        for (int i = 0; i < 5'000; ++i) {
            const Instant from = moment();
            const Instant to = moment();
            const QDate day = calendar.local(from).date();
            QVERIFY(day >= QDate(1, 1, 1) && day <= QDate(9999, 12, 31));
            const auto sameDay = calendar.instant(day, QTime::fromMSecsSinceStartOfDay(random.bounded(86'400'000)));
            QVERIFY(sameDay && isStorable(*sameDay));
            QCOMPARE(calendar.local(*sameDay).date(), day);

            const int step = random.bounded(-4, 5);
            if (const auto moved = calendar.addDays(from, step)) {
                QVERIFY(isStorable(*moved));
                QCOMPARE(calendar.local(*moved).date(), day.addDays(step));
            }
            const auto days = calendar.daysBetween(from, to);
            QVERIFY(days.has_value());
            const int direction = to < from ? -1 : 1;
            const auto reached = calendar.addDays(from, *days);
            const auto beyond = calendar.addDays(from, *days + direction);
            QVERIFY(*days * direction >= 0);
            QVERIFY(reached && (to < from ? *reached >= to : *reached <= to));
            QVERIFY(!beyond || (to < from ? *beyond < to : *beyond > to));
        }
    }
};

ABISSORA_TEST(tst_CalendarLimits);
#include "tst_CalendarLimits.moc"
