// SPDX-License-Identifier: MIT
#include "DetailParts.h"
#include "DocumentControl.h"
#include "FileDropping.h"
#include "MaintenanceFormView.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

QUrl pdf(RegisterFixture& f, const QString& name = u"nuovo.pdf"_s)
{
    return QUrl::fromLocalFile(f.writePdf(name));
}

QPoint middleOf(const MaintenanceRow& row, DocumentSlot slot)
{
    const auto controls = row.findChildren<DocumentControl*>();
    return controls.at(slot == DocumentSlot::Receipt ? 0 : 1)->geometry().center();
}

/// What takes a drop around a widget.
QWidget& dropTarget(QWidget& widget)
{
    QWidget* target = &widget;
    while (!target->acceptDrops())
        target = target->parentWidget();
    return *target;
}

} // namespace

/// PDFs that a person drags here from a file manager.
class tst_DroppedDocuments : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRowTakesTheReceiptThenTheCertificate()
    {
        ShownDetail s({makeRecord(1, 1, u"Collaudo"_s)});
        const auto record = [&s] { return s.stored().maintenanceHistory.first(); };
        QVERIFY(dropOn(s.row(0), {5, 5}, {pdf(s.f)}));
        QVERIFY(record().receiptFileName && !record().certificateFileName);
        settle();
        QVERIFY(dropOn(s.row(0), {5, 5}, {pdf(s.f)}));
        QVERIFY(record().certificateFileName);
        QCOMPARE(s.f.documentFiles().size(), 2);
        settle();
        QVERIFY(!dropOn(s.row(0), {5, 5}, {pdf(s.f)})); // both are there
        QCOMPARE(s.f.panel.requests().size(), 0);
    }

    void aDocumentTakesItsOwn()
    {
        ShownDetail s({makeRecord(1, 1, u"Collaudo"_s)});
        const auto record = [&s] { return s.stored().maintenanceHistory.first(); };
        QVERIFY(dropOn(s.row(0), middleOf(s.row(0), DocumentSlot::Certificate), {pdf(s.f)}));
        QVERIFY(record().certificateFileName && !record().receiptFileName);
        const QString first = record().certificateFileName.value();
        settle();
        QVERIFY(dropOn(s.row(0), middleOf(s.row(0), DocumentSlot::Certificate), {pdf(s.f)}));
        QVERIFY(record().certificateFileName != first);
        QCOMPARE(s.f.documentFiles(), QStringList(record().certificateFileName.value()));
    }

    void onlyPdfsAreTaken()
    {
        ShownDetail s({makeRecord(1, 1, u"Collaudo"_s)});
        const QString text = s.f.write(u"testo.pdf"_s, "no document");
        QVERIFY(!dropOn(s.row(0), {5, 5}, {QUrl::fromLocalFile(text)}));
        QVERIFY(!dropOn(s.row(0), {5, 5}, {QUrl::fromLocalFile(s.f.folder.path())}));
    }

    void whatCannotBeCopiedLeavesTheSlotAsItWas()
    {
        ShownDetail s({makeRecord(1, 1, u"Collaudo"_s)});
        QVERIFY(dropOn(s.row(0), {5, 5}, {pdf(s.f)}));
        const QString first = s.stored().maintenanceHistory.first().receiptFileName.value();
        settle();
        s.f.work.beSlow();
        const QUrl gone = pdf(s.f, u"altro.pdf"_s);
        QVERIFY(dropOn(s.row(0), middleOf(s.row(0), DocumentSlot::Receipt), {gone}));
        QVERIFY(QFile::remove(gone.toLocalFile()));
        s.f.work.finish();
        QCOMPARE(s.stored().maintenanceHistory.first().receiptFileName, std::optional(first));
        QCOMPARE(s.f.documentFiles(), QStringList(first));
    }

    void theFormTakesThemToo()
    {
        ShownDetail s({makeRecord(1, 1, u"Collaudo"_s)});
        const Maintenance record = s.stored().maintenanceHistory.first();
        MaintenanceFormView form(s.f.draft(s.item.id, record), s.f.opener, s.view.get());
        form.open();
        settle();
        QWidget& receipt = dropTarget(part(form, u"attachScontrino"));
        QWidget& certificate = dropTarget(part(form, u"attachCertificato"));
        QVERIFY(&receipt != &certificate);
        QVERIFY(dropOn(certificate, {3, 3}, {pdf(s.f)}));
        settle();
        QVERIFY(isShown(form, u"openCertificato"));
        QVERIFY(isShown(form, u"attachScontrino"));
        QVERIFY(!dropOn(receipt, {3, 3}, {QUrl::fromLocalFile(s.f.write(u"a.csv"_s, "a;b"))}));
        click(form, u"primary"_s);
        QVERIFY(s.stored().maintenanceHistory.first().certificateFileName);
    }
};

ABISSORA_TEST(tst_DroppedDocuments);
#include "tst_DroppedDocuments.moc"
