// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Retention.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const Instant now = test::at("2026-11-21T18:00:00Z");

/// One state every so many hours, newest first.
QList<SizedState> history(int count, std::chrono::hours apart, qint64 bytes = 1, Instant kept = now)
{
    QList<SizedState> states;
    for (int i = 0; i < count; ++i, kept -= apart) {
        EarlierState state;
        state.kept = kept;
        state.occasion = Occasion::deletedItem;
        state.name = stateName(kept, state.occasion);
        states.append({state, bytes});
    }
    return states;
}

const Calendar rome{QTimeZone("Europe/Rome")};

QStringList keptNames(const QList<SizedState>& states, const RetentionRules& rules = {})
{
    const QStringList expired = expiredStates(states, rome, now, rules);
    QStringList kept;
    for (const SizedState& sized : states) {
        if (!expired.contains(sized.state.name))
            kept.append(sized.state.name);
    }
    return kept;
}

} // namespace

class tst_Retention : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNewestTwentyStay()
    {
        const auto minutes = history(20, std::chrono::hours(0));
        QCOMPARE(expiredStates(minutes, rome, now), QStringList());
    }

    void ofOlderOnesTheLastOfEachDay()
    {
        // Of one every hour the newest 20, then the last of each of the 30 latest days, then the last of each month.
        const QList<SizedState> states = history(24 * 100, std::chrono::hours(1));
        const QStringList kept = keptNames(states);
        QVERIFY(kept.contains(states.at(19).state.name));
        QVERIFY(!kept.contains(states.at(21).state.name));
        // 18:00 UTC is 19:00 in Rome: the last one of the day before is of 23:00 there, 22:00 UTC.
        QVERIFY(kept.contains(u"20261120T220000.000Z-deleted-item"_s));
        QVERIFY(!kept.contains(u"20261119T210000.000Z-deleted-item"_s));
        QVERIFY(kept.contains(u"20261119T220000.000Z-deleted-item"_s));
        QVERIFY(kept.contains(u"20261023T210000.000Z-deleted-item"_s)); // the 30th day, still in summer time
        QVERIFY(!kept.contains(u"20261022T210000.000Z-deleted-item"_s));
        QVERIFY(kept.contains(u"20260930T210000.000Z-deleted-item"_s));
        QVERIFY(kept.contains(u"20260831T210000.000Z-deleted-item"_s));
        QCOMPARE(kept.size(), 20 + 29 + 2);
    }

    void daysWithoutChangesDoNotCount()
    {
        const QList<SizedState> states = history(60, std::chrono::hours(24 * 5));
        // 30 days with changes reach back 150 days; before that one a month.
        const QStringList kept = keptNames(states);
        QVERIFY(kept.contains(states.at(29).state.name));
        QCOMPARE(
            std::ranges::count_if(states.sliced(30), [&](const SizedState& s) { return kept.contains(s.state.name); }),
            5);
    }

    void monthsStayForEver()
    {
        const QList<SizedState> states = history(12 * 40, std::chrono::hours(24 * 31));
        QCOMPARE(keptNames(states).size(), states.size());
    }

    void theBoundDropsTheOldest()
    {
        const QList<SizedState> states = history(20, std::chrono::hours(1), 10);
        const QStringList kept = keptNames(states, {.bytes = 75});
        QCOMPARE(kept.size(), 7);
        QCOMPARE(kept.last(), states.at(6).state.name);
    }

    void threeStayHoweverLarge()
    {
        QCOMPARE(keptNames(history(20, std::chrono::hours(1), 1000), {.bytes = 75}).size(), 3);
    }

    void whatIsAheadTakesNoPlace()
    {
        const QList<SizedState> ahead = history(40, std::chrono::hours(1), 10, test::at("2099-01-31T20:00:00Z"));
        // Years of saves, three a day, each followed by a look at what expires.
        QList<SizedState> with = ahead;
        QList<SizedState> without;
        for (int day = 0; day < 400; ++day) {
            for (const int hour : {8, 12, 16}) {
                EarlierState state;
                state.kept = now + std::chrono::hours(24 * day + hour);
                state.name = stateName(state.kept, state.occasion);
                for (QList<SizedState>* all : {&with, &without}) {
                    all->append({state, 10});
                    std::ranges::sort(*all, std::greater(), [](const SizedState& s) { return s.state.kept; });
                    const QStringList expired = expiredStates(*all, rome, state.kept, {.bytes = 800});
                    all->removeIf([&](const SizedState& s) { return expired.contains(s.state.name); });
                }
            }
        }
        QVERIFY(without.size() > 20 + 20);
        QStringList names;
        for (const SizedState& sized : with)
            names.append(sized.state.name);
        QCOMPARE(names.first(21).last(), ahead.at(22).state.name); // among themselves by the same rules
        QCOMPARE(names.sliced(21), keptNames(without));
    }

    void whatCouldNotBeReadOrStoredStays()
    {
        QList<SizedState> states = history(100, std::chrono::hours(1), 1000);
        states[50].state.occasion = Occasion::unreadable;
        states[60].state.occasion = Occasion::emergency;
        const QStringList kept = keptNames(states, {.bytes = 1});
        QCOMPARE(kept.size(), 5);
        QVERIFY(kept.contains(states.at(50).state.name));
        QVERIFY(kept.contains(states.at(60).state.name));
    }
};

ABISSORA_TEST(tst_Retention);
#include "tst_Retention.moc"
