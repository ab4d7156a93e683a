// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QSignalSpy>
#include <QTest>

using namespace abissora;
using test::at;
using test::maintenance;

namespace {

const QUuid itemId = test::SequentialIds::at(1);
const QUuid oldId = test::SequentialIds::at(11);
const QUuid newId = test::SequentialIds::at(12);

const Instant aYearAgo = at("2025-06-15T10:00:00Z");
const Instant lastWeek = at("2026-06-08T10:00:00Z");

Maintenance oldRecord()
{
    return maintenance(11, aYearAgo, at("2026-06-15T10:00:00Z"));
}

Maintenance newRecord()
{
    return maintenance(12, lastWeek, at("2027-06-08T10:00:00Z"));
}

/// One item among others, whose own dates belong to none of the records.
test::Catalogue catalogueWith(const QList<Maintenance>& history)
{
    return test::Catalogue({test::equipment(2), test::equipmentWith(1, history), test::equipment(3)});
}

const Equipment& itemOf(const test::Catalogue& catalogue)
{
    return catalogue.viewModel.equipment().at(1);
}

QList<QUuid> idsOf(const Equipment& item)
{
    QList<QUuid> ids;
    for (const Maintenance& record : item.maintenanceHistory)
        ids.append(record.id);
    return ids;
}

#define COMPARE_DATES(catalogue, record)                                                                               \
    QCOMPARE(itemOf(catalogue).lastServiceDate, (record).date);                                                        \
    QCOMPARE(itemOf(catalogue).nextServiceDate, (record).nextServiceDate);                                             \
    QCOMPARE((catalogue).storedEquipment(), (catalogue).viewModel.equipment())

} // namespace

class tst_MaintenanceHistory : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anAddedRecordGivesItsDates()
    {
        auto catalogue = catalogueWith({});
        const QSignalSpy changed(&catalogue.viewModel, &EquipmentViewModel::changed);
        catalogue.viewModel.addMaintenance(itemId, newRecord());
        QCOMPARE(itemOf(catalogue).maintenanceHistory, QList{newRecord()});
        COMPARE_DATES(catalogue, newRecord());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(catalogue.console.calls(), QStringList());
        QCOMPARE(catalogue.viewModel.equipment().at(0), test::equipment(2));
        QCOMPARE(catalogue.viewModel.equipment().at(2), test::equipment(3));
    }

    void anOlderRecordGivesItsDatesTooUntilTheNextUpdate()
    {
        auto catalogue = catalogueWith({newRecord()});
        catalogue.viewModel.addMaintenance(itemId, oldRecord());
        QCOMPARE(idsOf(itemOf(catalogue)), QList({newId, oldId}));
        COMPARE_DATES(catalogue, oldRecord());
        catalogue.viewModel.updateMaintenance(itemId, oldRecord()); // unchanged
        COMPARE_DATES(catalogue, newRecord());
        catalogue.viewModel.addMaintenance(itemId, maintenance(13, aYearAgo, aYearAgo));
        COMPARE_DATES(catalogue, maintenance(13, aYearAgo, aYearAgo));
        catalogue.viewModel.updateMaintenance(itemId, newRecord());
        COMPARE_DATES(catalogue, newRecord());
    }

    void neitherKindNorCompletionCount()
    {
        Maintenance open = newRecord();
        open.isCompleted = false;
        open.type = MaintenanceType::cleaning;
        Maintenance done = oldRecord();
        done.isCompleted = true;
        done.type = MaintenanceType::annual;
        auto catalogue = catalogueWith({done, open});
        catalogue.viewModel.updateMaintenance(itemId, done);
        COMPARE_DATES(catalogue, open);
    }

    void theFirstOfEquallyLateRecordsCounts()
    {
        const Maintenance first = maintenance(11, lastWeek, at("2027-01-01T00:00:00Z"));
        const Maintenance second = maintenance(12, lastWeek, at("2028-01-01T00:00:00Z"));
        auto catalogue = catalogueWith({oldRecord(), first, second});
        catalogue.viewModel.updateMaintenance(itemId, second);
        COMPARE_DATES(catalogue, first);
    }

    void updateReplacesTheFirstOfTheId()
    {
        const Maintenance twin = maintenance(11, at("2020-01-01T00:00:00Z"), at("2021-01-01T00:00:00Z"));
        auto catalogue = catalogueWith({newRecord(), oldRecord(), twin});
        Maintenance later = oldRecord();
        later.date = at("2026-07-01T00:00:00Z");
        later.cost = 7;
        const QSignalSpy changed(&catalogue.viewModel, &EquipmentViewModel::changed);
        catalogue.viewModel.updateMaintenance(itemId, later);
        QCOMPARE(itemOf(catalogue).maintenanceHistory, QList({newRecord(), later, twin}));
        COMPARE_DATES(catalogue, later);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(catalogue.console.calls(), QStringList());
    }

    void updateOfAnUnknownRecordDoesNothing()
    {
        auto catalogue = catalogueWith({oldRecord()});
        const QList<Equipment> before = catalogue.viewModel.equipment();
        QVERIFY(QFile::remove(catalogue.path(test::registerFile))); // a save would bring it back
        const QSignalSpy changed(&catalogue.viewModel, &EquipmentViewModel::changed);
        catalogue.viewModel.updateMaintenance(itemId, newRecord());
        QCOMPARE(catalogue.viewModel.equipment(), before);
        QCOMPARE(changed.size(), 0);
        QVERIFY(!QFileInfo::exists(catalogue.path(test::registerFile)));
    }

    void deletionRecomputes()
    {
        auto catalogue = catalogueWith({oldRecord(), newRecord()});
        const QSignalSpy changed(&catalogue.viewModel, &EquipmentViewModel::changed);
        catalogue.viewModel.deleteMaintenance(itemId, newId);
        QCOMPARE(idsOf(itemOf(catalogue)), QList{oldId});
        COMPARE_DATES(catalogue, oldRecord());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(catalogue.console.calls(), QStringList());
    }

    void theLastRecordLeavesItsDates()
    {
        auto catalogue = catalogueWith({});
        catalogue.viewModel.addMaintenance(itemId, newRecord());
        catalogue.viewModel.deleteMaintenance(itemId, newId);
        QVERIFY(itemOf(catalogue).maintenanceHistory.isEmpty());
        COMPARE_DATES(catalogue, newRecord());
    }

    void deletionOfAnUnknownRecordStillRecomputesAndSaves()
    {
        auto catalogue = catalogueWith({oldRecord()});
        QVERIFY(itemOf(catalogue).lastServiceDate != aYearAgo);
        const QSignalSpy changed(&catalogue.viewModel, &EquipmentViewModel::changed);
        catalogue.viewModel.deleteMaintenance(itemId, newId);
        QCOMPARE(idsOf(itemOf(catalogue)), QList{oldId});
        COMPARE_DATES(catalogue, oldRecord());
        QCOMPARE(changed.size(), 1);
    }

    void everyRecordOfTheIdGoesTheFirstOnesDocumentsWithIt()
    {
        Maintenance first = oldRecord();
        first.receiptFileName = u"R.pdf"_s;
        first.certificateFileName = u"C.pdf"_s;
        Maintenance twin = oldRecord();
        twin.receiptFileName = u"twin.pdf"_s;
        auto catalogue = catalogueWith({first, newRecord(), twin});
        for (const char* name : {"R.pdf", "C.pdf", "twin.pdf"})
            catalogue.write(u"MaintenanceDocuments/"_s + QLatin1String(name), "%PDF");
        catalogue.viewModel.deleteMaintenance(itemId, oldId);
        QCOMPARE(itemOf(catalogue).maintenanceHistory, QList{newRecord()});
        QCOMPARE(catalogue.names(u"MaintenanceDocuments"_s), QStringList{u"twin.pdf"_s});
    }

    void documentsStayWhenARecordIsReplaced()
    {
        Maintenance record = oldRecord();
        record.receiptFileName = u"R.pdf"_s;
        auto catalogue = catalogueWith({record});
        catalogue.write(u"MaintenanceDocuments/R.pdf"_s, "%PDF");
        record.receiptFileName.reset();
        catalogue.viewModel.updateMaintenance(itemId, record);
        QCOMPARE(catalogue.names(u"MaintenanceDocuments"_s).size(), 1);
    }

    void theIdMayBeThatOfTheRecordItself()
    {
        auto catalogue = catalogueWith({oldRecord(), newRecord(), newRecord()});
        const Equipment& item = itemOf(catalogue);
        catalogue.viewModel.deleteMaintenance(item.id, item.maintenanceHistory.at(0).id);
        QCOMPARE(idsOf(itemOf(catalogue)), QList({newId, newId}));
        for (int i = 0; i < 50; ++i)
            catalogue.viewModel.addMaintenance(itemOf(catalogue).id, itemOf(catalogue).maintenanceHistory.at(0));
        QCOMPARE(itemOf(catalogue).maintenanceHistory, QList<Maintenance>(52, newRecord()));
        COMPARE_DATES(catalogue, newRecord());
    }

    void theFirstItemOfTheIdTakesTheRecord()
    {
        test::Catalogue catalogue({test::equipment(1), test::equipment(1)});
        catalogue.viewModel.addMaintenance(itemId, newRecord());
        QCOMPARE(catalogue.viewModel.equipment().at(0).maintenanceHistory.size(), 1);
        QCOMPARE(catalogue.viewModel.equipment().at(1), test::equipment(1));
    }
};

ABISSORA_TEST(tst_MaintenanceHistory);
#include "tst_MaintenanceHistory.moc"
