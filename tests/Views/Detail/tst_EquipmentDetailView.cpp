// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "Buttons.h"
#include "DetailParts.h"
#include "DetailSections.h"
#include "EquipmentFormView.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "TestRunner.h"
#include "ViewSheet.h"

#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

class tst_EquipmentDetailView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void header()
    {
        ShownDetail s({}, 30);
        QCOMPARE(textOf(*s.view, u"detailName"_s), s.item.name);
        QCOMPARE(textOf(*s.view, u"detailType"_s), u"Erogatore"_s);
        QCOMPARE(textOf(*s.view, u"detailState"_s), u"Attivo"_s);
        QVERIFY(isShown(*s.view, u"dueBadge"_s));
        ShownDetail later({}, 31);
        QVERIFY(!isShown(*later.view, u"dueBadge"_s));
    }

    void order()
    {
        ShownDetail s(threeRecords());
        int bottom = -1;
        const auto below = [&](const QWidget& widget) {
            const int top = widget.mapTo(s.view.get(), QPoint()).y();
            const bool isBelow = top >= bottom;
            bottom = top + widget.height();
            return isBelow;
        };
        QVERIFY(below(part(*s.view, u"closeDetail"_s)));
        QVERIFY(below(part(*s.view, u"detailName"_s)));
        QVERIFY(below(*s.view->findChild<TechnicalDetails*>()));
        QVERIFY(below(part(*s.view, u"notes"_s)));
        QVERIFY(below(part(*s.view, u"editEquipment"_s)));
        for (int i = 0; i < 3; ++i)
            QVERIFY(below(s.row(i)));
    }

    void notesCanBeSelected()
    {
        ShownDetail s;
        auto& notes = part<SelectableText>(*s.view, u"notes"_s);
        QCOMPARE(notes.toPlainText(), u"Nessuna nota inserita"_s);
        s.item.notes = u"Prima riga\nseconda <b>riga</b>"_s;
        s.f.equipment.updateEquipment(s.item);
        QCOMPARE(notes.toPlainText(), s.item.notes);
        QVERIFY(notes.isReadOnly());
        notes.setFocus();
        QTest::keyClick(&notes, Qt::Key_A, Qt::ControlModifier);
        QVERIFY(notes.textCursor().hasSelection());
    }

    void actionsAndTheirHelp()
    {
        ShownDetail s;
        const auto helpOf = [&](const char* name) { return part(*s.view, QLatin1String(name)).toolTip(); };
        QCOMPARE(helpOf("editEquipment"), u"Modifica l'attrezzatura"_s);
        QCOMPARE(helpOf("addMaintenance"), u"Aggiungi una nuova manutenzione"_s);
        QCOMPARE(helpOf("toggleActive"), u"Disattiva l'attrezzatura"_s);
        QCOMPARE(helpOf("deleteEquipment"), u"Elimina l'attrezzatura"_s);
    }

    void activeIsSwitchedOffAndOn()
    {
        ShownDetail s;
        auto& toggle = part<LookButton>(*s.view, u"toggleActive"_s);
        QCOMPARE(buttonLook(&toggle, ButtonLook::Plain), ButtonLook::Caution);
        QTest::mouseClick(&toggle, Qt::LeftButton);
        QVERIFY(!s.stored().isActive);
        QCOMPARE(s.f.takeLog(), QStringList(u"✏️ Aggiornato equipaggiamento: "_s + s.item.name));
        QCOMPARE(toggle.text(), u"Attiva"_s);
        QCOMPARE(toggle.toolTip(), u"Attiva l'attrezzatura"_s);
        QCOMPARE(buttonLook(&toggle, ButtonLook::Plain), ButtonLook::Positive);
        QCOMPARE(textOf(*s.view, u"detailState"_s), u"Inattivo"_s);
        QTest::mouseClick(&toggle, Qt::LeftButton);
        QVERIFY(s.stored().isActive);
    }

    void historyNewestFirst()
    {
        ShownDetail s(threeRecords());
        QCOMPARE(s.descriptions(), QStringList({u"ultima"_s, u"metà"_s, u"prima"_s}));
        QVERIFY(!isShown(*s.view, u"emptyHistory"_s));
    }

    void recordIsDeletedAfterItsConfirmation()
    {
        ShownDetail s(threeRecords());
        click(s.row(0), u"deleteMaintenance"_s);
        auto& alert = openDialog<Alert>(*s.view);
        QCOMPARE(alert.windowTitle(), u"Elimina Manutenzione"_s);
        QCOMPARE(alert.message(), u"Eliminare la manutenzione del 10 giu 2026?\nAnche eventuali documenti "
                                  "allegati verranno rimossi."_s);
        QTest::keyClick(&alert, Qt::Key_Return);
        QCOMPARE(s.descriptions().size(), 3);
        QCOMPARE(s.stored().maintenanceHistory.size(), 3);

        click(s.row(0), u"deleteMaintenance"_s);
        click(openDialog<Alert>(*s.view), u"destructive"_s);
        QCOMPARE(s.descriptions(), QStringList({u"metà"_s, u"prima"_s}));
        const Equipment stored = s.stored();
        QCOMPARE(stored.maintenanceHistory.size(), 2);
        QCOMPARE(stored.lastServiceDate, s.f.inDays(-20));
        QCOMPARE(stored.nextServiceDate, s.f.inDays(345));
        QCOMPARE(s.view->equipment(), stored);
    }

    void lastRecordLeavesTheEmptyHistoryAtOnce()
    {
        ShownDetail s({makeRecord(1, 1, u"sola"_s)});
        click(s.row(0), u"deleteMaintenance"_s);
        click(openDialog<Alert>(*s.view), u"destructive"_s);
        QVERIFY(isShown(*s.view, u"emptyHistory"_s));
        QCOMPARE(s.descriptions(), QStringList());
    }

    void theFocusStaysNearADeletedRecord()
    {
        ShownDetail s(threeRecords());
        for (int left = 2; left >= 0; --left) {
            click(s.row(left), u"deleteMaintenance"_s);
            click(openDialog<Alert>(*s.view), u"destructive"_s);
            QWidget& next = left > 0 ? part(s.row(left - 1), u"editMaintenance"_s) : part(*s.view, u"addMaintenance"_s);
            QCOMPARE(s.view->focusWidget(), &next);
        }
    }

    void aLongHistoryMakesFewRows()
    {
        QList<Maintenance> records;
        for (int i = 0; i < 500; ++i)
            records.append(makeRecord(i, i, u"Intervento %1"_s.arg(i) + u" e prova"_s.repeated(i % 20)));
        ShownDetail s(records);
        s.view->resize(385, 700);
        settle();
        const auto check = [&s](int index) {
            const MaintenanceRow& row = s.row(index);
            QVERIFY(textOf(row, u"maintenanceDescription"_s).startsWith(u"Intervento %1"_s.arg(index)));
            QCOMPARE(row.height(), row.heightForWidth(row.width()));
            QVERIFY(s.view->findChildren<MaintenanceRow*>().size() < 20);
        };
        check(0);
        check(1);
        QScrollBar& bar = *s.view->findChild<QScrollArea*>()->verticalScrollBar();
        bar.setValue(bar.maximum());
        check(499);
        check(498);
        QVERIFY(!s.row(499).visibleRegion().isEmpty());
        part(s.row(499), u"editMaintenance"_s).setFocus();
        QTest::keyClick(s.view->focusWidget(), Qt::Key_Backtab);
        QVERIFY(s.row(498).isAncestorOf(s.view->focusWidget()));
        QTest::keyClick(s.view->focusWidget(), Qt::Key_Tab);
        click(s.row(499), u"deleteMaintenance"_s);
        QCOMPARE(openDialog<Alert>(*s.view).message().section(u'\n', 0, 0),
                 u"Eliminare la manutenzione del %1?"_s.arg(
                     textOf(s.row(499), u"maintenanceDate"_s).section(u" · "_s, 0, 0)));
    }

    void unknownRecord()
    {
        ShownDetail s(threeRecords());
        s.view->confirmDeleteMaintenance(SequentialIds::at(99'999));
        auto& alert = openDialog<Alert>(*s.view);
        QCOMPARE(alert.message(), u"Eliminare questa manutenzione?"_s);
        s.f.takeLog();
        click(alert, u"destructive"_s);
        QCOMPARE(s.stored().maintenanceHistory.size(), 3);
        QCOMPARE(s.f.takeLog(), QStringList());
        s.view->startEditingMaintenance(SequentialIds::at(99'999));
        QCOMPARE(openDialog<MaintenanceFormView>(*s.view).windowTitle(), u"Nuova Manutenzione"_s);
    }

    void itemIsDeletedAfterItsConfirmation()
    {
        ShownDetail s;
        QSignalSpy closed(s.view.get(), &EquipmentDetailView::closed);
        click(*s.view, u"deleteEquipment"_s);
        auto& alert = openDialog<Alert>(*s.view);
        QCOMPARE(alert.windowTitle(), u"Conferma Eliminazione"_s);
        QCOMPARE(alert.message(), u"Sei sicuro di voler eliminare l'attrezzatura 'Erogatore di riserva'? "
                                  "Questa azione non può essere annullata."_s);
        QTest::keyClick(&alert, Qt::Key_Escape);
        QCOMPARE(s.stored().id, s.item.id);
        QCOMPARE(closed.size(), 0);
        click(*s.view, u"deleteEquipment"_s);
        click(openDialog<Alert>(*s.view), u"destructive"_s);
        QVERIFY(s.stored().id.isNull());
        QCOMPARE(closed.size(), 1);
    }

    void deletedElsewhereItNeverComesBack()
    {
        ShownDetail s(threeRecords());
        s.f.equipment.deleteEquipment(s.item);
        const auto count = s.f.equipment.equipment().size();
        s.f.takeLog();
        QCOMPARE(s.view->equipment().name, s.item.name);
        click(*s.view, u"toggleActive"_s);
        click(s.row(0), u"deleteMaintenance"_s);
        click(openDialog<Alert>(*s.view), u"destructive"_s);
        QCOMPARE(s.descriptions().size(), 2);
        QCOMPARE(s.f.equipment.equipment().size(), count);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void followsTheRegisterAndTheTypes()
    {
        ShownDetail s;
        s.item.name = u"Nuovo nome"_s;
        s.f.equipment.updateEquipment(s.item);
        QCOMPARE(textOf(*s.view, u"detailName"_s), s.item.name);
        s.f.equipment.addMaintenance(s.item.id, makeRecord(1, 1, u"aggiunta"_s));
        settle();
        QCOMPARE(s.descriptions(), QStringList(u"aggiunta"_s));
        QCOMPARE(s.view->equipment().lastServiceDate, s.f.inDays(-1));
    }

    void recordIsEditedFromItsButtonAndItsMenu()
    {
        ShownDetail s(threeRecords());
        click(s.row(1), u"editMaintenance"_s);
        auto& form = openDialog<MaintenanceFormView>(*s.view);
        QCOMPARE(form.windowTitle(), u"Modifica Manutenzione"_s);
        auto& description = part<QLineEdit>(form, u"description"_s);
        QCOMPARE(description.text(), u"metà"_s);
        description.selectAll();
        QTest::keyClicks(&description, u"cambiata"_s);
        click(form, u"primary"_s);
        QVERIFY(!isDialogOpen(*s.view));
        QCOMPARE(s.descriptions().at(1), u"cambiata"_s);

        click(s.row(1), u"maintenanceMenu"_s);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().at(0)->text(), u"Modifica manutenzione"_s);
        QCOMPARE(menu->actions().at(1)->text(), u"Elimina manutenzione"_s);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(openDialog<Alert>(*s.view).windowTitle(), u"Elimina Manutenzione"_s);
    }

    void itemIsEdited()
    {
        ShownDetail s;
        click(*s.view, u"editEquipment"_s);
        auto& form = openDialog<EditEquipmentView>(*s.view);
        form.findChild<QLineEdit*>()->setText(u"Rinominato"_s);
        click(form, u"primary"_s);
        QCOMPARE(textOf(*s.view, u"detailName"_s), u"Rinominato"_s);
        QCOMPARE(s.stored().name, u"Rinominato"_s);
    }

    void newRecordIsAdded()
    {
        ShownDetail s;
        click(*s.view, u"addMaintenance"_s);
        auto& form = openDialog<MaintenanceFormView>(*s.view);
        settle();
        QTest::keyClicks(&part(form, u"description"_s), u"Revisione"_s);
        QTest::keyClick(&form, Qt::Key_Return, Qt::ControlModifier);
        settle();
        QCOMPARE(s.descriptions(), QStringList(u"Revisione"_s));
        QCOMPARE(s.stored().maintenanceHistory.size(), 1);
    }

    void asASheet()
    {
        RegisterFixture f;
        QWidget below;
        below.resize(1280, 800);
        below.show();
        ViewSheet* const sheet =
            EquipmentDetailView::makeSheet(f.detail(f.equipment.equipment().first()), f.opener, &below);
        sheet->open();
        QCOMPARE(sheet->size(), QSize(750, 650));
        QCOMPARE(sheet->windowTitle(), u"Dettagli Attrezzatura"_s);
        click(*sheet, u"closeDetail"_s);
        QVERIFY(!sheet->isVisible());
    }
};

ABISSORA_TEST(tst_EquipmentDetailView);

#include "tst_EquipmentDetailView.moc"
