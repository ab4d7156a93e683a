// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "EquipmentDetail.h"
#include "RegisterFixture.h"
#include "SlotNames.h"
#include "TestRunner.h"

#include <QSignalSpy>

using namespace abissora;
using namespace abissora::test;

namespace {

Maintenance onDay(int id, const char* date)
{
    Maintenance record = maintenance(id, at(date), at("2027-01-01T10:00:00Z"));
    record.description = u"Intervento %1"_s.arg(id);
    return record;
}

QList<Maintenance> threeRecords()
{
    return {onDay(1, "2026-03-01T10:00:00Z"), onDay(2, "2026-01-01T10:00:00Z"), onDay(3, "2026-05-01T10:00:00Z")};
}

/// An item with this history in the register, and its detail.
struct Stored
{
    explicit Stored(const QList<Maintenance>& history = {})
        : f(QList{equipmentWith(1, history), equipment(2, u"Altro"_s)})
        , detail(f.detail(f.equipment.equipment().first()))
        , changed(detail.get(), &EquipmentDetail::changed)
    {}

    /// Puts a file into a slot of the first record.
    QString attach(DocumentSlot slot)
    {
        Equipment item = stored();
        const QString name = f.storedDocument(u"allegato.pdf"_s);
        documentName(item.maintenanceHistory.first(), slot) = name;
        f.equipment.updateEquipment(item);
        f.takeLog();
        return name;
    }
    [[nodiscard]] const Equipment& stored() const { return f.equipment.equipment().first(); }
    [[nodiscard]] const Maintenance& record() const { return stored().maintenanceHistory.first(); }
    [[nodiscard]] QStringList descriptions() const
    {
        QStringList texts;
        for (const MaintenanceRowContent& row : detail->history())
            texts.append(row.description);
        return texts;
    }

    RegisterFixture f;
    std::unique_ptr<EquipmentDetail> detail;
    QSignalSpy changed;
};

const QString updated = u"✏️ Aggiornato equipaggiamento: Erogatore di prova"_s;

} // namespace

class tst_EquipmentDetail : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheItemAndThenAnother()
    {
        Stored s;
        QCOMPARE(s.detail->content().name, u"Erogatore di prova"_s);
        Equipment other = s.f.equipment.equipment().last();
        other.name = u"Di ieri"_s;
        s.detail->setEquipment(other);
        QCOMPARE(s.detail->equipment(), s.f.equipment.equipment().last()); // as the register has it
        QCOMPARE(s.changed.size(), 1);
        other.id = SequentialIds::at(99);
        s.detail->setEquipment(other);
        QCOMPARE(s.detail->content().name, u"Di ieri"_s);
    }

    void followsTheRegisterAndTheTypes()
    {
        Stored s;
        Equipment item = s.stored();
        item.name = u"Nuovo nome"_s;
        s.f.equipment.updateEquipment(item);
        QCOMPARE(s.detail->equipment(), item);
        QCOMPARE(s.changed.size(), 1);
        s.f.types.setTypes({});
        QCOMPARE(s.changed.size(), 2);
    }

    void newestFirst()
    {
        Stored s(threeRecords());
        QCOMPARE(s.descriptions(), QStringList({u"Intervento 3"_s, u"Intervento 1"_s, u"Intervento 2"_s}));
    }

    void activeIsSwitchedOffAndOn()
    {
        Stored s;
        s.detail->toggleActive();
        QVERIFY(!s.stored().isActive);
        QVERIFY(!s.detail->content().isActive);
        QCOMPARE(s.f.takeLog(), QStringList(updated));
        s.detail->toggleActive();
        QVERIFY(s.stored().isActive);
    }

    void deletingTheItem()
    {
        Stored s;
        s.detail->deleteEquipment();
        QCOMPARE(s.f.equipment.equipment().size(), 1);
        QCOMPARE(s.detail->content().name, u"Erogatore di prova"_s);
    }

    void draftOfARecordAndOfANewOne()
    {
        Stored s(threeRecords());
        const auto edited = s.detail->draft(SequentialIds::at(2));
        QVERIFY(!edited->isNew());
        QCOMPARE(edited->initial().description, u"Intervento 2"_s);
        QVERIFY(s.detail->draft()->isNew());
        QVERIFY(s.detail->draft(SequentialIds::at(99))->isNew());
        MaintenanceFormState entered = edited->initial();
        entered.description = u"Cambiato"_s;
        edited->save(entered);
        QCOMPARE(s.descriptions().constLast(), u"Cambiato"_s);
    }

    void deletingARecord()
    {
        Stored s(threeRecords());
        QCOMPARE(s.detail->maintenanceDeleteAlertMessage(SequentialIds::at(3)),
                 u"Eliminare la manutenzione del 1 mag 2026?\nAnche eventuali documenti allegati verranno rimossi."_s);
        s.detail->deleteMaintenance(SequentialIds::at(3));
        QCOMPARE(s.descriptions(), QStringList({u"Intervento 1"_s, u"Intervento 2"_s}));
        QCOMPARE(s.stored().maintenanceHistory.size(), 2);
        // The dates that the register worked out are in the copy that was stored again.
        QCOMPARE(s.stored().lastServiceDate, at("2026-03-01T10:00:00Z"));
        QCOMPARE(s.detail->equipment(), s.stored());
        QCOMPARE(s.f.takeLog(), QStringList(updated));
    }

    void unknownRecord()
    {
        Stored s(threeRecords());
        const QUuid unknown = SequentialIds::at(99);
        QCOMPARE(s.detail->maintenanceDeleteAlertMessage(unknown), u"Eliminare questa manutenzione?"_s);
        s.detail->deleteMaintenance(unknown);
        s.detail->replaceDocument(unknown, receipt);
        s.detail->uploadDocument(unknown, receipt);
        QVERIFY(!s.detail->documentPath(unknown, receipt));
        QCOMPARE(s.stored().maintenanceHistory, threeRecords());
        QCOMPARE(s.f.panel.requests().size(), 0);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void anItemThatIsGoneNeverComesBack()
    {
        Stored s(threeRecords());
        s.f.equipment.deleteEquipment(s.stored());
        s.f.takeLog();
        s.changed.clear();
        s.detail->toggleActive();
        s.detail->deleteMaintenance(SequentialIds::at(3));
        QCOMPARE(s.changed.size(), 2);
        QCOMPARE(s.descriptions().size(), 2);
        QVERIFY(!s.detail->content().isActive);
        QCOMPARE(s.f.equipment.equipment().size(), 1);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void uploading()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        s.f.panel.answer(s.f.writePdf(u"a.pdf"_s));
        s.detail->uploadDocument(s.record().id, certificate);
        QVERIFY(!s.record().receiptFileName);
        QCOMPARE(s.f.documentFiles(), QStringList(s.record().certificateFileName.value()));
        QCOMPARE(s.detail->documentPath(s.record().id, certificate),
                 s.f.documents.url(*s.record().certificateFileName));
        QVERIFY(s.detail->history().first().hasCertificate);
        QVERIFY(!s.detail->history().first().hasReceipt);
    }

    void uploadingInThePlaceOfAnother()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        const QString old = s.attach(receipt);
        s.f.panel.answer(s.f.writePdf(u"b.pdf"_s));
        s.detail->uploadDocument(s.record().id, receipt);
        QVERIFY(s.record().receiptFileName != old);
        QCOMPARE(s.f.documentFiles(), QStringList(s.record().receiptFileName.value()));
    }

    void cancelledPanelAndFailedCopyEmptyTheSlot()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        for (const auto& answer : {std::optional<QString>(), std::optional(u"/non/esiste.pdf"_s)}) {
            s.f.documents.deleteDocument(s.attach(receipt));
            s.f.panel.answer(answer);
            s.detail->uploadDocument(s.record().id, receipt);
            QVERIFY(!s.record().receiptFileName);
            QCOMPARE(s.f.takeLog().constLast(), updated);
        }
    }

    void theRecordMayGoWhileThePanelIsOpen()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        s.f.panel.answer(s.f.writePdf(u"a.pdf"_s));
        s.f.panel.meanwhile([&s] { s.f.equipment.deleteMaintenance(s.stored().id, s.record().id); });
        s.detail->uploadDocument(s.record().id, receipt);
        QVERIFY(s.stored().maintenanceHistory.isEmpty());
        QCOMPARE(s.f.documentFiles(), QStringList());
    }

    void theScreenMayGoWhileThePanelIsOpen()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        s.f.panel.answer(s.f.writePdf(u"a.pdf"_s));
        s.f.panel.meanwhile([&s] { s.detail.reset(); });
        s.detail->uploadDocument(s.record().id, receipt);
        QVERIFY(!s.record().receiptFileName);
        QCOMPARE(s.f.documentFiles(), QStringList());
    }

    void replacingDeletesTheFileAndEmptiesEverySlotThatNamesIt()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        Equipment item = s.stored();
        Maintenance& record = item.maintenanceHistory.first();
        record.receiptFileName = s.attach(receipt);
        record.certificateFileName = record.receiptFileName;
        s.f.equipment.updateEquipment(item);
        s.detail->replaceDocument(record.id, certificate);
        QVERIFY(!s.record().receiptFileName && !s.record().certificateFileName);
        QCOMPARE(s.f.documentFiles(), QStringList());
        QCOMPARE(s.f.panel.requests().size(), 0);
    }

    /// Should the program end in between, the register never names a file that is gone.
    void theRegisterHasTheRecordBeforeAFileGoes_data()
    {
        QTest::addColumn<bool>("uploads");
        QTest::newRow("uploading") << true;
        QTest::newRow("replacing") << false;
    }

    void theRegisterHasTheRecordBeforeAFileGoes()
    {
        QFETCH(bool, uploads);
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        const QString old = s.attach(receipt);
        QList<bool> wasThere;
        connect(&s.f.equipment, &EquipmentViewModel::equipmentChanged, this, [&] {
            const QByteArray onDisk = s.f.content(registerFile);
            wasThere.append(s.record().receiptFileName != old && !onDisk.contains(old.toUtf8()) &&
                            s.f.documents.url(old).has_value());
        });
        s.f.panel.answer(s.f.writePdf(u"b.pdf"_s));
        if (uploads)
            s.detail->uploadDocument(s.record().id, receipt);
        else
            s.detail->replaceDocument(s.record().id, receipt);
        QCOMPARE(wasThere, QList<bool>{true});
        QVERIFY(!s.f.documents.url(old));
    }

    void aFileThatTheOtherSlotNamesStays()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        Equipment item = s.stored();
        Maintenance& record = item.maintenanceHistory.first();
        record.receiptFileName = s.attach(receipt);
        record.certificateFileName = record.receiptFileName;
        s.f.equipment.updateEquipment(item);
        s.f.panel.answer(s.f.writePdf(u"b.pdf"_s));
        s.detail->uploadDocument(record.id, receipt);
        QVERIFY(s.record().receiptFileName != record.receiptFileName);
        QVERIFY(s.f.documents.url(s.record().certificateFileName.value()));
        QCOMPARE(s.f.documentFiles().size(), 2);
    }

    void anEmptySlotIsNotReplaced()
    {
        Stored s({onDay(1, "2026-03-01T10:00:00Z")});
        s.detail->replaceDocument(s.record().id, receipt);
        QCOMPARE(s.f.takeLog(), QStringList());
    }

    void draftsKnowTheCurrencyOfTheMoment()
    {
        RegisterFixture f;
        const auto detail = f.detail(f.equipment.equipment().first());
        QCOMPARE(detail->draft()->currencySymbol(), QString());
        detail->setCurrencySymbol([&f] { return f.settings.currencySymbol(); });
        f.settings.setCurrencySymbol(u"Fr."_s);
        QCOMPARE(detail->draft()->currencySymbol(), u"Fr."_s);
    }
};

ABISSORA_TEST(tst_EquipmentDetail);

#include "tst_EquipmentDetail.moc"
