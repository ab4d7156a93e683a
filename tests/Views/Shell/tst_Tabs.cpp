// SPDX-License-Identifier: MIT
#include "ClippedTexts.h"
#include "ScaledText.h"
#include "ShellFixture.h"
#include "StatCard.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

/// The screens behind the second and the third tab as parts of the main window.
class tst_Tabs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void screensAreMadeWhenTheyAreFirstShown()
    {
        ShellFixture f;
        ShownWindow s(f);
        QVERIFY(s.window.findChild<MaintenanceOverviewView*>() == nullptr);
        QVERIFY(s.window.findChild<StatisticsView*>() == nullptr);
        QVERIFY(s.window.findChild<SettingsView*>() == nullptr);
        s.window.content().setSelectedTab(ContentView::StatisticsTab);
        const auto statistics = s.window.findChildren<StatisticsView*>();
        QCOMPARE(statistics.size(), 1);
        QVERIFY(statistics.first()->isVisible());
        QVERIFY(s.window.findChild<MaintenanceOverviewView*>() == nullptr);
        s.window.content().setSelectedTab(ContentView::ListTab);
        QVERIFY(!statistics.first()->isVisible());
        s.window.content().setSelectedTab(ContentView::StatisticsTab);
        QCOMPARE(s.window.findChildren<StatisticsView*>(), statistics);
        QVERIFY(statistics.first()->isVisible());
    }

    void tabOrderOfTheOverview()
    {
        ShellFixture f;
        ShownWindow s(f, ContentView::MaintenanceTab);
        part(s.window, u"sidebar"_s).setFocus();
        QStringList order;
        for (int i = 0; i < 7; ++i) {
            const QWidget* focused = QApplication::focusWidget();
            order.append(!focused->objectName().isEmpty() ? focused->objectName()
                                                          : focused->parentWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"sidebar"_s, u"tabSwitch"_s, u"addMaintenance"_s, u"showDetails"_s,
                                     u"addMaintenance"_s, u"showDetails"_s, u"sidebar"_s}));
    }

    void nothingIsClippedInTheSmallestWindow_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<double>("scale");
        QTest::newRow("overview, usual text") << int(ContentView::MaintenanceTab) << 1.0;
        QTest::newRow("overview, larger text") << int(ContentView::MaintenanceTab) << 1.25;
        QTest::newRow("statistics, usual text") << int(ContentView::StatisticsTab) << 1.0;
        QTest::newRow("statistics, larger text") << int(ContentView::StatisticsTab) << 1.25;
    }

    void nothingIsClippedInTheSmallestWindow()
    {
        QFETCH(const int, tab);
        QFETCH(const double, scale);
        const ScaledText scaled(scale);
        ShellFixture f;
        ShownWindow s(f, static_cast<ContentView::Tab>(tab), {1000, 700});
        QCOMPARE(s.window.size(), QSize(1000, 700));
        const QWidget& screen =
            part(s.window, tab == ContentView::MaintenanceTab ? u"maintenanceOverview"_s : u"statistics"_s);
        QCOMPARE(clippedTexts(screen), QStringList());
        for (const StatCard* card : screen.findChildren<StatCard*>()) {
            QVERIFY2(card->width() >= card->minimumSizeHint().width(), qPrintable(card->title()));
            QVERIFY2(card->height() >= card->minimumSizeHint().height(), qPrintable(card->title()));
        }
    }
};

ABISSORA_TEST(tst_Tabs);

#include "tst_Tabs.moc"
