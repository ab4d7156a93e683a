// SPDX-License-Identifier: MIT
#include "DayWatch.h"
#include "EquipmentTableView.h"
#include "OverviewParts.h"
#include "SidebarView.h"
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

    /// A day goes by, asleep or awake.
    void passADay()
    {
        f.clock.advance(hours(24));
        watch.check();
        settleLayouts();
    }

    ScreenFixture f{QList<Equipment>{
        makeItem(1, QStringLiteral("Muta"), EquipmentType::wetsuit, ScreenFixture().inDays(31) + hours(11))}};
    DayWatch watch;
    ShownTab s;
};

QString badge(QWidget& window)
{
    return window.findChild<SidebarView*>()->model()->index(2, 0).data(Qt::AccessibleTextRole).toString();
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
        QVERIFY(isShown(r.s.window, QStringLiteral("allInOrder")));
        QCOMPARE(badge(r.s.window), QStringLiteral("Manutenzione scaduta"));
        r.passADay();
        QCOMPARE(rowTexts(r.s.dueList()), QStringList(QStringLiteral("Muta, Scaduto da 30 giorni")));
        QCOMPARE(cardTexts(r.s.window),
                 QStringList({QStringLiteral("Totale Articoli: 1"), QStringLiteral("Manutenzioni Scadute: 1"),
                              QStringLiteral("In Scadenza (30gg): 1"), QStringLiteral("In Regola: 0")}));
        QCOMPARE(badge(r.s.window), QStringLiteral("Manutenzione scaduta, 1"));
        r.passADay();
        QCOMPARE(rowTexts(r.s.dueList()), QStringList(QStringLiteral("Muta, Scaduto da 29 giorni")));
    }

    void statistics()
    {
        Running r(ContentView::StatisticsTab);
        QCOMPARE(cardTexts(r.s.window).at(4), QStringLiteral("In Regola: 1"));
        r.passADay();
        QCOMPARE(cardTexts(r.s.window).mid(2, 3),
                 QStringList({QStringLiteral("Manutenzioni Scadute: 1"), QStringLiteral("In Scadenza (30gg): 1"),
                              QStringLiteral("In Regola: 0")}));
    }

    void listAndDetail()
    {
        Running r(ContentView::ListTab);
        r.s.window.content().setSelectedEquipment(r.f.equipment.equipment().first());
        settleLayouts();
        const auto remaining = [&r] {
            return r.s.window.findChild<EquipmentTableView*>()->model()->index(0, 3).data().toString();
        };
        QVERIFY(remaining().contains(QLatin1String("31 giorni")));
        QVERIFY(!isShown(r.s.window, QStringLiteral("dueBadge")));
        r.passADay();
        QVERIFY(remaining().contains(QLatin1String("SCADUTO!")));
        QVERIFY(isShown(r.s.window, QStringLiteral("dueBadge")));
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
        QCOMPARE(r.f.takeLog().filter(QStringLiteral("FILTRO ATTIVO")).size(), 0);
        r.s.window.content().setSelectedTab(ContentView::ListTab);
        settle();
        QCOMPARE(r.f.takeLog().filter(QStringLiteral("FILTRO ATTIVO")).size(), 1);
    }
};

ABISSORA_TEST(tst_DayChange);

#include "tst_DayChange.moc"
