// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "DetailParts.h"
#include "EquipmentDetailView.h"
#include "MaintenanceRow.h"
#include "TestRunner.h"

#include <QDir>

using namespace abissora;
using namespace abissora::test;

namespace {

/// An item with one record on show, whose document slots hold these names.
struct Shown
{
    using Names = std::function<void(ScreenFixture&, Maintenance&)>;

    explicit Shown(const Names& attach = [](ScreenFixture&, Maintenance&) {})
    {
        Equipment item = makeItem(1, QStringLiteral("Bombola"), EquipmentType::cylinder, f.inDays(100));
        Maintenance record = makeRecord(f, 1, 1, QStringLiteral("Collaudo"));
        attach(f, record);
        item.maintenanceHistory = {record};
        id = item.id;
        f.equipment.addEquipment(item);
        view = std::make_unique<EquipmentDetailView>(f.context, item);
        view->resize(385, 1200);
        view->show();
        view->activateWindow();
        settle();
    }

    [[nodiscard]] Maintenance stored() const { return f.equipment.equipment().last().maintenanceHistory.first(); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(f.directories.maintenanceDocuments()).entryList(QDir::Files, QDir::Name);
    }

    ScreenFixture f;
    QUuid id;
    std::unique_ptr<EquipmentDetailView> view;
};

void attachReceipt(ScreenFixture& f, Maintenance& record)
{
    record.receiptFileName = storedDocument(f, QStringLiteral("scontrino.pdf"));
}

} // namespace

class tst_DetailDocuments : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRowsButtonsSayWhichRecordTheyMean()
    {
        ScreenFixture f;
        MaintenanceRow row(f.context);
        row.setMaintenance(makeRecord(f, 1, 5, QStringLiteral("Revisione")));
        const QAbstractButton* remove = row.findChild<QAbstractButton*>(QStringLiteral("deleteMaintenance"));
        QCOMPARE(remove->accessibleDescription(), QStringLiteral("10 giu 2026, Revisione"));
        row.setMaintenance(makeRecord(f, 2, 6, QStringLiteral("Lavaggio")));
        QCOMPARE(remove->accessibleDescription(), QStringLiteral("9 giu 2026, Lavaggio"));
    }

    void withoutDocuments()
    {
        Shown s;
        QCOMPARE(part<QAbstractButton>(*s.view, QStringLiteral("uploadReceipt")).text(),
                 QStringLiteral("Carica Scontrino"));
        QCOMPARE(part<QAbstractButton>(*s.view, QStringLiteral("uploadCertificate")).text(),
                 QStringLiteral("Carica Certificato"));
        QVERIFY(!isShown(*s.view, QStringLiteral("openReceipt")));
        QVERIFY(!isShown(*s.view, QStringLiteral("replaceReceipt")));
    }

    void uploading()
    {
        Shown s;
        s.f.panel.answer(writePdf(s.f, QStringLiteral("a.pdf")));
        click(*s.view, QStringLiteral("uploadCertificate"));
        QCOMPARE(s.f.panel.requests().size(), 1);
        QVERIFY(!s.stored().receiptFileName);
        QCOMPARE(s.files(), QStringList(s.stored().certificateFileName.value()));
        QCOMPARE(part<QAbstractButton>(*s.view, QStringLiteral("openCertificate")).text(),
                 QStringLiteral("Certificato"));
        QVERIFY(part(*s.view, QStringLiteral("openCertificate")).hasFocus());
        QVERIFY(!isShown(*s.view, QStringLiteral("uploadCertificate")));
    }

    void cancelledPanel()
    {
        Shown s;
        s.f.takeLog();
        click(*s.view, QStringLiteral("uploadReceipt"));
        QVERIFY(!s.stored().receiptFileName);
        QCOMPARE(s.f.takeLog(), QStringList(QStringLiteral("✏️ Aggiornato equipaggiamento: Bombola")));
        QVERIFY(isShown(*s.view, QStringLiteral("uploadReceipt")));
    }

    void opening()
    {
        Shown s(attachReceipt);
        click(*s.view, QStringLiteral("openReceipt"));
        QCOMPARE(s.f.opener.opened(),
                 QList<QUrl>({QUrl::fromLocalFile(s.f.documents.url(*s.stored().receiptFileName).value())}));
    }

    void nothingOpensIt()
    {
        Shown s(attachReceipt);
        s.f.opener.succeed(false);
        click(*s.view, QStringLiteral("openReceipt"));
        Alert& notice = openDialog<Alert>(*s.view);
        QCOMPARE(notice.windowTitle(), QStringLiteral("Documento non aperto"));
        QVERIFY(notice.message().endsWith(s.f.documents.url(*s.stored().receiptFileName).value()));
        notice.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &notice);
        click(notice, QStringLiteral("safe"));
        settle();
        QVERIFY(!isDialogOpen(*s.view));
        QTRY_VERIFY(part(*s.view, QStringLiteral("openReceipt")).hasFocus());
    }

    void replacingDeletesTheFileAndOffersTheUpload()
    {
        Shown s(attachReceipt);
        QCOMPARE(part(*s.view, QStringLiteral("replaceReceipt")).toolTip(),
                 QStringLiteral("Sostituisci il documento allegato"));
        click(*s.view, QStringLiteral("replaceReceipt"));
        QVERIFY(!s.stored().receiptFileName);
        QCOMPARE(s.files(), QStringList());
        QVERIFY(isShown(*s.view, QStringLiteral("uploadReceipt")));
        QCOMPARE(s.f.panel.requests().size(), 0);
    }

    void replacingClearsBothSlotsOfOneFile()
    {
        Shown s([](ScreenFixture& f, Maintenance& record) {
            attachReceipt(f, record);
            record.certificateFileName = record.receiptFileName;
        });
        click(*s.view, QStringLiteral("replaceCertificate"));
        QVERIFY(!s.stored().receiptFileName && !s.stored().certificateFileName);
        QVERIFY(isShown(*s.view, QStringLiteral("uploadReceipt")));
    }

    void missingFileIsOfferedForUpload()
    {
        Shown s([](ScreenFixture&, Maintenance& record) { record.receiptFileName = QStringLiteral("SPARITO.pdf"); });
        QVERIFY(isShown(*s.view, QStringLiteral("uploadReceipt")));
        s.f.panel.answer(writePdf(s.f, QStringLiteral("b.pdf")));
        click(*s.view, QStringLiteral("uploadReceipt"));
        QCOMPARE(s.files(), QStringList(s.stored().receiptFileName.value()));
    }

    void fileThatVanishedMeanwhileIsNotOpened()
    {
        Shown s(attachReceipt);
        s.f.documents.deleteDocument(*s.stored().receiptFileName);
        click(*s.view, QStringLiteral("openReceipt"));
        QCOMPARE(s.f.opener.opened(), QList<QUrl>());
        QVERIFY(isShown(*s.view, QStringLiteral("uploadReceipt")));
    }

    void failedCopy()
    {
        Shown s;
        s.f.takeLog();
        s.f.panel.answer(s.f.folder.filePath(QStringLiteral("non-esiste.pdf")));
        click(*s.view, QStringLiteral("uploadReceipt"));
        QVERIFY(s.f.takeLog().first().startsWith(QStringLiteral("Errore salvataggio documento: ")));
        QVERIFY(!s.stored().receiptFileName);
    }

    void deletingTheRecordDeletesItsFiles()
    {
        Shown s(attachReceipt);
        click(*s.view, QStringLiteral("deleteMaintenance"));
        click(openDialog<Alert>(*s.view), QStringLiteral("destructive"));
        QCOMPARE(s.files(), QStringList());
    }
};

ABISSORA_TEST(tst_DetailDocuments);

#include "tst_DetailDocuments.moc"
