// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>
#include <limits>

using namespace abissora;

namespace {

QString lineOf(const char* prefix, int error)
{
    return QLatin1String(prefix) + IoError::fromErrno(error).reason;
}

} // namespace

class tst_StorageManager : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstStart()
    {
        test::TemporaryRegister files;
        StorageManager storage = files.storageManager();
        QCOMPARE(storage.loadEquipment().size(), 3);
        QCOMPARE(files.names(u"."_s), QStringList());
        QCOMPARE(files.console.calls(), QStringList());
    }

    void samplesAreFreshEveryTime()
    {
        test::TemporaryRegister files;
        StorageManager storage = files.storageManager();
        const QUuid first = storage.loadEquipment().at(0).id;
        files.clock.advance(std::chrono::hours(1));
        const Equipment again = storage.loadEquipment().at(0);
        QVERIFY(again.id != first);
        QCOMPARE(again.lastServiceDate, test::at("2025-06-15T11:00:00Z"));
    }

    void anEmptyListIsAList()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        StorageManager storage = files.storageManager();
        QCOMPARE(storage.loadEquipment(), QList<Equipment>());
        storage.saveEquipment({test::equipment(1)});
        storage.saveEquipment({});
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QCOMPARE(storage.loadEquipment(), QList<Equipment>());
        QCOMPARE(files.console.calls(), QStringList());
    }

    void everyFieldComesBack()
    {
        test::TemporaryRegister files;
        Maintenance full = test::maintenance(3);
        full.isCompleted = false;
        full.receiptFileName = u"R.pdf"_s;
        full.certificateFileName = u"C.pdf"_s;
        full.cost = 0.1;
        Equipment item = test::equipmentWith(1, {test::maintenance(2), full});
        item.customTypeName = u"Torcia"_s;
        const QList<Equipment> equipment{item, test::equipment(4, u"è 🤿 \"\\\n"_s)};
        files.storageManager().saveEquipment(equipment);
        QCOMPARE(files.storageManager().loadEquipment(), equipment);
        QCOMPARE(files.content(test::registerFile), encode(equipment).value());
        QCOMPARE(files.names(u"."_s), QStringList{u"preferences"_s});
        QCOMPARE(files.console.calls(), QStringList());
    }

    void datesComeBackInWholeSeconds()
    {
        test::TemporaryRegister files;
        Equipment item = test::equipment(1);
        item.purchaseDate = test::at("2024-01-02T03:04:05.678Z");
        files.storageManager().saveEquipment({item});
        item.purchaseDate = test::at("2024-01-02T03:04:05Z");
        QCOMPARE(files.storageManager().loadEquipment(), QList{item});
    }

    void whatCannotBeEncodedLeavesTheStoredValue()
    {
        test::TemporaryRegister files;
        StorageManager storage = files.storageManager();
        storage.saveEquipment({test::equipment(1)});
        const QByteArray before = files.content(test::registerFile);
        Equipment item = test::equipmentWith(2, {test::maintenance(3)});
        item.maintenanceHistory[0].cost = std::numeric_limits<double>::quiet_NaN();
        storage.saveEquipment({test::equipment(1), item});
        item.maintenanceHistory[0].cost = 0;
        item.nextServiceDate = test::at("9999-12-31T23:59:59Z") + std::chrono::seconds(1);
        storage.saveEquipment({item});
        QCOMPARE(files.console.calls(),
                 QStringList({u"Error saving equipment: [1].maintenanceHistory[0].cost: the number is "
                              "not finite"_s,
                              u"Error saving equipment: [0].nextServiceDate: the year lies outside 1 "
                              "to 9999"_s}));
        QCOMPARE(files.content(test::registerFile), before);
    }

    void aFullDiskLeavesTheStoredValue()
    {
        test::TemporaryRegister files;
        StorageManager storage = files.storageManager();
        storage.saveEquipment({test::equipment(1)});
        const QByteArray before = files.content(test::registerFile);
        {
            const test::FileSizeLimit limit(static_cast<rlim_t>(before.size()));
            storage.saveEquipment({test::equipment(1), test::equipment(2)});
        }
        QCOMPARE(files.console.calls(), QStringList{lineOf("Error saving equipment: ", EFBIG)});
        QCOMPARE(files.content(test::registerFile), before);
        QCOMPARE(files.names(u"preferences"_s), QStringList{u"savedEquipment.json"_s});
        storage.saveEquipment({test::equipment(2)});
        QCOMPARE(storage.loadEquipment(), QList{test::equipment(2)});
    }

    void aFileInPlaceOfTheFolder()
    {
        test::TemporaryRegister files;
        files.write(u"preferences"_s, "in the way");
        StorageManager storage = files.storageManager();
        storage.saveEquipment({});
        QCOMPARE(files.console.calls().size(), 1);
        QVERIFY2(files.console.text().startsWith(u"Error saving equipment: "_s), qPrintable(files.console.text()));
        QCOMPARE(files.content(u"preferences"_s), QByteArray("in the way"));
    }
};

ABISSORA_TEST(tst_StorageManager);
#include "tst_StorageManager.moc"
