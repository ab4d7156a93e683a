// SPDX-License-Identifier: MIT
#include "TestRunner.h"
#include "ZoneOffsets.h"

#include <QDateTime>
#include <QTest>

using namespace abissora;

namespace {

Instant utc(int year, int month, int day, int hour = 0)
{
    const QDateTime time(QDate(year, month, day), QTime(hour, 0), Qt::UTC);
    return Instant{std::chrono::milliseconds{time.toMSecsSinceEpoch()}};
}

} // namespace

class tst_ZoneOffsets : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithTheZone_data()
    {
        QTest::addColumn<QByteArray>("id");
        for (const char* id : {"Europe/Rome", "America/New_York", "America/Sao_Paulo", "Pacific/Apia", "Asia/Kathmandu",
                               "Africa/Casablanca", "Australia/Lord_Howe", "UTC", "UTC+05:30"})
            QTest::newRow(id) << QByteArray(id);
    }

    void agreesWithTheZone()
    {
        QFETCH(QByteArray, id);
        const QTimeZone zone(id);
        QVERIFY(zone.isValid());
        const ZoneOffsets offsets(zone);
        QCOMPARE(offsets.zone(), zone);
        for (Instant at = utc(1850, 1, 1); at < utc(2150, 1, 1); at += std::chrono::hours{24 * 3 + 5}) {
            const auto time = QDateTime::fromMSecsSinceEpoch(at.time_since_epoch().count(), Qt::UTC);
            QCOMPARE(offsets.at(at).count(), qint64{zone.offsetFromUtc(time)});
        }
        // To the millisecond at the changes themselves.
        for (const auto& change : zone.transitions(QDateTime(QDate(1960, 1, 1), QTime(0, 0), Qt::UTC),
                                                   QDateTime(QDate(2036, 1, 1), QTime(0, 0), Qt::UTC))) {
            const Instant at{std::chrono::milliseconds{change.atUtc.toMSecsSinceEpoch()}};
            const auto before = zone.offsetFromUtc(change.atUtc.addMSecs(-1));
            QCOMPARE(offsets.at(at).count(), qint64{change.offsetFromUtc});
            QCOMPARE(offsets.at(at - std::chrono::milliseconds{1}).count(), qint64{before});
        }
    }

    void anInvalidZoneIsUtc()
    {
        const ZoneOffsets offsets{QTimeZone()};
        QCOMPARE(offsets.at(utc(2026, 7, 1)).count(), 0);
        QVERIFY(offsets.zone().isValid());
    }

    void theSystemsZoneIsSharedAndFollowed()
    {
        const QByteArray before = qgetenv("TZ");
        qputenv("TZ", "Asia/Kathmandu");
        const auto kathmandu = ZoneOffsets::system();
        QCOMPARE(kathmandu->zone().id(), QByteArray("Asia/Kathmandu"));
        QCOMPARE(ZoneOffsets::system(), kathmandu);
        qputenv("TZ", "America/New_York");
        QCOMPARE(ZoneOffsets::system()->zone().id(), QByteArray("America/New_York"));
        qputenv("TZ", "Nowhere/Land");
        QCOMPARE(ZoneOffsets::system()->at(utc(2026, 7, 1)).count(), 0);
        qunsetenv("TZ");
        QVERIFY(ZoneOffsets::system()->zone().isValid());
        qputenv("TZ", before);
    }
};

ABISSORA_TEST(tst_ZoneOffsets);
#include "tst_ZoneOffsets.moc"
