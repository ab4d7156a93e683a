// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "ClippedTexts.h"
#include "EquipmentDetailView.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "MaintenanceOverviewView.h"
#include "OverviewParts.h"
#include "ShellFixture.h"
#include "TestRunner.h"
#include "ViewSheet.h"

#include <QAccessible>
#include <QLineEdit>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The overview of the three sample items, of which the second and the third are due.
struct WindowWithSheet : ShownWindow
{
    explicit WindowWithSheet(ShellFixture& f, QSize size = {1280, 800})
        : ShownWindow(f, ContentView::MaintenanceTab, size)
    {}

    [[nodiscard]] DueList& dueList() { return part<DueList>(window, u"dueList"_s); }
    [[nodiscard]] MaintenanceOverviewView& view() { return *window.findChild<MaintenanceOverviewView*>(); }
    [[nodiscard]] QAbstractButton& button(int row, DueRow::Part part)
    {
        return *dueList().rows().at(row)->button(part);
    }
    [[nodiscard]] ViewSheet& sheet() { return openDialog<ViewSheet>(window); }
    [[nodiscard]] EquipmentDetailView& detail() { return *sheet().findChild<EquipmentDetailView*>(); }
    [[nodiscard]] bool isSheetOpen() const { return isDialogOpen(window); }
};

} // namespace

class tst_OverviewSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bothButtonsOpenTheItem_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<bool>("byKeyboard");
        QTest::newRow("add, clicked") << int(DueRow::AddMaintenance) << false;
        QTest::newRow("details, clicked") << int(DueRow::Details) << false;
        QTest::newRow("add, space bar") << int(DueRow::AddMaintenance) << true;
        QTest::newRow("details, space bar") << int(DueRow::Details) << true;
    }

    void bothButtonsOpenTheItem()
    {
        QFETCH(int, part);
        QFETCH(bool, byKeyboard);
        ShellFixture f;
        WindowWithSheet s(f);
        QVERIFY(!s.view().selectedEquipment());
        QAbstractButton& button = s.button(1, static_cast<DueRow::Part>(part));
        if (byKeyboard) {
            button.setFocus(Qt::TabFocusReason);
            QTest::keyClick(&button, Qt::Key_Space);
        } else {
            QTest::mouseClick(&button, Qt::LeftButton);
        }
        settle();
        QCOMPARE(s.view().selectedEquipment()->name, u"Computer Suunto EON Core"_s);
        QCOMPARE(s.sheet().size(), QSize(750, 650));
        QCOMPARE(s.sheet().windowTitle(), u"Dettagli Attrezzatura"_s);
        QCOMPARE(textOf(s.sheet(), u"detailName"_s), u"Computer Suunto EON Core"_s);
        QVERIFY(!s.window.content().selectedEquipment());
        QVERIFY(!f.equipment.selectedEquipment());

        QTest::keyClick(&s.sheet(), Qt::Key_Escape);
        settle();
        QVERIFY(!s.isSheetOpen());
        QVERIFY(!s.view().selectedEquipment());
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&button));
        QVERIFY(s.window.findChildren<ViewSheet*>().isEmpty());
    }

    void pressedByAScreenReaderTheFocusComesBackToo()
    {
        ShellFixture f;
        WindowWithSheet s(f);
        QAbstractButton& button = s.button(0, DueRow::Details);
        QAccessible::queryAccessibleInterface(&button)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        QTRY_VERIFY(s.isSheetOpen()); // the button shows itself pressed for a moment
        settle();
        click(s.sheet(), u"closeDetail"_s);
        settle();
        QVERIFY(!s.isSheetOpen());
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&button));
    }

    void theSmallestWindowShowsTheWholeSheet()
    {
        ShellFixture f;
        WindowWithSheet s(f, {1000, 700});
        QTest::mouseClick(&s.button(0, DueRow::Details), Qt::LeftButton);
        settle();
        QCOMPARE(s.sheet().size(), QSize(750, 650));
        QVERIFY(s.window.geometry().contains(s.sheet().geometry()));
        QCOMPARE(clippedTexts(s.sheet()), QStringList());
    }

    void deletedFromTheSheet()
    {
        ShellFixture f;
        WindowWithSheet s(f);
        QTest::mouseClick(&s.button(0, DueRow::Details), Qt::LeftButton);
        settle();
        click(s.sheet(), u"deleteEquipment"_s);
        click(openDialog<Alert>(s.sheet()), u"destructive"_s);
        settle();
        QVERIFY(!s.isSheetOpen());
        QVERIFY(!s.view().selectedEquipment());
        QCOMPARE(rowTexts(s.dueList()), QStringList(u"Computer Suunto EON Core, Scaduto da 15 giorni"_s));
        QCOMPARE(f.equipment.equipment().size(), 2);
        // What took its place in the list has the focus.
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&s.button(0, DueRow::Details)));
    }

    void deletedElsewhere()
    {
        ShellFixture f;
        WindowWithSheet s(f);
        QTest::mouseClick(&s.button(0, DueRow::Details), Qt::LeftButton);
        settle();
        s.detail().openMaintenanceForm(); // another sheet lies over it
        settle();
        f.equipment.deleteEquipment(*s.view().selectedEquipment());
        settle();
        QVERIFY(!s.isSheetOpen());
        QVERIFY(!s.view().selectedEquipment());
        QVERIFY(s.window.isEnabled());
    }

    void theRowLeavesWhileTheSheetIsOpen()
    {
        ShellFixture f;
        WindowWithSheet s(f);
        QTest::mouseClick(&s.button(1, DueRow::AddMaintenance), Qt::LeftButton);
        settle();
        click(s.sheet(), u"addMaintenance"_s);
        settle();
        auto& form = openDialog<MaintenanceFormView>(s.sheet());
        part<QLineEdit>(form, u"description"_s).setText(u"Batteria"_s);
        click(form, u"primary"_s);
        settle();
        QCOMPARE(rowTexts(s.dueList()), QStringList(u"GAV Scubapro Hydros, Scaduto da 30 giorni"_s));
        QCOMPARE(s.detail().equipment().maintenanceHistory.size(), 1);
        QCOMPARE(s.detail().equipment().maintenanceHistory.first().description, u"Batteria"_s);
        QTest::keyClick(&s.sheet(), Qt::Key_Escape);
        settle();
        QVERIFY(!s.view().selectedEquipment());
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&s.button(0, DueRow::AddMaintenance)));
    }

    void theWholeListGoesWhileTheSheetIsOpen()
    {
        ShellFixture f(dueItems(1));
        WindowWithSheet s(f);
        QTest::mouseClick(&s.button(0, DueRow::Details), Qt::LeftButton);
        settle();
        f.equipment.addMaintenance(f.equipment.equipment().first().id, makeRecord(1, 0, u"Revisione"_s));
        settle();
        QVERIFY(s.isSheetOpen());
        QVERIFY(isShown(s.window, u"allInOrder"_s));
        QTest::keyClick(&s.sheet(), Qt::Key_Escape);
        settle();
        QVERIFY(!s.isSheetOpen());
        QVERIFY(QApplication::focusWidget() != nullptr);
        QVERIFY(QApplication::focusWidget()->isVisible());
        QCOMPARE(QApplication::focusWidget()->window(), static_cast<QWidget*>(&s.window));
    }

    void selectingNothingClosesAndAnotherItemReplaces()
    {
        ShellFixture f;
        WindowWithSheet s(f);
        const auto& items = f.equipment.equipment();
        s.view().setSelectedEquipment(items.at(0));
        settle();
        s.view().setSelectedEquipment(items.at(1));
        settle();
        QCOMPARE(s.window.findChildren<ViewSheet*>().size(), 1);
        QCOMPARE(s.view().selectedEquipment()->id, items.at(1).id);
        QCOMPARE(textOf(s.sheet(), u"detailName"_s), items.at(1).name);
        s.view().setSelectedEquipment(std::nullopt);
        settle();
        QVERIFY(!s.isSheetOpen());
        QVERIFY(!s.view().selectedEquipment());
    }

    void theWindowEndsWithTheSheetOpen()
    {
        ShellFixture f;
        WindowWithSheet s(f);
        s.view().setSelectedEquipment(f.equipment.equipment().first());
        settle();
        QVERIFY(s.isSheetOpen());
    }
};

ABISSORA_TEST(tst_OverviewSheet);

#include "tst_OverviewSheet.moc"
