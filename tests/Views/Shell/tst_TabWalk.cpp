// SPDX-License-Identifier: MIT
#include "ShellFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

/// What the window shows.
enum class State { EmptyRegister, NothingDue, WithoutHistory, WithHistory };

QList<Equipment> itemsOf(State state, const RegisterFixture& f)
{
    if (state == State::EmptyRegister)
        return {};
    Equipment item = makeItem(1, u"Pinne"_s, EquipmentType::fins, f.inDays(state == State::NothingDue ? 200 : 3));
    if (state == State::WithHistory)
        item.maintenanceHistory = {makeRecord(1, 1, u"Revisione"_s), makeRecord(2, 2, u"Prova"_s)};
    return {item};
}

void show(State state, ShownWindow& s)
{
    switch (state) {
    case State::NothingDue:
        s.window.content().setSelectedTab(ContentView::MaintenanceTab);
        break;
    case State::WithoutHistory:
    case State::WithHistory:
        s.table().selectRow(0);
        break;
    case State::EmptyRegister:
        break;
    }
    settle();
}

/// What the keyboard visits from the sidebar on until it is there again; stops where it stays.
QList<QWidget*> walk(QWidget& window, Qt::Key key)
{
    QList<QWidget*> visited;
    QWidget* const first = window.focusWidget();
    do {
        visited.append(window.focusWidget());
        QTest::keyClick(window.focusWidget(), key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    } while (window.focusWidget() != first && !visited.contains(window.focusWidget()));
    return visited;
}

} // namespace

class tst_TabWalk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// A state that was another one before.
    void tabGoesAllTheWayRoundAfterAChange_data()
    {
        QTest::addColumn<State>("state");
        QTest::newRow("the last item is gone") << State::EmptyRegister;
        QTest::newRow("nothing is due any more") << State::NothingDue;
        QTest::newRow("the last record is gone") << State::WithoutHistory;
    }

    void tabGoesAllTheWayRoundAfterAChange()
    {
        QFETCH(const State, state);
        ShellFixture f(itemsOf(State::WithHistory, RegisterFixture()));
        ShownWindow s(f, std::nullopt, {1280, 800});
        show(State::NothingDue, s);
        s.window.content().setSelectedTab(ContentView::ListTab);
        show(State::WithHistory, s);
        Equipment item = f.equipment.equipment().first();
        if (state == State::EmptyRegister) {
            f.equipment.deleteEquipment(item);
        } else if (state == State::NothingDue) {
            item.nextServiceDate = f.inDays(300);
            f.equipment.updateEquipment(item);
            s.window.content().setSelectedTab(ContentView::MaintenanceTab);
        } else {
            part(s.window, u"deleteMaintenance"_s).setFocus(Qt::TabFocusReason);
            item.maintenanceHistory.clear();
            f.equipment.updateEquipment(item);
        }
        settle();
        const QWidget* const start = s.window.focusWidget();
        QVERIFY(start != nullptr && start->isVisible());
        const QList<QWidget*> visited = walk(s.window, Qt::Key_Tab);
        QVERIFY(visited.contains(&s.sidebar()));
        for (const QWidget* stop : visited)
            QVERIFY2(stop->isVisible() && stop->isEnabled(), qPrintable(stop->objectName()));
    }
};

ABISSORA_TEST(tst_TabWalk);

#include "tst_TabWalk.moc"
