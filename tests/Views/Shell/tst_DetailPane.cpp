// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "ClippedTexts.h"
#include "ContentView.h"
#include "DetailSections.h"
#include "EquipmentDetailView.h"
#include "EquipmentListView.h"
#include "EquipmentTableView.h"
#include "Gui.h"
#include "Literals.h"
#include "MainWindow.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>

using namespace abissora;
using namespace abissora::test;

namespace {

struct WindowWithPane
{
    explicit WindowWithPane(ShellFixture& f)
        : window(f, f.equipment, f.directories.windowStateFile())
    {
        activate(window);
    }

    EquipmentTableView& table() { return *window.findChild<EquipmentTableView*>(); }
    QSplitter& splitter() { return *window.content().splitters().last(); }
    void select(int row)
    {
        table().selectRow(row);
        settle();
    }
    [[nodiscard]] bool isPaneShown() const { return isShown(window, "detailPane"); }

    MainWindow window;
};

} // namespace

class tst_DetailPane : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheSelectedItem()
    {
        ShellFixture f;
        WindowWithPane s(f);
        QVERIFY(!s.isPaneShown());
        s.select(0);
        QVERIFY(s.isPaneShown());
        QCOMPARE(textOf(s.window, u"detailName"_s), u"Computer Suunto EON Core"_s);
        QVERIFY(std::abs(s.splitter().sizes().last() - 385) <= 2);
        s.select(1);
        QCOMPARE(textOf(s.window, u"detailName"_s), u"GAV Scubapro Hydros"_s);
    }

    void closeMarkClearsTheSelection()
    {
        ShellFixture f;
        WindowWithPane s(f);
        s.select(0);
        click(s.window, u"closeDetail"_s);
        QVERIFY(!s.isPaneShown());
        QVERIFY(!s.window.content().selectedEquipment());
        QVERIFY(s.table().selectionModel()->selectedRows().isEmpty());
        QVERIFY(s.table().hasFocus());
    }

    void deletingClearsTheSelection()
    {
        ShellFixture f;
        WindowWithPane s(f);
        s.select(0);
        click(s.window, u"deleteEquipment"_s);
        auto& alert = openDialog<Alert>(s.window);
        alert.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &alert);
        click(alert, u"destructive"_s);
        settle();
        QVERIFY(!s.isPaneShown());
        QVERIFY(!s.window.content().selectedEquipment());
        QCOMPARE(s.table().model()->rowCount(), 2);
        QTRY_VERIFY(s.table().hasFocus());
        QCOMPARE(s.table().currentIndex().row(), 0); // goes on from where the item was
    }

    void anotherItemIsShownFromItsTop()
    {
        ShellFixture f;
        WindowWithPane s(f);
        s.window.resize(1000, 700);
        s.select(0);
        QScrollBar& bar = *s.window.findChild<EquipmentDetailView*>()->findChild<QScrollArea*>()->verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        bar.setValue(bar.maximum());
        click(s.window, u"toggleActive"_s);
        QVERIFY(bar.value() > 0);
        s.select(1);
        QCOMPARE(bar.value(), 0);
    }

    void cardsKeepTheirHeightInATallWindow()
    {
        ShellFixture f;
        WindowWithPane s(f);
        s.window.resize(1280, 800);
        s.select(0);
        settle();
        const QWidget& header = *s.window.findChild<DetailHeader*>();
        const int height = header.height();
        s.window.resize(1280, 1500);
        settle();
        QCOMPARE(header.height(), height);
    }

    void smallestWindowKeepsBothUsable()
    {
        ShellFixture f;
        WindowWithPane s(f);
        s.window.resize(1000, 700);
        s.select(0);
        f.equipment.filterByTypeName(u"GAV"_s);
        settle();
        QCOMPARE(s.window.size(), QSize(1000, 700));
        QCOMPARE(s.table().horizontalScrollBar()->maximum(), 0);
        QCOMPARE(clippedTexts(s.window.content().list()), QStringList());
    }

    void widthIsKeptAcrossStarts_data()
    {
        QTest::addColumn<bool>("closedFirst");
        QTest::newRow("with the pane open") << false;
        QTest::newRow("with the pane closed") << true;
    }

    void widthIsKeptAcrossStarts()
    {
        QFETCH(bool, closedFirst);
        ShellFixture f;
        int width = 0;
        {
            WindowWithPane s(f);
            s.select(0);
            s.splitter().setSizes({s.splitter().width() - 441, 440});
            width = s.splitter().sizes().last();
            QVERIFY(std::abs(width - 440) <= 2);
            if (closedFirst)
                click(s.window, u"closeDetail"_s);
            s.window.close();
        }
        WindowWithPane s(f);
        QVERIFY(!s.isPaneShown());
        s.select(0);
        QCOMPARE(s.splitter().sizes().last(), width);
    }
};

ABISSORA_TEST(tst_DetailPane);

#include "tst_DetailPane.moc"
