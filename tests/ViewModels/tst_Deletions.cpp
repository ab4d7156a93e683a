// SPDX-License-Identifier: MIT
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "StateContent.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const QString folder = u"MaintenanceDocuments"_s;

QString documentName(int n)
{
    return u"00000000-0000-4000-8000-%1.pdf"_s.arg(n, 12, 10, '0'_L1);
}

Maintenance recordWith(int id, int receipt)
{
    Maintenance record = test::maintenance(id);
    record.receiptFileName = documentName(receipt);
    return record;
}

} // namespace

/// Whatever is taken out of the register can be brought back, and no stored record names a file that is gone.
class tst_Deletions : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_files.emplace();
        m_stored = {test::equipmentWith(1, {recordWith(11, 1), recordWith(12, 2)}), test::equipment(2)};
        for (int n : {1, 2})
            m_files->write(folder + u'/' + documentName(n), "%PDF-1");
        m_catalogue.emplace(m_files->storageManager(m_stored), m_files->documents, m_files->console, m_files->clock,
                            m_files->calendar);
    }

    void anItem()
    {
        m_catalogue->deleteEquipment(m_stored.first());
        QCOMPARE(newest().occasion, Occasion::deletedItem);
        QCOMPARE(readContent(newest()).equipment.records, m_stored);
        QCOMPARE(m_files->archive.archived(), QSet({documentName(1), documentName(2)}));
    }

    void aRecord()
    {
        m_catalogue->deleteMaintenance(m_stored.first().id, test::SequentialIds::at(11));
        QCOMPARE(newest().occasion, Occasion::deletedRecord);
        QCOMPARE(readContent(newest()).equipment.records, m_stored);
        QCOMPARE(m_files->archive.archived(), QSet{documentName(1)});
    }

    void aRecordThatAnEditLeavesOut()
    {
        Equipment edited = m_stored.first();
        edited.maintenanceHistory.removeLast();
        m_catalogue->updateEquipment(edited);
        QCOMPARE(newest().occasion, Occasion::deletedRecord);
    }

    void aDocumentThatAnEditLeavesOut()
    {
        Maintenance edited = m_stored.first().maintenanceHistory.first();
        edited.receiptFileName.reset();
        m_catalogue->updateMaintenance(m_stored.first().id, edited);
        QCOMPARE(newest().occasion, Occasion::deletedDocument);
        QCOMPARE(readContent(newest()).equipment.records, m_stored);
    }

    void anEditThatTakesNothingAway()
    {
        Equipment edited = m_stored.last();
        edited.name = u"Altro nome"_s;
        m_catalogue->updateEquipment(edited);
        m_catalogue->updateEquipment(m_stored.last());
        QCOMPARE(m_files->generations.list().size(), 1);
        QCOMPARE(newest().occasion, Occasion::firstOfDay);
    }

    void documentsGoAfterTheRegisterIsStored()
    {
        QByteArray stored;
        QStringList present;
        connect(&*m_catalogue, &EquipmentViewModel::equipmentChanged, this, [&] {
            stored = m_files->content(test::registerFile);
            present = m_files->names(folder);
        });
        m_catalogue->deleteEquipment(m_stored.first());
        QVERIFY(!stored.contains(documentName(1).toLatin1()));
        QCOMPARE(present, QStringList());
    }

    void aStartBringsBackWhatTheStoredRegisterNames()
    {
        // As after a kill between the two: the archive has it, the register still names it.
        m_files->archive.archive(documentName(1));
        m_files->write(folder + u'/' + documentName(3), "of a form that was never saved");
        start();
        QCOMPARE(m_files->names(folder), QStringList({documentName(1), documentName(2)}));
        QCOMPARE(m_files->archive.archived(), QSet{documentName(3)});
    }

    void afterAnUnreadableRegisterNothingMoves()
    {
        m_files->write(test::registerFile, "broken");
        start();
        QCOMPARE(m_files->names(folder).size(), 2);
        QVERIFY(QFile::remove(m_files->path(test::registerFile)));
        start();
        QCOMPARE(m_files->names(folder).size(), 2);
    }

    void aType()
    {
        FakeTypes types(*m_files);
        const EquipmentTypeModel deleted = types.model.types().first();
        types.model.deleteType(deleted);
        QCOMPARE(newest().occasion, Occasion::deletedType);
        QVERIFY(readContent(newest()).types.records.contains(deleted));
        types.model.resetToDefaults();
        QCOMPARE(newest().occasion, Occasion::typesReset);
        QCOMPARE(readContent(newest()).types.records.size(), 15);
    }

    void typesOfANewRegister()
    {
        m_files.emplace();
        FakeTypes types(*m_files);
        QCOMPARE(m_files->generations.list(), QList<EarlierState>());
        const EquipmentTypeModel added = test::equipmentType(77, u"Scooter"_s);
        types.model.addType(added);
        types.model.resetToDefaults();
        QCOMPARE(newest().occasion, Occasion::typesReset);
        QVERIFY(readContent(newest()).types.records.contains(added));
    }

    void whatThisVersionDoesNotKnow()
    {
        const QByteArray strange =
            m_files->content(test::registerFile).replace("\"brand\":", "\"depth\":40,\"brand\":");
        m_files->write(test::registerFile, strange);
        start();
        m_catalogue->updateEquipment(m_stored.last());
        QCOMPARE(newest().occasion, Occasion::unknownMembers);
        QFile kept(newest().files.value(registerKey));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), strange);
        m_catalogue->updateEquipment(m_stored.last());
        QCOMPARE(m_files->generations.list().size(), 1);
    }

    void withoutSpaceADeletionIsMadeUpFor()
    {
        m_files->write(u"elsewhere"_s, "");
        QVERIFY(QDir().rename(m_files->directories.preferences(), m_files->path(u"away"_s)));
        m_files->write(u"preferences"_s, "in the way");
        m_catalogue->deleteEquipment(m_stored.last());
        QCOMPARE(m_files->preferences.pending().keys(), QStringList{registerKey});
        QVERIFY(QFile::remove(m_files->directories.preferences()));
        QVERIFY(QDir().rename(m_files->path(u"away"_s), m_files->directories.preferences()));
        QCOMPARE(m_files->preferences.retry(), QStringList{registerKey});
        QCOMPARE(newest().occasion, Occasion::deletedItem);
        QCOMPARE(readPresentContent(m_files->directories).equipment.records, m_catalogue->equipment());
    }

private:
    struct FakeTypes
    {
        explicit FakeTypes(test::TemporaryRegister& files)
            : model(files.preferences, symbols, files.console, files.ids)
        {}
        test::FakeSymbolLibrary symbols;
        EquipmentTypeViewModel model;
    };

    [[nodiscard]] EarlierState newest() const { return m_files->generations.list().value(0); }

    void start()
    {
        m_catalogue.emplace(m_files->storageManager(), m_files->documents, m_files->console, m_files->clock,
                            m_files->calendar);
    }

    std::optional<test::TemporaryRegister> m_files;
    QList<Equipment> m_stored;
    std::optional<EquipmentViewModel> m_catalogue;
};

ABISSORA_TEST(tst_Deletions);
#include "tst_Deletions.moc"
