// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "EquipmentTableView.h"
#include "Gui.h"
#include "Literals.h"
#include "MainWindow.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QAction>
#include <QLineEdit>
#include <QMenuBar>

using namespace abissora;
using namespace abissora::test;

namespace {

struct WindowWithForms
{
    explicit WindowWithForms(ShellFixture& f)
        : window(f, f.equipment, f.directories.windowStateFile())
    {
        activate(window);
    }

    EquipmentTableView& table() { return *window.findChild<EquipmentTableView*>(); }

    MainWindow window;
};

void fill(const QWidget& form, const QString& name)
{
    type(form, "name", name);
    type(form, "brand", u"Marca"_s);
}

} // namespace

class tst_FormsInTheWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addingFromTheHeader()
    {
        ShellFixture f;
        WindowWithForms s(f);
        auto* add = s.window.findChild<QAbstractButton*>(u"addButton"_s);
        QVERIFY(!s.window.content().showingAddSheet());
        add->setFocus();
        QTest::mouseClick(add, Qt::LeftButton);
        auto* form = findDialog<EquipmentFormView>(s.window);
        QVERIFY(form);
        QCOMPARE(form->windowModality(), Qt::WindowModal);
        QVERIFY(s.window.content().showingAddSheet());
        QVERIFY(f.equipment.isAddingEquipment());
        fill(*form, u"Nuovo erogatore"_s);
        click(*form, "primary");
        QVERIFY(!s.window.content().showingAddSheet());
        QVERIFY(!f.equipment.isAddingEquipment());
        settle();
        QCOMPARE(s.table().model()->rowCount(), 4);
        s.window.activateWindow();
        QCOMPARE(s.window.focusWidget(), add);
    }

    void addingFromTheMenuOneAtATime()
    {
        ShellFixture f;
        WindowWithForms s(f);
        QAction* add = s.window.menuBar()->actions().first()->menu()->actions().first();
        QCOMPARE(add->text().remove(u'&'), u"Aggiungi"_s);
        QCOMPARE(add->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
        s.table().setFocus();
        QTest::keyClick(&s.window, Qt::Key_N, Qt::ControlModifier);
        auto* form = findDialog<EquipmentFormView>(s.window);
        QVERIFY(form);
        add->trigger();
        s.window.content().editEquipment(f.equipment.equipment().first());
        QCOMPARE(s.window.findChildren<Sheet*>().size(), 1);
        click(*form, "cancel");
        QVERIFY(!s.window.content().showingAddSheet());
        s.window.activateWindow();
        QCOMPARE(s.window.focusWidget(), &s.table());
        add->trigger();
        QVERIFY(findDialog<EquipmentFormView>(s.window));
    }

    void addingTheFirstItem()
    {
        ShellFixture f(QList<Equipment>{});
        WindowWithForms s(f);
        press(s.window, u"Aggiungi la prima attrezzatura"_s);
        auto* form = findDialog<EquipmentFormView>(s.window);
        QVERIFY(form);
        fill(*form, u"Primo"_s);
        click(*form, "primary");
        settle();
        QCOMPARE(s.table().model()->rowCount(), 1);
        QVERIFY(s.window.focusWidget() && s.window.focusWidget()->isVisible());
    }

    void editingFromTheRowSelectsTheItem()
    {
        ShellFixture f;
        WindowWithForms s(f);
        const QModelIndex actions = s.table().model()->index(1, EquipmentTableModel::ActionsColumn);
        s.table().setFocus();
        s.table().scrollTo(actions);
        QTest::mouseClick(s.table().viewport(), Qt::LeftButton, {}, s.table().visualRect(actions).center());
        auto* menu = s.window.findChild<QMenu*>(u"rowActions"_s);
        for (QAction* action : menu->actions()) {
            if (action->text() == u"Modifica attrezzatura"_s)
                action->trigger();
        }
        menu->close();
        auto* form = findDialog<EditEquipmentView>(s.window);
        QVERIFY(form);
        QVERIFY(!s.window.content().showingAddSheet());
        QVERIFY(!f.equipment.isAddingEquipment());
        QCOMPARE(s.window.content().selectedEquipment()->name, u"GAV Scubapro Hydros"_s);
        QCOMPARE(usable<QLineEdit>(*form, "name").text(), u"GAV Scubapro Hydros"_s);
        type(*form, "name", u"GAV rosso"_s);
        click(*form, "primary");
        settle();
        QCOMPARE(s.window.content().selectedEquipment()->name, u"GAV rosso"_s);
        QVERIFY(f.equipment.equipment().contains(*s.window.content().selectedEquipment()));
        QVERIFY(s.table().selectionModel()->hasSelection());
        QCOMPARE(s.window.focusWidget(), &s.table());
    }

    void closingTheWindowWithAFormOpenIsSafe()
    {
        ShellFixture f;
        {
            WindowWithForms s(f);
            s.window.content().addEquipment();
            QVERIFY(findDialog<EquipmentFormView>(s.window));
        }
        QCOMPARE(f.equipment.equipment().size(), 3);
    }
};

ABISSORA_TEST(tst_FormsInTheWindow);

#include "tst_FormsInTheWindow.moc"
