// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "EditEquipmentView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "EquipmentTableView.h"
#include "FormDriver.h"
#include "Literals.h"
#include "MainWindow.h"
#include "ShellFixture.h"
#include "TestRunner.h"

#include <QAction>
#include <QMenuBar>

using namespace abissora;
using namespace abissora::test;

namespace {

struct Shown
{
    explicit Shown(ShellFixture& f)
        : window(f, f.equipment, f.directories.windowStateFile())
    {
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    template <typename Form>
    Form* openForm()
    {
        for (Form* form : window.findChildren<Form*>()) {
            if (form->isVisible())
                return form;
        }
        return nullptr;
    }

    EquipmentTableView& table() { return *window.findChild<EquipmentTableView*>(); }

    MainWindow window;
};

void fill(const FormDriver& driver, const QString& name)
{
    driver.type("name", name);
    driver.type("brand", u"Marca"_s);
}

} // namespace

class tst_FormsInTheWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addingFromTheHeader()
    {
        ShellFixture f;
        Shown s(f);
        auto* add = s.window.findChild<QAbstractButton*>(u"addButton"_s);
        QVERIFY(!s.window.content().showingAddSheet());
        add->setFocus();
        QTest::mouseClick(add, Qt::LeftButton);
        auto* form = s.openForm<EquipmentFormView>();
        QVERIFY(form);
        QCOMPARE(form->windowModality(), Qt::WindowModal);
        QVERIFY(s.window.content().showingAddSheet());
        QVERIFY(f.equipment.isAddingEquipment());
        const FormDriver driver(*form);
        fill(driver, u"Nuovo erogatore"_s);
        driver.save();
        QVERIFY(!s.window.content().showingAddSheet());
        QVERIFY(!f.equipment.isAddingEquipment());
        QCoreApplication::processEvents();
        QCOMPARE(s.table().model()->rowCount(), 4);
        s.window.activateWindow();
        QCOMPARE(s.window.focusWidget(), add);
    }

    void addingFromTheMenuOneAtATime()
    {
        ShellFixture f;
        Shown s(f);
        QAction* add = s.window.menuBar()->actions().first()->menu()->actions().first();
        QCOMPARE(add->text().remove(u'&'), u"Aggiungi"_s);
        QCOMPARE(add->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
        s.table().setFocus();
        QTest::keyClick(&s.window, Qt::Key_N, Qt::ControlModifier);
        auto* form = s.openForm<EquipmentFormView>();
        QVERIFY(form);
        add->trigger();
        s.window.content().editEquipment(f.equipment.equipment().first());
        QCOMPARE(s.window.findChildren<Sheet*>().size(), 1);
        FormDriver(*form).cancel();
        QVERIFY(!s.window.content().showingAddSheet());
        s.window.activateWindow();
        QCOMPARE(s.window.focusWidget(), &s.table());
        add->trigger();
        QVERIFY(s.openForm<EquipmentFormView>());
    }

    void addingTheFirstItem()
    {
        ShellFixture f(QList<Equipment>{});
        Shown s(f);
        for (QAbstractButton* button : s.window.findChildren<QAbstractButton*>()) {
            if (button->text() == u"Aggiungi la prima attrezzatura"_s && button->isVisible()) {
                QTest::mouseClick(button, Qt::LeftButton);
                break;
            }
        }
        auto* form = s.openForm<EquipmentFormView>();
        QVERIFY(form);
        fill(FormDriver(*form), u"Primo"_s);
        FormDriver(*form).save();
        QCoreApplication::processEvents();
        QCOMPARE(s.table().model()->rowCount(), 1);
        QVERIFY(s.window.focusWidget() && s.window.focusWidget()->isVisible());
    }

    void editingFromTheRowSelectsTheItem()
    {
        ShellFixture f;
        Shown s(f);
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
        auto* form = s.openForm<EditEquipmentView>();
        QVERIFY(form);
        QVERIFY(!s.window.content().showingAddSheet());
        QVERIFY(!f.equipment.isAddingEquipment());
        QCOMPARE(s.window.content().selectedEquipment()->name, u"GAV Scubapro Hydros"_s);
        const FormDriver driver(*form);
        QCOMPARE(driver.part<QLineEdit>("name").text(), u"GAV Scubapro Hydros"_s);
        driver.type("name", u"GAV rosso"_s);
        driver.save();
        QCoreApplication::processEvents();
        QCOMPARE(s.window.content().selectedEquipment()->name, u"GAV rosso"_s);
        QVERIFY(f.equipment.equipment().contains(*s.window.content().selectedEquipment()));
        QVERIFY(s.table().selectionModel()->hasSelection());
        QCOMPARE(s.window.focusWidget(), &s.table());
    }

    void closingTheWindowWithAFormOpenIsSafe()
    {
        ShellFixture f;
        {
            Shown s(f);
            s.window.content().addEquipment();
            QVERIFY(s.openForm<EquipmentFormView>());
        }
        QCOMPARE(f.equipment.equipment().size(), 3);
    }
};

ABISSORA_TEST(tst_FormsInTheWindow);

#include "tst_FormsInTheWindow.moc"
