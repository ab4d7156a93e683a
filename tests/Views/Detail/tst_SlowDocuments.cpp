// SPDX-License-Identifier: MIT
#include "DesktopProgressPanel.h"
#include "EquipmentDetailView.h"
#include "GatedWork.h"
#include "Gui.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "ProgressSheet.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

#include <QLineEdit>

using namespace abissora;
using namespace abissora::test;

namespace {

using namespace std::chrono_literals;

/// A record with a receipt, in its item's detail screen or in the form over it.
struct SlowDetail
{
    SlowDetail()
    {
        Equipment item = makeItem(1, u"Bombola"_s, EquipmentType::cylinder, f.inDays(100));
        Maintenance record = makeRecord(1, 1, u"Collaudo"_s);
        record.receiptFileName = f.storedDocument(u"vecchio.pdf"_s);
        item.maintenanceHistory = {record};
        f.equipment.addEquipment(item);
        view = std::make_unique<EquipmentDetailView>(f.detail(item), f.opener);
        view->resize(600, 1200);
        activate(*view);
        before = files();
        f.takeLog();
    }

    void openForm()
    {
        view->startEditingMaintenance(record().id);
        settle();
        form = findDialog<MaintenanceFormView>(*view);
        if (!QTest::qWaitForWindowActive(form))
            qFatal("the form did not become active");
    }
    /// In the form; "Scontrino" or "Certificato".
    void attach(const QString& label)
    {
        f.panel.answer(f.writePdf(u"nuovo.pdf"_s));
        click(*form, u"attach"_s + label);
    }
    void upload()
    {
        f.panel.answer(f.writePdf(u"nuovo.pdf"_s));
        click(*view, u"uploadCertificate"_s);
    }
    /// From now on copies run on threads that wait for the gate; a sheet shows them after `patience`.
    void useThreads(std::chrono::milliseconds patience)
    {
        panel = std::make_unique<DesktopProgressPanel>(patience);
        gate = std::make_unique<GatedWork>(*panel);
        f.work.leaveTo(gate.get());
    }

    [[nodiscard]] const Maintenance& record() const
    {
        return f.equipment.equipment().last().maintenanceHistory.first();
    }
    /// Every document with its content.
    [[nodiscard]] QMap<QString, QByteArray> files() const
    {
        QMap<QString, QByteArray> found;
        for (const QString& name : f.names(u"MaintenanceDocuments"_s))
            found.insert(name, f.content(u"MaintenanceDocuments/"_s + name));
        return found;
    }

    RegisterFixture f;
    std::unique_ptr<DesktopProgressPanel> panel;
    std::unique_ptr<GatedWork> gate;
    std::unique_ptr<EquipmentDetailView> view;
    QPointer<MaintenanceFormView> form;
    QMap<QString, QByteArray> before;
};

} // namespace

/// Documents whose copies take a while.
class tst_SlowDocuments : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leavingTheFormChangesNothing_data()
    {
        QTest::addColumn<std::function<void(SlowDetail&)>>("leave");
        using Leave = std::function<void(SlowDetail&)>;
        QTest::newRow("Annulla") << Leave([](SlowDetail& s) { click(*s.form, u"cancel"_s); });
        QTest::newRow("Escape") << Leave([](SlowDetail& s) { QTest::keyClick(s.form.data(), Qt::Key_Escape); });
        QTest::newRow("closing") << Leave([](SlowDetail& s) { s.form->close(); });
        QTest::newRow("destruction of the form") << Leave([](SlowDetail& s) { delete s.form; });
        QTest::newRow("destruction of the screen") << Leave([](SlowDetail& s) { s.view.reset(); });
    }

    /// Whatever was removed, attached or still being copied.
    void leavingTheFormChangesNothing()
    {
        using Leave = std::function<void(SlowDetail&)>;
        QFETCH(Leave, leave);
        SlowDetail s;
        const Maintenance stored = s.record();
        const QByteArray onDisk = s.f.content(registerFile);
        s.openForm();
        type(*s.form, u"description"_s, u"Altro"_s);
        click(*s.form, u"removeScontrino"_s);
        s.attach(u"Scontrino"_s);
        QCOMPARE(s.files().size(), 2);
        s.f.work.beSlow();
        s.attach(u"Certificato"_s);
        leave(s);
        settle();
        QVERIFY(!s.form);
        s.f.work.finish();
        QCOMPARE(s.record(), stored);
        QCOMPARE(s.f.content(registerFile), onDisk);
        QCOMPARE(s.files(), s.before);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void savingTheFormMakesTheChange()
    {
        SlowDetail s;
        s.openForm();
        click(*s.form, u"removeScontrino"_s);
        s.attach(u"Certificato"_s);
        click(*s.form, u"primary"_s);
        QVERIFY(!s.record().receiptFileName);
        QCOMPARE(s.files().keys(), QStringList(s.record().certificateFileName.value()));
    }

    void savingWaitsForTheDocuments()
    {
        SlowDetail s;
        s.openForm();
        click(*s.form, u"removeScontrino"_s);
        s.f.work.beSlow();
        s.attach(u"Scontrino"_s);
        s.attach(u"Certificato"_s);
        const Maintenance stored = s.record();
        click(*s.form, u"primary"_s);
        QVERIFY(s.form->isVisible());
        s.f.work.finish();
        QVERIFY(s.form->isVisible());
        QCOMPARE(s.record(), stored);
        s.f.work.finish();
        settle();
        QVERIFY(!s.form);
        QStringList names{s.record().receiptFileName.value(), s.record().certificateFileName.value()};
        names.sort();
        QCOMPARE(s.files().keys(), names);
    }

    void aDocumentThatFailsKeepsTheFormOpen_data()
    {
        QTest::addColumn<bool>("byThePerson");
        QTest::newRow("cancelled") << true;
        QTest::newRow("failed") << false;
    }

    void aDocumentThatFailsKeepsTheFormOpen()
    {
        QFETCH(bool, byThePerson);
        SlowDetail s;
        s.openForm();
        s.f.work.beSlow();
        s.attach(u"Certificato"_s);
        click(*s.form, u"primary"_s);
        if (byThePerson)
            s.f.work.progress().cancel();
        else
            QVERIFY(QFile::remove(s.f.path(u"nuovo.pdf"_s)));
        const Maintenance stored = s.record();
        s.f.work.finish();
        settle();
        QVERIFY(s.form);
        QCOMPARE(s.record(), stored);
        // It is no longer waited for: another document does not save the form.
        s.attach(u"Certificato"_s);
        s.f.work.finish();
        settle();
        QVERIFY(s.form);
        click(*s.form, u"primary"_s);
        settle();
        QVERIFY(!s.form);
        QVERIFY(s.record().certificateFileName);
    }

    void oneDocumentDoesNotMakeUpForAnother()
    {
        SlowDetail s;
        s.openForm();
        click(*s.form, u"removeScontrino"_s);
        s.f.work.beSlow();
        s.attach(u"Scontrino"_s);
        s.attach(u"Certificato"_s);
        click(*s.form, u"primary"_s);
        s.f.work.progress().cancel();
        s.f.work.finish();
        s.f.work.finish();
        settle();
        QVERIFY(s.form);
        QVERIFY(isShown(*s.form, u"attachScontrino"_s));
        QVERIFY(isShown(*s.form, u"openCertificato"_s));
    }

    void aSecondClickInTheFormStartsNothing()
    {
        SlowDetail s;
        s.openForm();
        s.f.work.beSlow();
        s.attach(u"Certificato"_s);
        click(*s.form, u"primary"_s);
        click(*s.form, u"attachCertificato"_s);
        QCOMPARE(s.f.panel.requests().size(), 1);
        s.f.work.finish();
        settle();
        QVERIFY(!s.form); // saved, as was asked for before
    }

    void aSecondClickInTheHistoryStartsNothing()
    {
        SlowDetail s;
        s.f.work.beSlow();
        s.upload();
        click(*s.view, u"uploadCertificate"_s);
        QCOMPARE(s.f.panel.requests().size(), 1);
        s.f.work.finish();
        QVERIFY(isShown(*s.view, u"openCertificate"_s));
        QVERIFY(part(*s.view, u"openCertificate"_s).hasFocus());
    }

    void theScreenMayGo()
    {
        SlowDetail s;
        s.f.work.beSlow();
        s.upload();
        s.view.reset();
        s.f.work.finish();
        QVERIFY(!s.record().certificateFileName);
        QCOMPARE(s.files(), s.before);
    }

    void theWindowAnswersMeanwhile()
    {
        SlowDetail s;
        s.useThreads(1h);
        s.openForm();
        s.attach(u"Certificato"_s);
        type(*s.form, u"description"_s, u"Scritto durante la copia"_s);
        settle();
        QCOMPARE(existing<QLineEdit>(*s.form, u"description"_s).text(), u"Scritto durante la copia"_s);
        QVERIFY(!isDialogOpen(*s.form));
        QCOMPARE(s.files(), s.before);
        s.gate->open();
        QTRY_VERIFY(isShown(*s.form, u"openCertificato"_s));
        click(*s.form, u"primary"_s);
        QCOMPARE(s.record().description, u"Scritto durante la copia"_s);
        QVERIFY(s.record().certificateFileName);
    }

    void theSheetGoesWhenTheDocumentIsThere()
    {
        SlowDetail s;
        s.useThreads(0ms);
        s.openForm();
        s.attach(u"Certificato"_s);
        QTRY_VERIFY(isDialogOpen(*s.form));
        QCOMPARE(openDialog<ProgressSheet>(*s.form).windowTitle(), u"Copia del documento…"_s);
        QVERIFY(QTest::qWaitForWindowActive(&openDialog(*s.form)));
        s.gate->open();
        QTRY_VERIFY(!isDialogOpen(*s.form));
        QTRY_VERIFY(part(*s.form, u"openCertificato"_s).hasFocus());
    }

    void theSheetCancels()
    {
        SlowDetail s;
        s.useThreads(0ms);
        s.openForm();
        s.attach(u"Certificato"_s);
        QTRY_VERIFY(isDialogOpen(*s.form));
        press(openDialog(*s.form), u"Annulla"_s);
        QVERIFY(!isDialogOpen(*s.form));
        QVERIFY(s.form->isVisible());
        s.gate.reset(); // with every thread
        QCOMPARE(s.files(), s.before);
        QVERIFY(isShown(*s.form, u"attachCertificato"_s));
    }

    void theFormMayGoUnderTheSheet()
    {
        SlowDetail s;
        s.useThreads(0ms);
        s.openForm();
        s.attach(u"Certificato"_s);
        QTRY_VERIFY(isDialogOpen(*s.form));
        delete s.form;
        s.gate.reset();
        settle();
        QCOMPARE(s.files(), s.before);
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList{s.view.get()});
    }

    /// As at the end of the program: the screens first, then what copies.
    void everythingMayGoUnderTheSheet()
    {
        SlowDetail s;
        s.useThreads(0ms);
        s.upload();
        QTRY_VERIFY(isDialogOpen(*s.view));
        s.view.reset();
        s.gate.reset();
        settle();
        QCOMPARE(s.files(), s.before);
        QVERIFY(!s.record().certificateFileName);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }
};

ABISSORA_TEST(tst_SlowDocuments);

#include "tst_SlowDocuments.moc"
