// SPDX-License-Identifier: MIT
#include "SegmentedControl.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QLineEdit>

using namespace abissora;
using namespace abissora::test;

/// Going from page to page by the menu and by keys.
class tst_ViewMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void marksWhatIsShown()
    {
        ShellFixture f;
        ShownWindow s(f);
        QCOMPARE(marked(s), u"Attrezzatura"_s);
        s.window.content().setSelectedTab(ContentView::MaintenanceTab);
        QCOMPARE(marked(s), u"Manutenzione"_s);
        s.sidebar().setSelectedSidebarItem(sidebar::settings);
        QCOMPARE(marked(s), u"Impostazioni"_s);
        s.sidebar().setSelectedSidebarItem(sidebar::all);
        QCOMPARE(marked(s), u"Attrezzatura"_s);
    }

    void everyPageHasAKey()
    {
        ShellFixture f;
        ShownWindow s(f);
        const ContentView& content = s.window.content();
        for (const auto& [key, tab] : {std::pair(Qt::Key_2, 1), std::pair(Qt::Key_3, 2), std::pair(Qt::Key_1, 0)}) {
            QTest::keyClick(&s.window, key, Qt::ControlModifier);
            QCOMPARE(content.selectedTab(), tab);
        }
        QTest::keyClick(&s.window, Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(content.isShowingSettings());
        QVERIFY(isShown(s.window, "settings"));
        QTest::keyClick(&s.window, Qt::Key_3, Qt::ControlModifier);
        QVERIFY(!content.isShowingSettings());
        QCOMPARE(content.selectedTab(), 2);
        QVERIFY(isShown(s.window, "statistics"));
    }

    void tabsFollowOneAnother_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QList<int>>("tabs");
        const QList<int> onward{1, 2, 0};
        const QList<int> back{2, 1, 0};
        QTest::newRow("Ctrl+Tab") << Qt::Key_Tab << Qt::KeyboardModifiers(Qt::ControlModifier) << onward;
        QTest::newRow("Ctrl+PgDown") << Qt::Key_PageDown << Qt::KeyboardModifiers(Qt::ControlModifier) << onward;
        QTest::newRow("Ctrl+Shift+Tab") << Qt::Key_Backtab << (Qt::ControlModifier | Qt::ShiftModifier) << back;
        QTest::newRow("Ctrl+PgUp") << Qt::Key_PageUp << Qt::KeyboardModifiers(Qt::ControlModifier) << back;
    }

    void tabsFollowOneAnother()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        QFETCH(const QList<int>, tabs);
        ShellFixture f;
        ShownWindow s(f);
        s.table().setFocus();
        for (const int tab : tabs) {
            QTest::keyClick(s.window.focusWidget(), key, modifiers);
            QCOMPARE(s.window.content().selectedTab(), tab);
        }
    }

    void theFocusGoesWithTheTab()
    {
        ShellFixture f;
        ShownWindow s(f);
        auto& tabs = part<SegmentedControl>(s.window, "tabSwitch");
        const auto segments = tabs.findChildren<QAbstractButton*>();
        segments.at(0)->setFocus();
        QTest::keyClick(segments.at(0), Qt::Key_2, Qt::ControlModifier);
        QVERIFY(segments.at(1)->hasFocus());
    }

    /// From the settings the list is as it was filtered.
    void theFilterByTypeSurvivesTheSettings_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("by the tab's key") << Qt::Key_1;
        QTest::newRow("by searching") << Qt::Key_F;
    }

    void theFilterByTypeSurvivesTheSettings()
    {
        QFETCH(const Qt::Key, key);
        ShellFixture f;
        ShownWindow s(f);
        s.sidebar().setSelectedSidebarItem(sidebar::typePrefix + u"GAV"_s);
        QTest::keyClick(&s.window, Qt::Key_Comma, Qt::ControlModifier);
        QTest::keyClick(&s.window, key, Qt::ControlModifier);
        settle();
        QCOMPARE(f.equipment.filterTypeName(), std::optional(u"GAV"_s));
        QCOMPARE(s.sidebar().selectedSidebarItem(), std::optional(sidebar::typePrefix + u"GAV"_s));
        QCOMPARE(s.table().model()->rowCount(), 1);
        QCOMPARE(part<QLineEdit>(s.window, "search").hasFocus(), key == Qt::Key_F);
    }

    void theOverviewIsReachedFromTheSettings()
    {
        ShellFixture f;
        ShownWindow s(f);
        s.window.content().showSettings();
        s.window.content().showTab(ContentView::MaintenanceTab);
        QCOMPARE(s.sidebar().selectedSidebarItem(), std::optional(sidebar::maintenance));
        QVERIFY(isShown(s.window, "maintenanceOverview"));
    }

private:
    static QString marked(ShownWindow& s)
    {
        QStringList texts;
        for (const QAction* action : existing<QMenu>(s.window, "viewMenu").actions())
            if (action->isChecked())
                texts.append(action->text().remove(u'&'));
        return texts.join(u',');
    }
};

ABISSORA_TEST(tst_ViewMenu);

#include "tst_ViewMenu.moc"
