// SPDX-License-Identifier: MIT
#include "ScaledText.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QAccessible>

using namespace abissora;
using namespace abissora::test;

namespace {

struct State
{
    const char* name;
    std::function<QList<Equipment>(const TemporaryRegister&)> items;
    std::function<void(ShellFixture&, ShownWindow&)> prepare;
};

Equipment dueIn(const TemporaryRegister& base, int days)
{
    return makeItem(days, u"Pinne n. %1"_s.arg(days), EquipmentType::fins,
                    base.calendar.addDays(base.clock.now(), days).value());
}

QList<Equipment> none(const TemporaryRegister&)
{
    return {};
}

QList<Equipment> twoItems(const TemporaryRegister& base)
{
    return {dueIn(base, 3), dueIn(base, 300)};
}

QList<Equipment> nothingDue(const TemporaryRegister& base)
{
    return {dueIn(base, 300)};
}

QList<Equipment> withHistory(const TemporaryRegister& base)
{
    Equipment item = dueIn(base, 3);
    Maintenance record;
    record.id = QUuid(u"00000000-0000-4000-9000-000000000001"_s);
    record.description = u"Revisione"_s;
    item.maintenanceHistory = {record, record};
    item.maintenanceHistory.last().id = QUuid(u"00000000-0000-4000-9000-000000000002"_s);
    return {item};
}

void stay(ShellFixture&, ShownWindow&) {}

void selectFirst(ShellFixture&, ShownWindow& s)
{
    s.table().selectRow(0);
}

const QList<State> states{
    {"a list", twoItems, stay},
    {"an empty register", none, stay},
    {"nothing found", twoItems, [](ShellFixture& f, ShownWindow&) { f.equipment.setSearchText(u"zz"_s); }},
    {"a filter", twoItems, [](ShellFixture& f, ShownWindow&) { f.equipment.filterByTypeName(u"Pinne"_s); }},
    {"an item without history", twoItems, selectFirst},
    {"an item with history", withHistory, selectFirst},
    {"the overview", twoItems,
     [](ShellFixture&, ShownWindow& s) { s.window.content().showTab(ContentView::MaintenanceTab); }},
    {"the overview with nothing due", nothingDue,
     [](ShellFixture&, ShownWindow& s) { s.window.content().showTab(ContentView::MaintenanceTab); }},
    {"the overview of nothing", none,
     [](ShellFixture&, ShownWindow& s) { s.window.content().showTab(ContentView::MaintenanceTab); }},
    {"the statistics", twoItems,
     [](ShellFixture&, ShownWindow& s) { s.window.content().showTab(ContentView::StatisticsTab); }},
    {"the statistics of nothing", none,
     [](ShellFixture&, ShownWindow& s) { s.window.content().showTab(ContentView::StatisticsTab); }},
    {"the settings", twoItems, [](ShellFixture&, ShownWindow& s) { s.window.content().showSettings(); }},
};

QString described(const QWidget& widget)
{
    return u"%1 %2"_s.arg(QLatin1StringView(widget.metaObject()->className()), widget.objectName());
}

/// What its ancestors leave of it.
QRect visiblePart(const QWidget& widget, const QWidget& window)
{
    QRect part = widget.rect();
    for (const QWidget* place = &widget; place != &window; place = place->parentWidget())
        part = part.translated(place->pos()) & place->parentWidget()->rect();
    return part;
}

/// What is wrong with a stop of Tab: it cannot be seen, or a screen reader would not know what it is.
QString judgeStop(QWidget& stop, const QWidget& window)
{
    if (!stop.isVisibleTo(&window))
        return u"is hidden"_s;
    if (visiblePart(stop, window).size() != stop.size())
        return u"is out of sight"_s;
    const QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&stop);
    if (reader->text(QAccessible::Name).isEmpty())
        return u"has no name"_s;
    if (reader->role() == QAccessible::Client || reader->role() == QAccessible::NoRole)
        return u"has no role"_s;
    return {};
}

} // namespace

/// Tab goes through every page of the main window and comes round, at the smallest size too.
class tst_TabAllRound : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comesRound_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("textScale");
        for (int i = 0; i < states.size(); ++i) {
            for (const QSize size : {QSize(1000, 700), QSize(1280, 800)}) {
                for (const double scale : {1.0, 1.3, 1.6})
                    QTest::addRow("%s, %d wide, text x %.1f", states.at(i).name, size.width(), scale)
                        << i << size << scale;
            }
        }
    }

    void comesRound()
    {
        QFETCH(const int, state);
        QFETCH(const QSize, size);
        QFETCH(const double, textScale);
        const ScaledText scaled(textScale);
        ShellFixture f(states.at(state).items(TemporaryRegister()));
        ShownWindow s(f, std::nullopt, size);
        states.at(state).prepare(f, s);
        settle();
        s.sidebar().setFocus(Qt::TabFocusReason);
        walk(s, Qt::Key_Tab);
        if (!QTest::currentTestFailed())
            walk(s, Qt::Key_Backtab);
    }

    void startsSomewhere()
    {
        for (const auto& items : {none, nothingDue, twoItems}) {
            ShellFixture f(items(TemporaryRegister()));
            ShownWindow s(f);
            QWidget* const first = QApplication::focusWidget();
            QVERIFY(first != nullptr);
            QCOMPARE(judgeStop(*first, s.window), QString());
        }
    }

private:
    static void walk(ShownWindow& s, Qt::Key key)
    {
        const QWidget* const first = QApplication::focusWidget();
        QList<const QWidget*> visited;
        QStringList seen;
        do {
            QWidget* const stop = QApplication::focusWidget();
            QVERIFY2(stop != nullptr, "nothing has the focus");
            const QString judgement = judgeStop(*stop, s.window);
            seen.append(described(*stop));
            visited.append(stop);
            QVERIFY2(judgement.isEmpty(), qPrintable(seen.join(u" > "_s) + u' ' + judgement));
            QTest::keyClick(stop, key);
            QVERIFY2(QApplication::focusWidget() != stop, qPrintable(seen.join(u" > "_s) + u" keeps the focus"_s));
            QVERIFY2(seen.size() < 120, qPrintable(seen.join(u" > "_s)));
        } while (QApplication::focusWidget() != first);
        QVERIFY(seen.size() > 1);
        for (const QWidget* widget : s.window.findChildren<QWidget*>()) {
            const bool isStop = widget->isVisible() && widget->isEnabled() && widget->focusProxy() == nullptr &&
                                (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
            QVERIFY2(!isStop || visited.contains(widget), qPrintable(described(*widget) + u" is never visited"_s));
        }
    }
};

ABISSORA_TEST(tst_TabAllRound);

#include "tst_TabAllRound.moc"
