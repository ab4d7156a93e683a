// SPDX-License-Identifier: MIT
#include "DetailParts.h"
#include "MaintenanceFormView.h"
#include "TestRunner.h"

#include <QDir>

using namespace abissora;
using namespace abissora::test;

namespace {

struct Shown
{
    explicit Shown(bool withReceipt)
    {
        Equipment item = makeItem(1, QStringLiteral("Articolo"), EquipmentType::fins, f.inDays(100));
        Maintenance record = makeRecord(f, 1, 1, QStringLiteral("Collaudo"));
        if (withReceipt)
            record.receiptFileName = storedDocument(f, QStringLiteral("vecchio.pdf"));
        item.maintenanceHistory = {record};
        f.equipment.addEquipment(item);
        below.resize(1280, 1300);
        below.show();
        form = std::make_unique<MaintenanceFormView>(f.context, item.id, record, &below);
        form->open();
        settle();
    }

    void attach(const char* slot)
    {
        f.panel.answer(writePdf(f, QStringLiteral("nuovo.pdf")));
        click(*form, QStringLiteral("attach") + QLatin1String(slot));
    }
    void save() { click(*form, QStringLiteral("primary")); }
    [[nodiscard]] Maintenance stored() const { return f.equipment.equipment().last().maintenanceHistory.first(); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(f.directories.maintenanceDocuments()).entryList(QDir::Files, QDir::Name);
    }

    ScreenFixture f;
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
        Shown s(false);
        s.attach("Certificato");
        QVERIFY(part(*s.form, QStringLiteral("openCertificato")).hasFocus());
        QVERIFY(!isShown(*s.form, QStringLiteral("attachCertificato")));
        QVERIFY(isShown(*s.form, QStringLiteral("attachScontrino")));
        s.save();
        QCOMPARE(s.files(), QStringList(s.stored().certificateFileName.value()));
        QVERIFY(!s.stored().receiptFileName);
    }

    void cancelledPanelAndFailedCopyLeaveTheSlotEmpty()
    {
        Shown s(false);
        click(*s.form, QStringLiteral("attachScontrino"));
        s.f.panel.answer(s.f.folder.filePath(QStringLiteral("non-esiste.pdf")));
        click(*s.form, QStringLiteral("attachScontrino"));
        QCOMPARE(s.f.panel.requests().size(), 2);
        s.save();
        QVERIFY(!s.stored().receiptFileName);
    }

    void opened()
    {
        Shown s(true);
        QCOMPARE(part<QAbstractButton>(*s.form, QStringLiteral("openScontrino")).text(), QStringLiteral("Apri"));
        click(*s.form, QStringLiteral("openScontrino"));
        QCOMPARE(s.f.opener.opened().size(), 1);
    }

    void removedAtOnce()
    {
        Shown s(true);
        QCOMPARE(part<QAbstractButton>(*s.form, QStringLiteral("removeScontrino")).text(), QStringLiteral("Rimuovi"));
        click(*s.form, QStringLiteral("removeScontrino"));
        QCOMPARE(s.files(), QStringList());
        QVERIFY(isShown(*s.form, QStringLiteral("attachScontrino")));
        s.save();
        QVERIFY(!s.stored().receiptFileName);
    }

    /// A file that no record names would lie there for ever.
    void attachedInACancelledFormGoesAgain()
    {
        Shown s(true);
        const QStringList before = s.files();
        s.attach("Certificato");
        QCOMPARE(s.files().size(), 2);
        QTest::keyClick(s.form.get(), Qt::Key_Escape);
        QCOMPARE(s.files(), before);
        QVERIFY(!s.stored().certificateFileName);
        QVERIFY(s.stored().receiptFileName);
    }

    void nameOfAMissingFileIsKeptUntilAnotherTakesItsPlace()
    {
        Shown s(true);
        const QString name = s.stored().receiptFileName.value();
        s.f.documents.deleteDocument(name);
        click(*s.form, QStringLiteral("openScontrino"));
        QVERIFY(isShown(*s.form, QStringLiteral("attachScontrino")));
        click(*s.form, QStringLiteral("attachScontrino"));
        s.save();
        QCOMPARE(s.stored().receiptFileName, std::optional(name));
    }
};

ABISSORA_TEST(tst_MaintenanceFormDocuments);

#include "tst_MaintenanceFormDocuments.moc"
