// SPDX-License-Identifier: MIT
#include "IoChecks.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace std::chrono_literals;

namespace {

const QString key = registerKey;
const QString backups = u"backups"_s;

/// A state that this clock cannot have kept.
QString putState(const test::TemporaryRegister& files, Instant kept)
{
    const QString name = stateName(kept, Occasion::deletedItem);
    files.write(backups + u'/' + name + u"/savedEquipment.json"_s, "of another time");
    return name;
}

QByteArray bytesOf(const EarlierState& state)
{
    QFile file(state.files.value(key));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

} // namespace

/// Whatever a clock said once, the states of now are named, kept and dropped by the clock of now.
class tst_WrongClock : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aStateThatIsAhead_data()
    {
        QTest::addColumn<Instant>("kept");
        QTest::newRow("of 2099") << test::at("2099-01-01T12:00:00Z");
        QTest::newRow("of two days ahead") << test::at("2026-06-17T10:00:00Z");
    }

    void aStateThatIsAhead()
    {
        QFETCH(Instant, kept);
        test::TemporaryRegister files;
        const QString ahead = putState(files, kept);
        change(files, 31);
        QCOMPARE(files.names(backups), (QStringList{u"20260615T100000.000Z-first-of-day"_s, ahead}));

        change(files, 25, Occasion::deletedItem);
        const QList<EarlierState> states = files.generations.list();
        QCOMPARE(states.size(), 21);
        QCOMPARE(states.at(0).name, ahead);
        QCOMPARE(bytesOf(states.at(1)), QByteArray::number(m_changes - 1));
        QCOMPARE(bytesOf(states.at(20)), QByteArray::number(m_changes - 20));
    }

    void equalBytesOfAnotherTimeAreNoReasonToKeepNothing()
    {
        test::TemporaryRegister files;
        putState(files, test::at("2099-01-01T12:00:00Z"));
        VERIFY_OK(files.preferences.setData(key, "of another time"));
        VERIFY_OK(files.preferences.setData(key, "2", Occasion::deletedItem));
        QCOMPARE(files.names(backups).size(), 2);
    }

    void aClockThatIsSetBackByYears()
    {
        test::TemporaryRegister files;
        for (int i = 0; i < 30; ++i) {
            change(files, 1, Occasion::deletedItem);
            files.clock.advance(24h);
        }
        const QStringList before = files.names(backups);
        QCOMPARE(before.size(), 29);

        files.clock.set(test::at("2020-01-01T10:00:00Z"));
        change(files, 30);
        QCOMPARE(files.names(backups), QStringList{u"20200101T100000.000Z-first-of-day"_s} + before);
        change(files, 10, Occasion::deletedItem);
        QCOMPARE(files.names(backups).size(), before.size() + 11);
        change(files, 20, Occasion::deletedItem);
        const QStringList after = files.names(backups);
        QCOMPARE(after.size(), before.size() + 20);
        QCOMPARE(after.last(before.size()), before);
    }

    void aClockThatIsAheadByTwoDaysForAWhile()
    {
        test::TemporaryRegister files;
        change(files, 5);
        files.clock.advance(48h);
        change(files, 5);
        files.clock.advance(-48h);
        const QStringList before = files.names(backups);
        QCOMPARE(before.size(), 2);
        change(files, 30);
        QCOMPARE(files.names(backups).size(), 3);
        for (int day = 1; day <= 5; ++day) {
            files.clock.advance(24h);
            change(files, 30);
            QCOMPARE(files.names(backups).size(), 3 + day);
        }
    }

    void aClockThatIsAheadOverMidnight()
    {
        test::TemporaryRegister files;
        files.clock.set(test::at("2026-06-15T21:50:00Z")); // 23:50 in Rome
        change(files, 2);
        files.clock.advance(20min);
        change(files, 2);
        files.clock.advance(-20min);
        QCOMPARE(files.names(backups).size(), 2);
        change(files, 5);
        QCOMPARE(files.names(backups).size(), 3);
        files.clock.set(test::at("2026-06-16T10:00:00Z"));
        change(files, 5);
        QCOMPARE(files.names(backups).size(), 4);
    }

    void whatIsAheadNoLongerCountsAgain()
    {
        test::TemporaryRegister files;
        putState(files, test::at("2026-06-17T09:00:00Z"));
        change(files, 2, Occasion::deletedItem);
        QCOMPARE(files.names(backups).constFirst(), u"20260615T100000.000Z-deleted-item"_s);
        files.clock.set(test::at("2026-06-16T10:00:00Z"));
        change(files, 1, Occasion::deletedItem);
        QCOMPARE(files.names(backups).constLast(), u"20260617T090000.001Z-deleted-item"_s);
    }

    void namesAreNewAtTheBoundToo()
    {
        test::TemporaryRegister files;
        putState(files, files.clock.now() + 24h);
        change(files, 1);
        for (int i = 0; i < 3; ++i)
            VERIFY_OK(files.preferences.setData(key, QByteArray::number(i), Occasion::deletedItem));
        QCOMPARE(files.names(backups).size(), 4);
        QCOMPARE(files.console.calls(), QStringList());
    }

    void manySavesKeepOneStateADay()
    {
        test::TemporaryRegister files;
        files.clock.set(test::at("2099-01-01T10:00:00Z"));
        change(files, 22, Occasion::deletedItem);
        const QStringList ahead = files.names(backups);
        QCOMPARE(ahead.size(), 20);
        files.clock.set(test::at("2026-06-01T10:00:00Z"));
        for (int day = 0; day < 70; ++day) {
            change(files, 2);
            files.clock.advance(24h);
        }
        QStringList expected{u"20260630T100000.000Z-first-of-day"_s}; // the last of its month, then those of 30 days
        for (Instant day = files.clock.now() - 30 * 24h; day < files.clock.now(); day += 24h)
            expected.append(stateName(day, Occasion::firstOfDay));
        QCOMPARE(files.names(backups), expected + ahead);
    }

private:
    void change(test::TemporaryRegister& files, int count, Occasion occasion = Occasion::change)
    {
        for (int i = 0; i < count; ++i)
            static_cast<void>(files.preferences.setData(key, QByteArray::number(++m_changes), occasion));
    }

    int m_changes = 0;
};

ABISSORA_TEST(tst_WrongClock);
#include "tst_WrongClock.moc"
