// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "EquipmentDetail.h"
#include "RegisterFixture.h"
#include "SlotNames.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The detail of the first of two items with a record each; copies wait until they are told to end.
struct Slow
{
    Slow()
        : f(QList{equipmentWith(1, {maintenance(1)}), equipmentWith(2, {maintenance(2)})})
        , detail(f.detail(item(0)))
    {
        f.work.beSlow();
    }

    void upload(DocumentSlot slot)
    {
        f.panel.answer(f.writePdf(u"a.pdf"_s));
        detail->uploadDocument(SequentialIds::at(1), slot);
    }
    [[nodiscard]] const Equipment& item(int index) const { return f.equipment.equipment().at(index); }
    [[nodiscard]] const Maintenance& record() const { return item(0).maintenanceHistory.first(); }

    RegisterFixture f;
    std::unique_ptr<EquipmentDetail> detail;
};

} // namespace

/// Uploads from the detail screen that take a while.
class tst_DetailUploads : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSlotIsFilledOnceTheCopyIsThere()
    {
        Slow s;
        s.upload(certificate);
        QVERIFY(!s.record().certificateFileName);
        QCOMPARE(s.f.takeLog(), QStringList());
        s.f.work.finish();
        QCOMPARE(s.f.documentFiles(), QStringList(s.record().certificateFileName.value()));
        QVERIFY(s.detail->history().first().hasCertificate);
    }

    void oneCopyForASlotAtATime()
    {
        Slow s;
        s.upload(certificate);
        s.detail->uploadDocument(s.record().id, certificate);
        QCOMPARE(s.f.panel.requests().size(), 1);
        s.upload(receipt);
        QCOMPARE(s.f.work.held(), 2);
        s.f.work.finish(1);
        s.f.work.finish();
        QVERIFY(s.record().receiptFileName && s.record().certificateFileName);
        s.upload(certificate);
        QCOMPARE(s.f.work.held(), 1);
    }

    void theScreenMayGo()
    {
        Slow s;
        s.upload(receipt);
        s.detail.reset();
        QVERIFY(s.f.work.progress().isCancelled());
        s.f.work.finish();
        QVERIFY(!s.record().receiptFileName);
        QCOMPARE(s.f.documentFiles(), QStringList());
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void theRecordMayGo()
    {
        Slow s;
        s.upload(receipt);
        s.f.equipment.deleteMaintenance(s.item(0).id, s.record().id);
        s.f.work.finish();
        QCOMPARE(s.f.documentFiles(), QStringList());
    }

    void theItemMayGo()
    {
        Slow s;
        s.upload(receipt);
        s.f.equipment.deleteEquipment(s.item(0));
        s.f.work.finish();
        QCOMPARE(s.f.equipment.equipment().size(), 1);
        QCOMPARE(s.f.documentFiles(), QStringList());
    }

    void anotherItemMayBeOnShow()
    {
        Slow s;
        s.upload(receipt);
        s.detail->setEquipment(s.item(1));
        s.f.work.finish();
        QCOMPARE(s.f.documentFiles(), QStringList(s.record().receiptFileName.value()));
        QCOMPARE(s.detail->equipment(), s.item(1));
        QVERIFY(!s.item(1).maintenanceHistory.first().receiptFileName);
    }

    void whatChangedMeanwhileStays()
    {
        Slow s;
        s.upload(receipt);
        Maintenance edited = s.record();
        edited.notes = u"Scritto durante la copia"_s;
        s.f.equipment.updateMaintenance(s.item(0).id, edited);
        s.f.work.finish();
        QCOMPARE(s.record().notes, edited.notes);
        QVERIFY(s.record().receiptFileName);
    }

    /// As when the panel is dismissed.
    void cancelledByThePerson()
    {
        Slow s;
        Equipment item = s.item(0);
        item.maintenanceHistory.first().receiptFileName = u"SPARITO.pdf"_s;
        s.f.equipment.updateEquipment(item);
        s.upload(receipt);
        s.f.work.progress().cancel();
        s.f.work.finish();
        QVERIFY(!s.record().receiptFileName);
        QCOMPARE(s.f.documentFiles(), QStringList());
    }

    void aCopyThatEndsAfterItsSuccessor()
    {
        Slow s;
        s.upload(receipt);
        s.f.work.progress().cancel();
        s.upload(receipt);
        s.f.work.finish(1);
        const QString name = s.record().receiptFileName.value();
        s.f.work.finish();
        QCOMPARE(s.record().receiptFileName, std::optional(name));
        QCOMPARE(s.f.documentFiles(), QStringList(name));
    }

    void aCancelledCopyThatEndsDuringItsSuccessor()
    {
        Slow s;
        s.upload(receipt);
        s.f.work.progress().cancel();
        s.upload(receipt);
        s.f.work.finish();
        s.detail->uploadDocument(s.record().id, receipt);
        QCOMPARE(s.f.panel.requests().size(), 2);
        s.f.work.finish();
        QVERIFY(s.record().receiptFileName);
    }
};

ABISSORA_TEST(tst_DetailUploads);

#include "tst_DetailUploads.moc"
