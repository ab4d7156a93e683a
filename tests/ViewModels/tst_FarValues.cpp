// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>
#include <limits>

using namespace abissora;
using test::at;

namespace {

constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::chrono::seconds second{1};

const QUuid firstId = test::SequentialIds::at(1);

/// Neither of its dates can be stored, nor its cost.
Maintenance unstorableRecord(int id)
{
    Maintenance record = test::maintenance(id, lastInstant + second, firstInstant - second);
    record.cost = notANumber;
    return record;
}

Maintenance settledRecord(int id)
{
    Maintenance record = test::maintenance(id, lastInstant, firstInstant);
    record.cost = 0;
    return record;
}

/// As it comes back from the disk.
QList<Equipment> inWholeSeconds(const QList<Equipment>& equipment)
{
    return decodeEquipment(encode(equipment).value()).value();
}

} // namespace

/// Values at the ends of what can be stored, and beyond them.
class tst_FarValues : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anAddedItem()
    {
        test::Catalogue catalogue({test::equipment(2)});
        Equipment item = test::equipmentWith(1, {unstorableRecord(3)});
        item.purchaseDate = firstInstant - second;
        item.lastServiceDate = lastInstant + second;
        item.nextServiceDate = Instant::max();
        catalogue.viewModel.addEquipment(item);

        Equipment settled = test::equipmentWith(1, {settledRecord(3)});
        settled.purchaseDate = firstInstant;
        settled.lastServiceDate = lastInstant;
        settled.nextServiceDate = lastInstant;
        QCOMPARE(catalogue.viewModel.equipment(), QList({test::equipment(2), settled}));
        QCOMPARE(catalogue.storedEquipment(), inWholeSeconds(catalogue.viewModel.equipment()));
    }

    void anUpdatedItem()
    {
        test::Catalogue catalogue({test::equipment(1), test::equipment(2)});
        Equipment item = test::equipmentWith(1, {unstorableRecord(3)});
        item.nextServiceDate = lastInstant + second;
        catalogue.viewModel.updateEquipment(item);

        Equipment settled = test::equipmentWith(1, {settledRecord(3)});
        settled.nextServiceDate = lastInstant;
        QCOMPARE(catalogue.viewModel.equipment(), QList({settled, test::equipment(2)}));
        QCOMPARE(catalogue.storedEquipment(), inWholeSeconds(catalogue.viewModel.equipment()));
    }

    void anAddedRecord()
    {
        test::Catalogue catalogue({test::equipment(1), test::equipment(2)});
        catalogue.viewModel.addMaintenance(firstId, unstorableRecord(3));

        Equipment settled = test::equipmentWith(1, {settledRecord(3)});
        settled.lastServiceDate = lastInstant;
        settled.nextServiceDate = firstInstant;
        QCOMPARE(catalogue.viewModel.equipment(), QList({settled, test::equipment(2)}));
        QCOMPARE(catalogue.storedEquipment(), inWholeSeconds(catalogue.viewModel.equipment()));
    }

    void anUpdatedRecord()
    {
        test::Catalogue catalogue({test::equipmentWith(1, {test::maintenance(3)}), test::equipment(2)});
        catalogue.viewModel.updateMaintenance(firstId, unstorableRecord(3));

        Equipment settled = test::equipmentWith(1, {settledRecord(3)});
        settled.lastServiceDate = lastInstant;
        settled.nextServiceDate = firstInstant;
        QCOMPARE(catalogue.viewModel.equipment(), QList({settled, test::equipment(2)}));
        QCOMPARE(catalogue.storedEquipment(), inWholeSeconds(catalogue.viewModel.equipment()));
    }

    void aStoredFarDateKeepsNothingBack_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<Instant>("far");
        for (const char* zone :
             {"Europe/Rome", "America/New_York", "Asia/Tokyo", "Pacific/Kiritimati", "Pacific/Pago_Pago", "UTC"}) {
            for (const char* far : {"0001-01-01T00:00:00Z", "9999-12-31T23:59:59Z"})
                QTest::addRow("%s %s", zone, far) << QByteArray(zone) << at(far);
        }
    }

    void aStoredFarDateKeepsNothingBack()
    {
        QFETCH(QByteArray, zone);
        QFETCH(Instant, far);
        Equipment stored = test::equipmentWith(1, {test::maintenance(3, far, far)});
        stored.purchaseDate = far;
        stored.lastServiceDate = far;
        stored.nextServiceDate = far;
        test::TemporaryRegister files;
        files.calendar = Calendar(QTimeZone(zone));
        EquipmentViewModel viewModel(files.storageManager(QList{stored, test::equipment(2)}), files.documents,
                                     files.console, files.clock, files.calendar);
        const auto onDisk = [&] { return decodeEquipment(files.content(test::registerFile)).value(); };

        // Another item, then the very item and its record.
        viewModel.updateEquipment(test::equipment(2, u"Altro"_s));
        QCOMPARE(onDisk(), QList({stored, test::equipment(2, u"Altro"_s)}));
        viewModel.addEquipment(test::equipment(4));
        QCOMPARE(onDisk(), QList({stored, test::equipment(2, u"Altro"_s), test::equipment(4)}));
        stored.name = u"Lontano"_s;
        stored.maintenanceHistory[0].notes = u"Lontane"_s;
        viewModel.updateEquipment(stored);
        viewModel.updateMaintenance(stored.id, stored.maintenanceHistory.at(0));
        QCOMPARE(onDisk(), QList({stored, test::equipment(2, u"Altro"_s), test::equipment(4)}));
        QVERIFY(!files.console.text().contains(u"Error"_s));
    }
};

ABISSORA_TEST(tst_FarValues);
#include "tst_FarValues.moc"
