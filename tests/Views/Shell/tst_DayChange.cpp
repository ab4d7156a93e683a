// SPDX-License-Identifier: MIT
#include "DayWatch.h"
#include "Literals.h"
#include "OverviewParts.h"
#include "ShellFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;
using std::chrono::hours;

namespace {

/// The register of one item that has 31 days and some hours left, under the eyes of a watch, as in the program.
struct Running
{
    explicit Running(ContentView::Tab tab)
        : watch(f.equipment, f.clock, f.calendar)
        , s(f, tab)
    {
        QObject::connect(&watch, &DayWatch::dayChanged, &f.equipment, &EquipmentViewModel::refreshDates);
        f.console.clear();
    }

    [[nodiscard]] DueList& dueList() { return part<DueList>(s.window, u"dueList"_s); }

    /// A day goes by, asleep or awake.
    void passADay()
    {
        f.clock.advance(hours(24));
        watch.check();
        settle();
    }

    ShellFixture f{
        QList<Equipment>{makeItem(1, u"Muta"_s, EquipmentType::wetsuit, ShellFixture().inDays(31) + hours(11))}};
    DayWatch watch;
    ShownWindow s;
};

QString badge(ShownWindow& s)
{
    return s.sidebar().model()->index(2, 0).data(Qt::AccessibleTextRole).toString();
}

} // namespace

/// The day goes by while the program runs: everything that is counted from today reads right without a restart.
class tst_DayChange : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void overviewAndBadge()
    {
        Running r(ContentView::MaintenanceTab);
        QVERIFY(isShown(r.s.window, u"allInOrder"_s));
        QCOMPARE(badge(r.s), u"Manutenzione scaduta"_s);
        r.passADay();
        QCOMPARE(rowTexts(r.dueList()), QStringList(u"Muta, Scaduto da 30 giorni"_s));
        QCOMPARE(cardTexts(r.s.window), QStringList({u"Totale Articoli: 1"_s, u"Manutenzioni Scadute: 1"_s,
                                                     u"In Scadenza (30gg): 1"_s, u"In Regola: 0"_s}));
        QCOMPARE(badge(r.s), u"Manutenzione scaduta, 1"_s);
        r.passADay();
        QCOMPARE(rowTexts(r.dueList()), QStringList(u"Muta, Scaduto da 29 giorni"_s));
    }

    void statistics()
    {
        Running r(ContentView::StatisticsTab);
        QCOMPARE(cardTexts(r.s.window).at(4), u"In Regola: 1"_s);
        r.passADay();
        QCOMPARE(cardTexts(r.s.window).mid(2, 3),
                 QStringList({u"Manutenzioni Scadute: 1"_s, u"In Scadenza (30gg): 1"_s, u"In Regola: 0"_s}));
    }

    void listAndDetail()
    {
        Running r(ContentView::ListTab);
        r.s.window.content().setSelectedEquipment(r.f.equipment.equipment().first());
        settle();
        const auto remaining = [&r] { return r.s.table().model()->index(0, 3).data().toString(); };
        QVERIFY(remaining().contains("31 giorni"_L1));
        QVERIFY(!isShown(r.s.window, u"dueBadge"_s));
        r.passADay();
        QVERIFY(remaining().contains("SCADUTO!"_L1));
        QVERIFY(isShown(r.s.window, u"dueBadge"_s));
        QVERIFY(r.s.window.content().selectedEquipment().has_value());
    }

    /// Nothing while the day is the same; a hidden list reads its filter when it is shown, once.
    void theLogIsNotFlooded()
    {
        Running r(ContentView::MaintenanceTab);
        for (int minute = 0; minute < 600; ++minute) {
            r.f.clock.advance(std::chrono::minutes(1));
            r.watch.check();
            settle();
        }
        QCOMPARE(r.f.takeLog(), QStringList());
        r.passADay();
        r.passADay();
        QCOMPARE(r.f.takeLog().filter(u"FILTRO ATTIVO"_s).size(), 0);
        r.s.window.content().setSelectedTab(ContentView::ListTab);
        settle();
        QCOMPARE(r.f.takeLog().filter(u"FILTRO ATTIVO"_s).size(), 1);
    }
};

ABISSORA_TEST(tst_DayChange);

#include "tst_DayChange.moc"
