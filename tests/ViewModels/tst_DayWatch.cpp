// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "DayWatch.h"
#include "TestRunner.h"

#include <QSignalSpy>
#include <QTest>

using namespace abissora;
using namespace abissora::test;
using std::chrono::hours;
using std::chrono::minutes;

namespace {

Equipment dueAt(int id, const char* next)
{
    Equipment item = equipment(id);
    item.nextServiceDate = at(next);
    return item;
}

/// The system's zone for as long as it lives.
class ZoneVariable
{
public:
    explicit ZoneVariable(const QByteArray& zone) { set(zone); }
    ~ZoneVariable() { set(m_before); }
    Q_DISABLE_COPY_MOVE(ZoneVariable)

    static void set(const QByteArray& zone) { qputenv("TZ", zone); }

private:
    QByteArray m_before = qgetenv("TZ");
};

} // namespace

class tst_DayWatch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void silentWhileNothingReadsDifferently()
    {
        Catalogue c({dueAt(1, "2026-07-20T13:00:00Z")});
        DayWatch watch(c.viewModel, c.clock, c.calendar);
        const QSignalSpy changed(&watch, &DayWatch::dayChanged);
        watch.check();
        for (int i = 0; i < 179; ++i) {
            c.clock.advance(minutes(1));
            watch.check();
        }
        QCOMPARE(changed.size(), 0);
    }

    void aCountStepsAtItsOwnTimeOfDay()
    {
        Catalogue c({dueAt(1, "2026-07-20T13:00:00Z")});
        DayWatch watch(c.viewModel, c.clock, c.calendar);
        const QSignalSpy changed(&watch, &DayWatch::dayChanged);
        c.clock.set(at("2026-06-15T13:00:00Z"));
        watch.check(); // still 35 days
        QCOMPARE(changed.size(), 0);
        c.clock.set(at("2026-06-15T13:00:01Z"));
        watch.check();
        QCOMPARE(changed.size(), 1);
        watch.check();
        QCOMPARE(changed.size(), 1);
    }

    void anOverdueCountStepsToo()
    {
        Catalogue c({dueAt(1, "2026-06-10T13:00:00Z")});
        DayWatch watch(c.viewModel, c.clock, c.calendar);
        const QSignalSpy changed(&watch, &DayWatch::dayChanged);
        c.clock.set(at("2026-06-15T12:59:59Z"));
        watch.check();
        QCOMPARE(changed.size(), 0);
        c.clock.set(at("2026-06-15T13:00:00Z"));
        watch.check();
        QCOMPARE(changed.size(), 1);
    }

    void midnightInTheUsersZone()
    {
        Catalogue c({});
        DayWatch watch(c.viewModel, c.clock, c.calendar);
        const QSignalSpy changed(&watch, &DayWatch::dayChanged);
        c.clock.set(at("2026-06-15T21:59:59Z"));
        watch.check();
        QCOMPARE(changed.size(), 0);
        c.clock.set(at("2026-06-15T22:00:00Z"));
        watch.check();
        QCOMPARE(changed.size(), 1);
    }

    void aClockThatIsSetBackOrASleepOfWeeks()
    {
        Catalogue c({dueAt(1, "2026-07-20T13:00:00Z")});
        DayWatch watch(c.viewModel, c.clock, c.calendar);
        const QSignalSpy changed(&watch, &DayWatch::dayChanged);
        c.clock.advance(hours(24 * 21));
        watch.check();
        QCOMPARE(changed.size(), 1);
        c.clock.advance(-hours(24 * 21));
        watch.check();
        QCOMPARE(changed.size(), 2);
    }

    /// Nothing keeps a zone: records are instants, and the calendar asks for the system's zone every time.
    void anotherZone()
    {
        const ZoneVariable zone("Europe/Rome");
        Catalogue c({});
        const Calendar system;
        DayWatch watch(c.viewModel, c.clock, system);
        const QSignalSpy changed(&watch, &DayWatch::dayChanged);
        ZoneVariable::set("America/New_York"); // the same day there
        watch.check();
        QCOMPARE(changed.size(), 1);
        watch.check();
        QCOMPARE(changed.size(), 1);
    }

    void itemsAddedMeanwhileAreWatched()
    {
        Catalogue c({});
        DayWatch watch(c.viewModel, c.clock, c.calendar);
        const QSignalSpy changed(&watch, &DayWatch::dayChanged);
        c.clock.advance(minutes(30));
        c.viewModel.addEquipment(dueAt(1, "2026-06-17T10:45:00Z"));
        watch.check();
        QCOMPARE(changed.size(), 0);
        c.clock.advance(minutes(30));
        watch.check();
        QCOMPARE(changed.size(), 1);
    }

    void theRegisterNotifiesAndSavesNothing()
    {
        Catalogue c({dueAt(1, "2026-07-15T10:30:00Z")});
        DayWatch watch(c.viewModel, c.clock, c.calendar);
        connect(&watch, &DayWatch::dayChanged, &c.viewModel, &EquipmentViewModel::refreshDates);
        const QSignalSpy changed(&c.viewModel, &EquipmentViewModel::changed);
        const QByteArray stored = c.content(registerFile);
        QCOMPARE(c.viewModel.overdueEquipment().size(), 1);
        c.clock.set(at("2026-06-14T10:00:00Z"));
        watch.check();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(c.viewModel.overdueEquipment().size(), 0);
        QCOMPARE(c.console.calls(), QStringList());
        QCOMPARE(c.content(registerFile), stored);
    }
};

ABISSORA_TEST(tst_DayWatch);
#include "tst_DayWatch.moc"
