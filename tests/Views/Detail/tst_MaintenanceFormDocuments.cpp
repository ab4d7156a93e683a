// SPDX-License-Identifier: MIT
#include "Gui.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

struct FormWithDocuments
{
    explicit FormWithDocuments(bool withReceipt)
    {
        Equipment item = makeItem(1, u"Articolo"_s, EquipmentType::fins, f.inDays(100));
        Maintenance record = makeRecord(1, 1, u"Collaudo"_s);
        if (withReceipt)
            record.receiptFileName = f.storedDocument(u"vecchio.pdf"_s);
        item.maintenanceHistory = {record};
        f.equipment.addEquipment(item);
        below.resize(1280, 1300);
        below.show();
        form = std::make_unique<MaintenanceFormView>(f.draft(item.id, record), f.opener, &below);
        form->open();
        settle();
    }

    void attach(const char* slot)
    {
        f.panel.answer(f.writePdf(u"nuovo.pdf"_s));
        click(*form, u"attach"_s + QLatin1String(slot));
    }
    void save() { click(*form, u"primary"_s); }
    [[nodiscard]] Maintenance stored() const { return f.equipment.equipment().last().maintenanceHistory.first(); }

    RegisterFixture f;
    QWidget below;
    std::unique_ptr<MaintenanceFormView> form;
};

} // namespace

class tst_MaintenanceFormDocuments : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void attachedAndSaved()
    {
        FormWithDocuments s(false);
        s.attach("Certificato");
        QVERIFY(part(*s.form, u"openCertificato"_s).hasFocus());
        QVERIFY(!isShown(*s.form, u"attachCertificato"_s));
        QVERIFY(isShown(*s.form, u"attachScontrino"_s));
        s.save();
        QCOMPARE(s.f.documentFiles(), QStringList(s.stored().certificateFileName.value()));
        QVERIFY(!s.stored().receiptFileName);
    }

    void cancelledPanelAndFailedCopyLeaveTheSlotEmpty()
    {
        FormWithDocuments s(false);
        click(*s.form, u"attachScontrino"_s);
        s.f.panel.answer(s.f.folder.filePath(u"non-esiste.pdf"_s));
        click(*s.form, u"attachScontrino"_s);
        QCOMPARE(s.f.panel.requests().size(), 2);
        s.save();
        QVERIFY(!s.stored().receiptFileName);
    }

    void opened()
    {
        FormWithDocuments s(true);
        QCOMPARE(part<QAbstractButton>(*s.form, u"openScontrino"_s).text(), u"Apri"_s);
        click(*s.form, u"openScontrino"_s);
        QCOMPARE(s.f.opener.opened().size(), 1);
    }

    void removedOnceSaved()
    {
        FormWithDocuments s(true);
        const QStringList before = s.f.documentFiles();
        QCOMPARE(part<QAbstractButton>(*s.form, u"removeScontrino"_s).text(), u"Rimuovi"_s);
        click(*s.form, u"removeScontrino"_s);
        QCOMPARE(s.f.documentFiles(), before);
        QVERIFY(isShown(*s.form, u"attachScontrino"_s));
        s.save();
        QCOMPARE(s.f.documentFiles(), QStringList());
        QVERIFY(!s.stored().receiptFileName);
    }

    void removedInACancelledFormStays()
    {
        FormWithDocuments s(true);
        const QStringList before = s.f.documentFiles();
        click(*s.form, u"removeScontrino"_s);
        s.attach("Scontrino");
        QCOMPARE(s.f.documentFiles().size(), 2);
        click(*s.form, u"cancel"_s);
        QCOMPARE(s.f.documentFiles(), before);
        QCOMPARE(s.stored().receiptFileName, std::optional(before.first()));
    }

    void attachedInAFormThatGoesUnansweredGoesAgain()
    {
        FormWithDocuments s(false);
        s.attach("Scontrino");
        QCOMPARE(s.f.documentFiles().size(), 1);
        s.form.reset();
        QCOMPARE(s.f.documentFiles(), QStringList());
    }

    void theFormMayGoWhileThePanelIsOpen()
    {
        FormWithDocuments s(false);
        s.f.panel.meanwhile([&s] { s.form.reset(); });
        s.attach("Scontrino");
        QVERIFY(!s.form);
        QCOMPARE(s.f.documentFiles(), QStringList());
    }

    /// A file that no record names would lie there for ever.
    void attachedInACancelledFormGoesAgain()
    {
        FormWithDocuments s(true);
        const QStringList before = s.f.documentFiles();
        s.attach("Certificato");
        QCOMPARE(s.f.documentFiles().size(), 2);
        QTest::keyClick(s.form.get(), Qt::Key_Escape);
        QCOMPARE(s.f.documentFiles(), before);
        QVERIFY(!s.stored().certificateFileName);
        QVERIFY(s.stored().receiptFileName);
    }

    void nameOfAMissingFileIsKeptUntilAnotherTakesItsPlace()
    {
        FormWithDocuments s(true);
        const QString name = s.stored().receiptFileName.value();
        s.f.documents.deleteDocument(name);
        click(*s.form, u"openScontrino"_s);
        QVERIFY(isShown(*s.form, u"attachScontrino"_s));
        click(*s.form, u"attachScontrino"_s);
        s.save();
        QCOMPARE(s.stored().receiptFileName, std::optional(name));
    }
};

ABISSORA_TEST(tst_MaintenanceFormDocuments);

#include "tst_MaintenanceFormDocuments.moc"
