// SPDX-License-Identifier: MIT
#include "ShellFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

/// What the window shows.
enum class Showing { EmptyRegister, NothingDue, WithoutHistory, WithHistory };

QList<Equipment> itemsOf(Showing state, const RegisterFixture& f)
{
    if (state == Showing::EmptyRegister)
        return {};
    Equipment item = makeItem(1, u"Pinne"_s, EquipmentType::fins, f.inDays(state == Showing::NothingDue ? 200 : 3));
    if (state == Showing::WithHistory)
        item.maintenanceHistory = {makeRecord(1, 1, u"Revisione"_s), makeRecord(2, 2, u"Prova"_s)};
    return {item};
}

void show(Showing state, ShownWindow& s)
{
    switch (state) {
    case Showing::NothingDue:
        s.window.content().setSelectedTab(ContentView::MaintenanceTab);
        break;
    case Showing::WithoutHistory:
    case Showing::WithHistory:
        s.table().selectRow(0);
        break;
    case Showing::EmptyRegister:
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
        QTest::addColumn<Showing>("state");
        QTest::newRow("the last item is gone") << Showing::EmptyRegister;
        QTest::newRow("nothing is due any more") << Showing::NothingDue;
        QTest::newRow("the last record is gone") << Showing::WithoutHistory;
    }

    void tabGoesAllTheWayRoundAfterAChange()
    {
        QFETCH(const Showing, state);
        ShellFixture f(itemsOf(Showing::WithHistory, RegisterFixture()));
        ShownWindow s(f, std::nullopt, {1280, 800});
        show(Showing::NothingDue, s);
        s.window.content().setSelectedTab(ContentView::ListTab);
        show(Showing::WithHistory, s);
        Equipment item = f.equipment.equipment().first();
        if (state == Showing::EmptyRegister) {
            f.equipment.deleteEquipment(item);
        } else if (state == Showing::NothingDue) {
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
