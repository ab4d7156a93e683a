// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "EquipmentDetailView.h"
#include "Gui.h"
#include "Literals.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

/// An item with one record on show, whose document slots hold these names.
struct ShownDocuments
{
    using Names = std::function<void(RegisterFixture&, Maintenance&)>;

    explicit ShownDocuments(const Names& attach = [](RegisterFixture&, Maintenance&) {})
    {
        Equipment item = makeItem(1, u"Bombola"_s, EquipmentType::cylinder, f.inDays(100));
        Maintenance record = makeRecord(1, 1, u"Collaudo"_s);
        attach(f, record);
        item.maintenanceHistory = {record};
        id = item.id;
        f.equipment.addEquipment(item);
        view = std::make_unique<EquipmentDetailView>(f.detail(item), f.opener);
        view->resize(385, 1200);
        activate(*view);
    }

    [[nodiscard]] Maintenance stored() const { return f.equipment.equipment().last().maintenanceHistory.first(); }

    RegisterFixture f;
    QUuid id;
    std::unique_ptr<EquipmentDetailView> view;
};

void attachReceipt(RegisterFixture& f, Maintenance& record)
{
    record.receiptFileName = f.storedDocument(u"scontrino.pdf"_s);
}

} // namespace

class tst_DetailDocuments : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutDocuments()
    {
        ShownDocuments s;
        QCOMPARE(part<QAbstractButton>(*s.view, u"uploadReceipt"_s).text(), u"Carica Scontrino"_s);
        QCOMPARE(part<QAbstractButton>(*s.view, u"uploadCertificate"_s).text(), u"Carica Certificato"_s);
        QVERIFY(!isShown(*s.view, u"openReceipt"_s));
        QVERIFY(!isShown(*s.view, u"replaceReceipt"_s));
    }

    void uploading()
    {
        ShownDocuments s;
        s.f.panel.answer(s.f.writePdf(u"a.pdf"_s));
        click(*s.view, u"uploadCertificate"_s);
        QCOMPARE(s.f.panel.requests().size(), 1);
        QVERIFY(!s.stored().receiptFileName);
        QCOMPARE(s.f.documentFiles(), QStringList(s.stored().certificateFileName.value()));
        QCOMPARE(part<QAbstractButton>(*s.view, u"openCertificate"_s).text(), u"Certificato"_s);
        QVERIFY(part(*s.view, u"openCertificate"_s).hasFocus());
        QVERIFY(!isShown(*s.view, u"uploadCertificate"_s));
    }

    void cancelledPanel()
    {
        ShownDocuments s;
        s.f.takeLog();
        click(*s.view, u"uploadReceipt"_s);
        QVERIFY(!s.stored().receiptFileName);
        QCOMPARE(s.f.takeLog(), QStringList(u"✏️ Aggiornato equipaggiamento: Bombola"_s));
        QVERIFY(isShown(*s.view, u"uploadReceipt"_s));
    }

    void opening()
    {
        ShownDocuments s(attachReceipt);
        click(*s.view, u"openReceipt"_s);
        QCOMPARE(s.f.opener.opened(),
                 QList<QUrl>({QUrl::fromLocalFile(s.f.documents.url(*s.stored().receiptFileName).value())}));
    }

    void nothingOpensIt()
    {
        ShownDocuments s(attachReceipt);
        s.f.opener.succeed(false);
        click(*s.view, u"openReceipt"_s);
        Alert& notice = openDialog<Alert>(*s.view);
        QCOMPARE(notice.windowTitle(), u"Documento non aperto"_s);
        QVERIFY(notice.message().endsWith(s.f.documents.url(*s.stored().receiptFileName).value()));
        notice.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &notice);
        click(notice, u"safe"_s);
        settle();
        QVERIFY(!isDialogOpen(*s.view));
        QTRY_VERIFY(part(*s.view, u"openReceipt"_s).hasFocus());
    }

    void nothingOpensItAfterTheItemHasLeft()
    {
        ShownDocuments s(attachReceipt);
        s.f.opener.beSlow();
        click(*s.view, u"openReceipt"_s);
        s.view.reset();
        s.f.opener.answer(false);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void replacingDeletesTheFileAndOffersTheUpload()
    {
        ShownDocuments s(attachReceipt);
        QCOMPARE(part(*s.view, u"replaceReceipt"_s).toolTip(), u"Sostituisci il documento allegato"_s);
        click(*s.view, u"replaceReceipt"_s);
        QVERIFY(!s.stored().receiptFileName);
        QCOMPARE(s.f.documentFiles(), QStringList());
        QVERIFY(isShown(*s.view, u"uploadReceipt"_s));
        QCOMPARE(s.f.panel.requests().size(), 0);
    }

    void missingFileIsOfferedForUpload()
    {
        ShownDocuments s([](RegisterFixture&, Maintenance& record) { record.receiptFileName = u"SPARITO.pdf"_s; });
        QVERIFY(isShown(*s.view, u"uploadReceipt"_s));
        s.f.panel.answer(s.f.writePdf(u"b.pdf"_s));
        click(*s.view, u"uploadReceipt"_s);
        QCOMPARE(s.f.documentFiles(), QStringList(s.stored().receiptFileName.value()));
    }

    void fileThatVanishedMeanwhileIsNotOpened()
    {
        ShownDocuments s(attachReceipt);
        s.f.documents.deleteDocument(*s.stored().receiptFileName);
        click(*s.view, u"openReceipt"_s);
        QCOMPARE(s.f.opener.opened(), QList<QUrl>());
        QVERIFY(isShown(*s.view, u"uploadReceipt"_s));
    }
};

ABISSORA_TEST(tst_DetailDocuments);

#include "tst_DetailDocuments.moc"
