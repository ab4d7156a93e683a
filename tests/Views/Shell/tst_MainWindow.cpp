// SPDX-License-Identifier: MIT
#include "ScaledText.h"

#include "SegmentedControl.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

struct WholeWindow : ShownWindow
{
    using ShownWindow::ShownWindow;

    QLineEdit& search() { return existing<QLineEdit>(window, u"search"_s); }
};

QString plain(QString text)
{
    return text.remove(u'&');
}

} // namespace

class tst_MainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizeAndTitle()
    {
        ShellFixture f;
        WholeWindow s(f);
        QCOMPARE(s.window.windowTitle(), u"Abissora"_s);
        QCOMPARE(s.window.minimumSize(), QSize(1000, 700));
    }

    void theGuideOpensFromAFormToo()
    {
        ShellFixture f;
        WholeWindow s(f);
        QSignalSpy asked(&s.window, &MainWindow::helpRequested);
        s.window.content().addEquipment();
        settle();
        QWidget* const form = QApplication::activeWindow();
        QVERIFY(form != &s.window);
        QTest::keyClick(form, Qt::Key_F1);
        QCOMPARE(asked.size(), 1);
        QTest::keyClick(form, Qt::Key_Question, Qt::ControlModifier);
        QCOMPARE(asked.size(), 2);
        QTest::keyClick(form, Qt::Key_N, Qt::ControlModifier);
        QTest::keyClick(form, Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(s.window.isVisible() && form->isVisible());
    }

    void theKeyboardStartsInTheTable()
    {
        ShellFixture f;
        WholeWindow s(f);
        QTRY_VERIFY(s.table().hasFocus());
        QVERIFY(s.table().selectionModel()->selectedRows().isEmpty());
        QVERIFY(!s.window.content().selectedEquipment());
        QTest::keyClick(&s.table(), Qt::Key_Down);
        QCOMPARE(s.window.content().selectedEquipment()->name, u"Computer Suunto EON Core"_s);
        QTest::keyClick(&s.table(), Qt::Key_Down);
        QCOMPARE(s.window.content().selectedEquipment()->name, u"GAV Scubapro Hydros"_s);
    }

    void theKeyboardStartsAtTheFirstItemToAdd()
    {
        ShellFixture f(QList<Equipment>{});
        WholeWindow s(f);
        QTRY_VERIFY(s.window.findChild<QWidget*>(u"emptyStateButton"_s)->hasFocus());
    }

    void menus()
    {
        ShellFixture f;
        WholeWindow s(f);
        QStringList titles;
        for (const QAction* menu : s.window.menuBar()->actions())
            titles.append(plain(menu->text()));
        QCOMPARE(titles, QStringList({u"File"_s, u"Modifica"_s, u"Articolo"_s, u"Vista"_s, u"Aiuto"_s}));
    }

    void sidebarAndTabsWorkTogether()
    {
        ShellFixture f;
        WholeWindow s(f);
        ContentView& content = s.window.content();
        QCOMPARE(content.selectedTab(), 0);
        s.sidebar().setSelectedSidebarItem(u"maintenance"_s);
        QCOMPARE(content.selectedTab(), 1);
        QVERIFY(!content.list().isVisible());
        s.sidebar().setSelectedSidebarItem(u"type_GAV"_s);
        QCOMPARE(content.selectedTab(), 0);
        QVERIFY(content.list().isVisible());
        settle();
        QCOMPARE(s.table().model()->rowCount(), 1);
    }

    void settingsTakeTheWholeDetail()
    {
        ShellFixture f;
        WholeWindow s(f);
        auto* tabs = s.window.findChild<SegmentedControl*>();
        QVERIFY(tabs->isVisible());
        s.sidebar().setSelectedSidebarItem(u"settings"_s);
        QVERIFY(!tabs->isVisible());
        s.sidebar().setSelectedSidebarItem(u"maintenance"_s);
        QVERIFY(tabs->isVisible());
        QCOMPARE(tabs->currentIndex(), 1);
    }

    void tabSwitchDoesNotMoveTheSidebar()
    {
        ShellFixture f;
        WholeWindow s(f);
        QSignalSpy changed(&s.window.content(), &ContentView::selectedTabChanged);
        s.window.content().setSelectedTab(ContentView::StatisticsTab);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(s.sidebar().selectedSidebarItem(), std::optional(u"all"_s));
    }

    void selectionFollowsTheTableAndForgetsDeletedItems()
    {
        ShellFixture f;
        WholeWindow s(f);
        s.table().selectRow(1);
        QCOMPARE(s.window.content().selectedEquipment()->name, u"GAV Scubapro Hydros"_s);
        f.equipment.deleteEquipment(*s.window.content().selectedEquipment());
        QVERIFY(!s.window.content().selectedEquipment());
    }

    void findPutsTheCursorIntoTheSearch()
    {
        ShellFixture f;
        WholeWindow s(f);
        s.window.content().setSelectedTab(ContentView::StatisticsTab);
        QTest::keyClick(&s.window, Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(s.window.content().selectedTab(), 0);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&s.search()));
    }

    void editingCommandsActOnTheFocusedField()
    {
        ShellFixture f;
        WholeWindow s(f);
        const auto command = [&s](const QString& text) -> QAction* {
            for (QAction* menu : s.window.menuBar()->actions())
                for (QAction* action : menu->menu()->actions())
                    if (plain(action->text()) == text)
                        return action;
            return nullptr;
        };
        s.sidebar().setFocus();
        QVERIFY(!command(u"Taglia"_s)->isEnabled());
        s.search().setFocus();
        QTest::keyClicks(&s.search(), u"gav"_s);
        command(u"Seleziona tutto"_s)->trigger();
        QCOMPARE(s.search().selectedText(), u"gav"_s);
        command(u"Taglia"_s)->trigger();
        QCOMPARE(s.search().text(), QString());
        QCOMPARE(f.equipment.searchText(), QString());
        command(u"Annulla"_s)->trigger();
        QCOMPARE(s.search().text(), u"gav"_s);
        QCOMPARE(f.equipment.searchText(), u"gav"_s);
    }

    void tabOrder()
    {
        ShellFixture f;
        WholeWindow s(f);
        s.sidebar().setFocus();
        QStringList order;
        for (int i = 0; i < 8; ++i) {
            const QWidget* focused = QApplication::focusWidget();
            order.append(!focused->objectName().isEmpty() ? focused->objectName()
                                                          : focused->parentWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"sidebar"_s, u"tabSwitch"_s, u"refreshButton"_s, u"addButton"_s, u"search"_s,
                                     u"filterButton"_s, u"equipmentTable"_s, u"sidebar"_s}));
    }

    void everythingThatTakesTheFocusHasAName()
    {
        ShellFixture f;
        WholeWindow s(f);
        f.equipment.filterByTypeName(u"GAV"_s);
        settle();
        int named = 0;
        for (QWidget* widget : s.window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus)
                continue;
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            const QByteArray who = widget->metaObject()->className() + QByteArray(" ") + widget->objectName().toUtf8();
            QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(), who.constData());
            ++named;
        }
        QVERIFY(named > 8);
    }

    void nothingIsCutOffWithLargerText()
    {
        const ScaledText scaled(1.25);
        ShellFixture f;
        WholeWindow s(f);
        s.window.resize(s.window.minimumSize());
        settle();
        for (const QWidget* widget : s.window.findChildren<QWidget*>()) {
            const bool text = widget->inherits("QLabel") || widget->inherits("QAbstractButton");
            if (!text || !widget->isVisible() || qobject_cast<const QLineEdit*>(widget->parentWidget()))
                continue;
            const QByteArray who = widget->metaObject()->className() + QByteArray(" ") + widget->objectName().toUtf8();
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), who.constData());
            QVERIFY2(widget->height() >= widget->minimumSizeHint().height(), who.constData());
        }
    }

    void sizeIsKeptAcrossStarts()
    {
        ShellFixture f;
        {
            WholeWindow s(f);
            s.window.resize(1111, 777);
            s.window.close();
        }
        WholeWindow s(f);
        QCOMPARE(s.window.size(), QSize(1111, 777));
    }
};

ABISSORA_TEST(tst_MainWindow);

#include "tst_MainWindow.moc"
