// SPDX-License-Identifier: MIT
#include "EquipmentDetailView.h"
#include "ScaledText.h"

#include "Alert.h"
#include "Buttons.h"
#include "ClippedTexts.h"
#include "DetailParts.h"
#include "DetailRow.h"
#include "EditEquipmentView.h"
#include "EquipmentDetailSheet.h"
#include "MaintenanceFormView.h"
#include "MaintenanceRow.h"
#include "SelectableText.h"
#include "TestRunner.h"

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

/// One item with the given history, on show.
struct Shown
{
    explicit Shown(const QList<Maintenance>& history = {}, int days = 100)
        : item(makeItem(1, QStringLiteral("Erogatore di riserva"), EquipmentType::regulator, {}))
    {
        item.nextServiceDate = f.inDays(days);
        item.maintenanceHistory = history;
        f.equipment.addEquipment(item);
        f.takeLog();
        view = std::make_unique<EquipmentDetailView>(f.context, item);
        view->resize(385, 1400);
        view->show();
        view->activateWindow();
        settle();
    }

    [[nodiscard]] Equipment stored() const
    {
        for (const Equipment& candidate : f.equipment.equipment()) {
            if (candidate.id == item.id)
                return candidate;
        }
        return {};
    }
    [[nodiscard]] QStringList descriptions() const
    {
        QStringList texts;
        for (const MaintenanceRow* row : view->findChildren<MaintenanceRow*>()) {
            if (row->isVisible())
                texts.append(row->maintenance().description);
        }
        return texts;
    }
    MaintenanceRow& row(int index) { return part<MaintenanceRow>(*view, QStringLiteral("maintenance%1").arg(index)); }

    ScreenFixture f;
    Equipment item;
    std::unique_ptr<EquipmentDetailView> view;
};

QList<Maintenance> threeRecords()
{
    const ScreenFixture f;
    return {makeRecord(f, 1, 20, QStringLiteral("metà")), makeRecord(f, 2, 40, QStringLiteral("prima")),
            makeRecord(f, 3, 5, QStringLiteral("ultima"))};
}

} // namespace

class tst_EquipmentDetailView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void header()
    {
        Shown s({}, 30);
        QCOMPARE(textOf(*s.view, QStringLiteral("detailName")), s.item.name);
        QCOMPARE(textOf(*s.view, QStringLiteral("detailType")), QStringLiteral("Erogatore"));
        QCOMPARE(textOf(*s.view, QStringLiteral("detailState")), QStringLiteral("Attivo"));
        QVERIFY(isShown(*s.view, QStringLiteral("dueBadge")));
        Shown later({}, 31);
        QVERIFY(!isShown(*later.view, QStringLiteral("dueBadge")));
    }

    void order()
    {
        Shown s(threeRecords());
        int bottom = -1;
        const auto below = [&](const QWidget& widget) {
            const int top = widget.mapTo(s.view.get(), QPoint()).y();
            const bool isBelow = top >= bottom;
            bottom = top + widget.height();
            return isBelow;
        };
        QVERIFY(below(part(*s.view, QStringLiteral("closeDetail"))));
        QVERIFY(below(part(*s.view, QStringLiteral("detailName"))));
        for (const DetailRow* row : s.view->findChildren<DetailRow*>())
            QVERIFY2(below(*row), qPrintable(row->label()));
        QVERIFY(below(part(*s.view, QStringLiteral("notes"))));
        QVERIFY(below(part(*s.view, QStringLiteral("editEquipment"))));
        for (int i = 0; i < 3; ++i)
            QVERIFY(below(s.row(i)));
    }

    void notesCanBeSelected()
    {
        Shown s;
        auto& notes = part<SelectableText>(*s.view, QStringLiteral("notes"));
        QCOMPARE(notes.toPlainText(), QStringLiteral("Nessuna nota inserita"));
        s.item.notes = QStringLiteral("Prima riga\nseconda <b>riga</b>");
        s.f.equipment.updateEquipment(s.item);
        QCOMPARE(notes.toPlainText(), s.item.notes);
        QVERIFY(notes.isReadOnly());
        notes.setFocus();
        QTest::keyClick(&notes, Qt::Key_A, Qt::ControlModifier);
        QVERIFY(notes.textCursor().hasSelection());
    }

    void actionsAndTheirHelp()
    {
        Shown s;
        const auto helpOf = [&](const char* name) { return part(*s.view, QLatin1String(name)).toolTip(); };
        QCOMPARE(helpOf("editEquipment"), QStringLiteral("Modifica l'attrezzatura"));
        QCOMPARE(helpOf("addMaintenance"), QStringLiteral("Aggiungi una nuova manutenzione"));
        QCOMPARE(helpOf("toggleActive"), QStringLiteral("Disattiva l'attrezzatura"));
        QCOMPARE(helpOf("deleteEquipment"), QStringLiteral("Elimina l'attrezzatura"));
    }

    void activeIsSwitchedOffAndOn()
    {
        Shown s;
        auto& toggle = part<LookButton>(*s.view, QStringLiteral("toggleActive"));
        QCOMPARE(buttonLook(&toggle, ButtonLook::Plain), ButtonLook::Caution);
        QTest::mouseClick(&toggle, Qt::LeftButton);
        QVERIFY(!s.stored().isActive);
        QCOMPARE(s.f.takeLog(), QStringList(QStringLiteral("✏️ Aggiornato equipaggiamento: ") + s.item.name));
        QCOMPARE(toggle.text(), QStringLiteral("Attiva"));
        QCOMPARE(toggle.toolTip(), QStringLiteral("Attiva l'attrezzatura"));
        QCOMPARE(buttonLook(&toggle, ButtonLook::Plain), ButtonLook::Positive);
        QCOMPARE(textOf(*s.view, QStringLiteral("detailState")), QStringLiteral("Inattivo"));
        QTest::mouseClick(&toggle, Qt::LeftButton);
        QVERIFY(s.stored().isActive);
    }

    void historyNewestFirst()
    {
        Shown s(threeRecords());
        QCOMPARE(s.descriptions(),
                 QStringList({QStringLiteral("ultima"), QStringLiteral("metà"), QStringLiteral("prima")}));
        QVERIFY(!isShown(*s.view, QStringLiteral("emptyHistory")));
    }

    void rowTexts()
    {
        const ScreenFixture f;
        Maintenance done = makeRecord(f, 1, 1, QStringLiteral("Tagliando"));
        done.cost = 12.5;
        Maintenance open = makeRecord(f, 2, 2, QStringLiteral("Prova"));
        open.type = MaintenanceType::test;
        open.isCompleted = false;
        Maintenance old = makeRecord(f, 3, 3, QStringLiteral("Antica"));
        old.isCompleted.reset();
        Shown s({done, open, old});
        QCOMPARE(textOf(s.row(0), QStringLiteral("maintenanceType")), QStringLiteral("Manutenzione Annuale"));
        QCOMPARE(textOf(s.row(0), QStringLiteral("maintenanceCost")), QStringLiteral("€12.50"));
        QCOMPARE(textOf(s.row(0), QStringLiteral("maintenanceDescription")), QStringLiteral("Tagliando"));
        QCOMPARE(textOf(s.row(0), QStringLiteral("maintenanceDate")),
                 QStringLiteral("14 giu 2026 · Eseguito da: Blu Service"));
        QCOMPARE(textOf(s.row(0), QStringLiteral("completed")), QStringLiteral("Manutenzione avvenuta"));
        QVERIFY(!isShown(s.row(0), QStringLiteral("notCompleted")));
        QCOMPARE(textOf(s.row(1), QStringLiteral("maintenanceType")), QStringLiteral("Test"));
        QVERIFY(!isShown(s.row(1), QStringLiteral("maintenanceCost")));
        QCOMPARE(textOf(s.row(1), QStringLiteral("notCompleted")), QStringLiteral("Manutenzione non avvenuta"));
        QVERIFY(!isShown(s.row(1), QStringLiteral("completed")));
        QVERIFY(isShown(s.row(2), QStringLiteral("completed")));
    }

    void recordIsDeletedAfterItsConfirmation()
    {
        Shown s(threeRecords());
        click(s.row(0), QStringLiteral("deleteMaintenance"));
        auto& alert = openDialog<Alert>(*s.view);
        QCOMPARE(alert.windowTitle(), QStringLiteral("Elimina Manutenzione"));
        QCOMPARE(alert.message(),
                 QStringLiteral("Eliminare la manutenzione del 10 giu 2026?\nAnche eventuali documenti "
                                "allegati verranno rimossi."));
        QTest::keyClick(&alert, Qt::Key_Return);
        QCOMPARE(s.descriptions().size(), 3);
        QCOMPARE(s.stored().maintenanceHistory.size(), 3);

        click(s.row(0), QStringLiteral("deleteMaintenance"));
        click(openDialog<Alert>(*s.view), QStringLiteral("destructive"));
        QCOMPARE(s.descriptions(), QStringList({QStringLiteral("metà"), QStringLiteral("prima")}));
        const Equipment stored = s.stored();
        QCOMPARE(stored.maintenanceHistory.size(), 2);
        QCOMPARE(stored.lastServiceDate, s.f.inDays(-20));
        QCOMPARE(stored.nextServiceDate, s.f.inDays(345));
        QCOMPARE(s.view->equipment(), stored);
    }

    void lastRecordLeavesTheEmptyHistoryAtOnce()
    {
        const ScreenFixture f;
        Shown s({makeRecord(f, 1, 1, QStringLiteral("sola"))});
        click(s.row(0), QStringLiteral("deleteMaintenance"));
        click(openDialog<Alert>(*s.view), QStringLiteral("destructive"));
        QVERIFY(isShown(*s.view, QStringLiteral("emptyHistory")));
        QCOMPARE(s.descriptions(), QStringList());
    }

    void theFocusStaysNearADeletedRecord()
    {
        Shown s(threeRecords());
        for (int left = 2; left >= 0; --left) {
            click(s.row(left), QStringLiteral("deleteMaintenance"));
            click(openDialog<Alert>(*s.view), QStringLiteral("destructive"));
            QWidget& next = left > 0 ? part(s.row(left - 1), QStringLiteral("editMaintenance"))
                                     : part(*s.view, QStringLiteral("addMaintenance"));
            QCOMPARE(s.view->focusWidget(), &next);
        }
    }

    void unknownRecord()
    {
        Shown s(threeRecords());
        s.view->confirmDeleteMaintenance(SequentialIds::at(99'999));
        auto& alert = openDialog<Alert>(*s.view);
        QCOMPARE(alert.message(), QStringLiteral("Eliminare questa manutenzione?"));
        s.f.takeLog();
        click(alert, QStringLiteral("destructive"));
        QCOMPARE(s.stored().maintenanceHistory.size(), 3);
        QCOMPARE(s.f.takeLog(), QStringList());
        s.view->startEditingMaintenance(SequentialIds::at(99'999));
        QCOMPARE(openDialog<MaintenanceFormView>(*s.view).windowTitle(), QStringLiteral("Nuova Manutenzione"));
    }

    void itemIsDeletedAfterItsConfirmation()
    {
        Shown s;
        QSignalSpy closed(s.view.get(), &EquipmentDetailView::closed);
        click(*s.view, QStringLiteral("deleteEquipment"));
        auto& alert = openDialog<Alert>(*s.view);
        QCOMPARE(alert.windowTitle(), QStringLiteral("Conferma Eliminazione"));
        QCOMPARE(alert.message(), QStringLiteral("Sei sicuro di voler eliminare l'attrezzatura 'Erogatore di riserva'? "
                                                 "Questa azione non può essere annullata."));
        QTest::keyClick(&alert, Qt::Key_Escape);
        QCOMPARE(s.stored().id, s.item.id);
        QCOMPARE(closed.size(), 0);
        click(*s.view, QStringLiteral("deleteEquipment"));
        click(openDialog<Alert>(*s.view), QStringLiteral("destructive"));
        QVERIFY(s.stored().id.isNull());
        QCOMPARE(closed.size(), 1);
    }

    void deletedElsewhereItNeverComesBack()
    {
        Shown s(threeRecords());
        s.f.equipment.deleteEquipment(s.item);
        const auto count = s.f.equipment.equipment().size();
        s.f.takeLog();
        QCOMPARE(s.view->equipment().name, s.item.name);
        click(*s.view, QStringLiteral("toggleActive"));
        click(s.row(0), QStringLiteral("deleteMaintenance"));
        click(openDialog<Alert>(*s.view), QStringLiteral("destructive"));
        QCOMPARE(s.descriptions().size(), 2);
        QCOMPARE(s.f.equipment.equipment().size(), count);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void followsTheRegisterAndTheTypes()
    {
        Shown s;
        s.item.name = QStringLiteral("Nuovo nome");
        s.f.equipment.updateEquipment(s.item);
        QCOMPARE(textOf(*s.view, QStringLiteral("detailName")), s.item.name);
        s.f.equipment.addMaintenance(s.item.id, makeRecord(s.f, 1, 1, QStringLiteral("aggiunta")));
        settle();
        QCOMPARE(s.descriptions(), QStringList(QStringLiteral("aggiunta")));
        QCOMPARE(s.view->equipment().lastServiceDate, s.f.inDays(-1));
    }

    void recordIsEditedFromItsButtonAndItsMenu()
    {
        Shown s(threeRecords());
        click(s.row(1), QStringLiteral("editMaintenance"));
        auto& form = openDialog<MaintenanceFormView>(*s.view);
        QCOMPARE(form.windowTitle(), QStringLiteral("Modifica Manutenzione"));
        auto& description = part<QLineEdit>(form, QStringLiteral("description"));
        QCOMPARE(description.text(), QStringLiteral("metà"));
        description.selectAll();
        QTest::keyClicks(&description, QStringLiteral("cambiata"));
        click(form, QStringLiteral("primary"));
        QVERIFY(!isDialogOpen(*s.view));
        QCOMPARE(s.descriptions().at(1), QStringLiteral("cambiata"));

        click(s.row(1), QStringLiteral("maintenanceMenu"));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Modifica manutenzione"));
        QCOMPARE(menu->actions().at(1)->text(), QStringLiteral("Elimina manutenzione"));
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(openDialog<Alert>(*s.view).windowTitle(), QStringLiteral("Elimina Manutenzione"));
    }

    void itemIsEdited()
    {
        Shown s;
        click(*s.view, QStringLiteral("editEquipment"));
        auto& form = openDialog<EditEquipmentView>(*s.view);
        form.findChild<QLineEdit*>()->setText(QStringLiteral("Rinominato"));
        click(form, QStringLiteral("primary"));
        QCOMPARE(textOf(*s.view, QStringLiteral("detailName")), QStringLiteral("Rinominato"));
        QCOMPARE(s.stored().name, QStringLiteral("Rinominato"));
    }

    void newRecordIsAdded()
    {
        Shown s;
        click(*s.view, QStringLiteral("addMaintenance"));
        auto& form = openDialog<MaintenanceFormView>(*s.view);
        settle();
        QTest::keyClicks(&part(form, QStringLiteral("description")), QStringLiteral("Revisione"));
        QTest::keyClick(&form, Qt::Key_Return, Qt::ControlModifier);
        settle();
        QCOMPARE(s.descriptions(), QStringList(QStringLiteral("Revisione")));
        QCOMPARE(s.stored().maintenanceHistory.size(), 1);
    }

    void everythingThatTakesTheFocusHasANameAndIsReachedByTab()
    {
        Shown s(threeRecords());
        QStringList order;
        part(*s.view, QStringLiteral("closeDetail")).setFocus();
        for (int i = 0; i < 11; ++i) {
            QWidget* const focused = QApplication::focusWidget();
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(focused);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(focused->objectName()));
            order.append(focused->objectName());
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QCOMPARE(order,
                 QStringList({QStringLiteral("closeDetail"), QStringLiteral("notes"), QStringLiteral("editEquipment"),
                              QStringLiteral("addMaintenance"), QStringLiteral("toggleActive"),
                              QStringLiteral("deleteEquipment"), QStringLiteral("editMaintenance"),
                              QStringLiteral("deleteMaintenance"), QStringLiteral("maintenanceMenu"),
                              QStringLiteral("uploadReceipt"), QStringLiteral("uploadCertificate")}));
    }

    void nothingIsCutOff_data()
    {
        QTest::addColumn<qreal>("size");
        QTest::newRow("usual text") << 1.0;
        QTest::newRow("larger by a quarter") << 1.25;
    }

    void nothingIsCutOff()
    {
        QFETCH(qreal, size);
        const ScaledText scaled(size);
        const ScreenFixture f;
        Maintenance record = makeRecord(f, 1, 1, QStringLiteral("Sostituzione degli anelli di tenuta e prova"));
        record.cost = 1234.5;
        record.performedBy = QString(60, QLatin1Char('W'));
        Shown s({record}, 3);
        s.item.name = QString(70, QLatin1Char('W'));
        s.item.serialNumber = QString(50, QLatin1Char('8'));
        s.item.notes = QString(200, QLatin1Char('n'));
        s.f.equipment.updateEquipment(s.item);
        s.view->resize(s.view->minimumWidth(), 2400);
        settle();
        QCOMPARE(clippedTexts(*s.view), QStringList());
    }

    void asASheet()
    {
        ScreenFixture f;
        QWidget below;
        below.resize(1280, 800);
        below.show();
        EquipmentDetailSheet sheet(f.context, f.equipment.equipment().first(), &below);
        sheet.open();
        QCOMPARE(sheet.size(), QSize(750, 650));
        QCOMPARE(sheet.windowTitle(), QStringLiteral("Dettagli Attrezzatura"));
        click(sheet, QStringLiteral("closeDetail"));
        QVERIFY(!sheet.isVisible());
    }
};

ABISSORA_TEST(tst_EquipmentDetailView);

#include "tst_EquipmentDetailView.moc"
