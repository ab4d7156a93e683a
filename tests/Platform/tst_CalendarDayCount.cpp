// SPDX-License-Identifier: MIT
#include "CalendarParts.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QRandomGenerator>
#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

using Days = std::optional<std::int64_t>;

} // namespace

class tst_CalendarDayCount : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void countsDays_data()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<int>("days");
        const auto row = [](const char* name, const char* zone, const char* from, const char* to, int days) {
            QTest::newRow(name) << QString::fromLatin1(zone) << QString::fromLatin1(from) << QString::fromLatin1(to)
                                << days;
        };
        row("the same instant", "Europe/Rome", "2026-06-15T10:00:00Z", "2026-06-15T10:00:00Z", 0);
        row("36 hours ahead", "Europe/Rome", "2026-06-15T10:00:00Z", "2026-06-16T22:00:00Z", 1);
        row("1 hour past", "Europe/Rome", "2026-06-15T10:00:00Z", "2026-06-15T09:00:00Z", 0);
        row("3 days past", "Europe/Rome", "2026-06-15T10:00:00Z", "2026-06-12T10:00:00Z", -3);
        row("36 hours past", "Europe/Rome", "2026-06-15T10:00:00Z", "2026-06-13T22:00:00Z", -1);
        row("a millisecond short", "Europe/Rome", "2026-06-15T10:00:00Z", "2026-06-16T09:59:59.999Z", 0);
        row("across midnight", "Europe/Rome", "2026-06-15T21:00:00Z", "2026-06-16T05:00:00Z", 0);
        row("23 h across spring", "Europe/Rome", "2026-03-28T11:00:00Z", "2026-03-29T10:00:00Z", 1);
        row("22 h 59 across spring", "Europe/Rome", "2026-03-28T11:00:00Z", "2026-03-29T09:59:00Z", 0);
        row("24 h across autumn", "Europe/Rome", "2026-10-24T10:00:00Z", "2026-10-25T10:00:00Z", 0);
        row("25 h across autumn", "Europe/Rome", "2026-10-24T10:00:00Z", "2026-10-25T11:00:00Z", 1);
        row("23 h back across spring", "Europe/Rome", "2026-03-29T10:00:00Z", "2026-03-28T11:00:00Z", -1);
        row("24 h back across autumn", "Europe/Rome", "2026-10-25T11:00:00Z", "2026-10-24T11:00:00Z", 0);
        row("25 h back across autumn", "Europe/Rome", "2026-10-25T11:00:00Z", "2026-10-24T10:00:00Z", -1);
        row("to the second of two", "Europe/Rome", "2026-10-24T00:30:00Z", "2026-10-25T01:10:00Z", 1);
        row("from the second of two", "Europe/Rome", "2026-10-25T01:30:00Z", "2026-10-26T01:30:00Z", 1);
        row("into the gap", "Europe/Rome", "2026-03-28T01:30:00Z", "2026-03-29T01:30:00Z", 1);
        row("just before the gap", "Europe/Rome", "2026-03-28T01:30:00Z", "2026-03-29T01:29:59Z", 0);
        row("half a year", "Europe/Rome", "2026-01-15T11:00:00Z", "2026-07-15T10:00:00Z", 181);
        row("ten years", "Europe/Rome", "2026-06-15T10:00:00Z", "2036-06-15T10:00:00Z", 3653);
        row("far ahead", "Europe/Rome", "2026-06-15T10:00:00Z", "2126-06-15T10:00:00Z", 36524);
        row("far past", "Europe/Rome", "2026-06-15T10:00:00Z", "1926-06-15T11:00:00Z", -36525);
        row("the missing day", "Pacific/Apia", "2011-12-29T22:00:00Z", "2011-12-30T22:00:00Z", 2);
        row("the missing day, back", "Pacific/Apia", "2011-12-30T22:00:00Z", "2011-12-29T22:00:00Z", -2);
        row("midnight gap", "America/Sao_Paulo", "2018-11-03T03:30:00Z", "2018-11-04T03:30:00Z", 1);
        row("quarter-hour offset", "Asia/Kathmandu", "2026-06-15T18:15:00Z", "2026-06-17T18:14:59Z", 1);
        row("first to last day", "UTC", "0001-01-01T00:00:00Z", "9999-12-31T23:59:59Z", 3652058);
    }

    void countsDays()
    {
        QFETCH(QString, zone);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(int, days);
        QCOMPARE(in(zone).daysBetween(at(from), at(to)), Days(days));
    }

    void countsByItsDefinition_data()
    {
        QTest::addColumn<QString>("zone");
        for (const char* zone : {"Europe/Rome", "America/Sao_Paulo", "Pacific/Apia", "Australia/Lord_Howe",
                                 "Asia/Kathmandu", "Africa/Casablanca"})
            QTest::newRow(zone) << QString::fromLatin1(zone);
    }

    /// from + n days <= to < from + (n + 1) days, for instants around every clock change and far from them.
    void countsByItsDefinition()
    {
        QFETCH(QString, zone);
        const Calendar calendar = in(zone);
        QRandomGenerator random(20260615);
        const auto changes = calendar.zone().transitions(QDateTime(QDate(1995, 1, 1), QTime(0, 0), Qt::UTC),
                                                         QDateTime(QDate(2036, 1, 1), QTime(0, 0), Qt::UTC));
        const auto moment = [&]() -> Instant {
            constexpr qint64 day = 86'400'000;
            const qint64 begin = at(u"2010-01-01T00:00:00Z"_s).time_since_epoch().count();
            const bool near = !changes.isEmpty() && random.bounded(2) == 0;
            const qint64 base = near ? changes[random.bounded(changes.size())].atUtc.toMSecsSinceEpoch()
                                     : begin + random.bounded(7000) * day;
            return Instant{std::chrono::milliseconds{base + qint64{random.bounded(240)} * 900'000 - day}};
        };
        for (int i = 0; i < 20'000; ++i) {
            const Instant from = moment();
            const Instant to =
                random.bounded(2) == 0 ? moment() : from + std::chrono::minutes{random.bounded(-6000, 6000)};
            const auto days = calendar.daysBetween(from, to);
            QVERIFY(days.has_value());
            if (to >= from) {
                QVERIFY(*days >= 0);
                QVERIFY(*calendar.addDays(from, *days) <= to);
                QVERIFY(to < *calendar.addDays(from, *days + 1));
            } else {
                QVERIFY(*days <= 0);
                QVERIFY(*calendar.addDays(from, *days) >= to);
                QVERIFY(to > *calendar.addDays(from, *days - 1));
            }
        }
    }

    void countGrowsWithTheLaterInstant()
    {
        const Calendar rome = in(u"Europe/Rome"_s);
        for (const auto& start : {u"2026-03-28T01:30:00Z"_s, u"2026-10-24T00:30:00Z"_s, u"2026-10-25T01:30:00Z"_s}) {
            const Instant from = at(start);
            Days last;
            for (int minutes = -5 * 1440; minutes <= 5 * 1440; minutes += 5) {
                const auto days = rome.daysBetween(from, from + std::chrono::minutes{minutes});
                QVERIFY(days.has_value());
                QVERIFY(!last || *last <= *days);
                last = days;
            }
        }
    }
};

ABISSORA_TEST(tst_CalendarDayCount);
#include "tst_CalendarDayCount.moc"
