// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "FileSizeLimit.h"
#include "Literals.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>

using namespace abissora;
using test::changed;

namespace {

const QString equipmentChanged = u"<equipmentChanged>"_s;

/// A catalogue whose prints and notifications form one sequence.
struct Followed : test::TemporaryRegister
{
    explicit Followed(const QList<Equipment>& stored)
    {
        viewModel.emplace(storageManager(stored), documents, timeline, clock, calendar);
        timeline.follow(*viewModel);
        timeline.take();
    }

    test::Timeline timeline;
    std::optional<EquipmentViewModel> viewModel;
};

} // namespace

class tst_EquipmentViewModel : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initialState()
    {
        const test::Catalogue catalogue({test::equipment(1)});
        const EquipmentViewModel& viewModel = catalogue.viewModel;
        QCOMPARE(viewModel.equipment(), QList{test::equipment(1)});
        QVERIFY(!viewModel.selectedEquipment());
        QVERIFY(!viewModel.isAddingEquipment());
        QCOMPARE(viewModel.searchText(), QString());
        QVERIFY(!viewModel.selectedType());
        QVERIFY(!viewModel.filterTypeName());
    }

    void loadingIsLoggedThenNotified()
    {
        Equipment own = test::equipment(2, u"Faro"_s);
        own.customTypeName = u"Torcia"_s;
        Equipment blank = test::equipment(3, QString());
        blank.customTypeName = QString();
        Followed catalogue({test::equipment(1, u"Jacket"_s), own, blank});
        catalogue.viewModel->loadEquipment();
        QCOMPARE(catalogue.timeline.take(), QStringList({u"📦 Caricati 3 equipaggiamenti\n"
                                                         "   📌 Jacket: type='GAV', customType='nil'\n"
                                                         "   📌 Faro: type='GAV', customType='Torcia'\n"
                                                         "   📌 : type='GAV', customType=''"_s,
                                                         equipmentChanged, changed}));
    }

    void anEmptyRegister()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        const EquipmentViewModel viewModel(files.storageManager(), files.documents, files.console, files.clock,
                                           files.calendar);
        QCOMPARE(files.console.calls(), QStringList{u"📦 Caricati 0 equipaggiamenti"_s});
        QCOMPARE(viewModel.equipment(), QList<Equipment>());
    }

    void aFirstStartStoresNothing()
    {
        test::TemporaryRegister files;
        EquipmentViewModel viewModel(files.storageManager(), files.documents, files.console, files.clock,
                                     files.calendar);
        QCOMPARE(files.console.calls(), QStringList{u"📦 Caricati 3 equipaggiamenti\n"
                                                    "   📌 Erogatore Apeks XTX50: type='Erogatore', customType='nil'\n"
                                                    "   📌 GAV Scubapro Hydros: type='GAV', customType='nil'\n"
                                                    "   📌 Computer Suunto EON Core: type='Computer Subacqueo', "
                                                    "customType='nil'"_s});
        QCOMPARE(files.names(u"."_s), QStringList());
        viewModel.addEquipment(test::equipment(9));
        QCOMPARE(decodeEquipment(files.content(test::registerFile)).value().size(), 4);
    }

    void addition()
    {
        Followed catalogue({test::equipment(1)});
        catalogue.viewModel->addEquipment(test::equipment(2, u"Pinne"_s));
        QCOMPARE(catalogue.viewModel->equipment(), QList({test::equipment(1), test::equipment(2, u"Pinne"_s)}));
        QCOMPARE(catalogue.timeline.take(),
                 QStringList({equipmentChanged, changed, u"➕ Aggiunto equipaggiamento: Pinne"_s}));
    }

    void updateReplacesTheFirstOfTheId()
    {
        const Equipment twin = test::equipment(1, u"Gemello"_s);
        Followed catalogue({test::equipment(5), test::equipment(1), twin});
        Equipment item = test::equipmentWith(1, {test::maintenance(7)});
        item.name = u"Nuovo nome"_s;
        item.customTypeName = u"Torcia"_s;
        catalogue.viewModel->updateEquipment(item);
        QCOMPARE(catalogue.viewModel->equipment(), QList({test::equipment(5), item, twin}));
        QCOMPARE(catalogue.timeline.take(),
                 QStringList({equipmentChanged, changed, u"✏️ Aggiornato equipaggiamento: Nuovo nome"_s}));
    }

    void deletionRemovesTheFirstOfTheId()
    {
        const Equipment twin = test::equipment(1, u"Gemello"_s);
        Followed catalogue({test::equipment(1, u"Maschera"_s), test::equipment(2), twin});
        catalogue.viewModel->setSelectedEquipment(test::equipment(1));
        catalogue.timeline.take();
        catalogue.viewModel->deleteEquipment(test::equipment(1, u"Maschera"_s));
        QCOMPARE(catalogue.viewModel->equipment(), QList({test::equipment(2), twin}));
        QCOMPARE(catalogue.timeline.take(),
                 QStringList({equipmentChanged, changed, u"🗑️ Eliminato equipaggiamento: Maschera"_s}));
        QCOMPARE(catalogue.viewModel->selectedEquipment(), std::optional(test::equipment(1)));
    }

    void deletionTakesTheStoredItemsDocuments()
    {
        Maintenance both = test::maintenance(2);
        both.receiptFileName = u"R.pdf"_s;
        both.certificateFileName = u"C.pdf"_s;
        Maintenance gone = test::maintenance(3);
        gone.receiptFileName = u"gone.pdf"_s;
        gone.certificateFileName = u"../preferences/savedEquipment.json"_s;
        Maintenance last = test::maintenance(4);
        last.certificateFileName = u"D.pdf"_s;
        test::Catalogue catalogue({test::equipmentWith(1, {both, gone, last}), test::equipment(5)});
        for (const char* name : {"R.pdf", "C.pdf", "D.pdf", "other.pdf"})
            catalogue.write(u"MaintenanceDocuments/"_s + QLatin1String(name), "%PDF");
        catalogue.viewModel.deleteEquipment(test::equipment(1)); // a copy without history
        QCOMPARE(catalogue.names(u"MaintenanceDocuments"_s), QStringList{u"other.pdf"_s});
        QCOMPARE(catalogue.storedEquipment(), QList{test::equipment(5)});
    }

    void unknownItemsChangeNothing()
    {
        Followed catalogue({test::equipment(1)});
        catalogue.write(u"MaintenanceDocuments/R.pdf"_s, "%PDF");
        QVERIFY(QFile::remove(catalogue.path(test::registerFile))); // a save would bring it back
        Maintenance record = test::maintenance(2);
        record.receiptFileName = u"R.pdf"_s;
        catalogue.viewModel->updateEquipment(test::equipment(9));
        catalogue.viewModel->deleteEquipment(test::equipmentWith(9, {record}));
        catalogue.viewModel->addMaintenance(test::SequentialIds::at(9), record);
        catalogue.viewModel->updateMaintenance(test::SequentialIds::at(9), record);
        catalogue.viewModel->deleteMaintenance(test::SequentialIds::at(9), record.id);
        catalogue.viewModel->addMaintenance(QUuid(), record);
        QCOMPARE(catalogue.viewModel->equipment(), QList{test::equipment(1)});
        QCOMPARE(catalogue.timeline.take(), QStringList());
        QCOMPARE(catalogue.names(u"preferences"_s), QStringList());
        QCOMPARE(catalogue.names(u"MaintenanceDocuments"_s).size(), 1);
    }

    void stateIsStoredBeforeItIsAnnounced()
    {
        test::Catalogue catalogue({test::equipment(1)});
        int announced = 0;
        connect(&catalogue.viewModel, &EquipmentViewModel::equipmentChanged, this, [&] {
            ++announced;
            QCOMPARE(catalogue.storedEquipment(), catalogue.viewModel.equipment());
        });
        catalogue.viewModel.addEquipment(test::equipment(2));
        catalogue.viewModel.updateEquipment(test::equipment(2, u"Pinne"_s));
        catalogue.viewModel.addMaintenance(test::SequentialIds::at(2), test::maintenance(3));
        catalogue.viewModel.updateMaintenance(test::SequentialIds::at(2), test::maintenance(3));
        catalogue.viewModel.deleteMaintenance(test::SequentialIds::at(2), test::SequentialIds::at(3));
        catalogue.viewModel.deleteEquipment(test::equipment(1));
        QCOMPARE(announced, 6);
    }

    void aFailedSaveKeepsTheChange()
    {
        Followed catalogue({test::equipment(1)});
        const QByteArray before = catalogue.content(test::registerFile);
        {
            const test::FileSizeLimit limit(10);
            catalogue.viewModel->addEquipment(test::equipment(2, u"Pinne"_s));
        }
        QCOMPARE(catalogue.viewModel->equipment().size(), 2);
        QCOMPARE(catalogue.content(test::registerFile), before);
        QCOMPARE(catalogue.console.calls(),
                 QStringList{QString(u"Error saving equipment: "_s + IoError::fromErrno(EFBIG).reason)});
        QCOMPARE(catalogue.timeline.take(),
                 QStringList({equipmentChanged, changed, u"➕ Aggiunto equipaggiamento: Pinne"_s}));
    }

    void elementsOfTheListMayBeArguments()
    {
        test::Catalogue catalogue({test::equipment(1, u"Maschera"_s)});
        for (int i = 0; i < 100; ++i)
            catalogue.viewModel.addEquipment(catalogue.viewModel.equipment().at(0));
        QCOMPARE(catalogue.viewModel.equipment(), QList<Equipment>(101, test::equipment(1, u"Maschera"_s)));
        catalogue.viewModel.updateEquipment(catalogue.viewModel.equipment().at(50));
        for (int i = 0; i < 100; ++i)
            catalogue.viewModel.deleteEquipment(catalogue.viewModel.equipment().constLast());
        QCOMPARE(catalogue.viewModel.equipment().size(), 1);
        QCOMPARE(catalogue.console.calls().count(u"🗑️ Eliminato equipaggiamento: Maschera"_s), 100);
    }

    void selectionAndForm()
    {
        Followed catalogue({test::equipment(1)});
        catalogue.viewModel->setSelectedEquipment(test::equipment(1));
        catalogue.viewModel->setAddingEquipment(true);
        QCOMPARE(catalogue.viewModel->selectedEquipment(), std::optional(test::equipment(1)));
        QVERIFY(catalogue.viewModel->isAddingEquipment());
        catalogue.viewModel->setSelectedEquipment(std::nullopt);
        catalogue.viewModel->setAddingEquipment(false);
        QVERIFY(!catalogue.viewModel->selectedEquipment());
        QVERIFY(!catalogue.viewModel->isAddingEquipment());
        const QStringList pair{u"<selectedEquipmentChanged>"_s, changed, u"<isAddingEquipmentChanged>"_s, changed};
        QCOMPARE(catalogue.timeline.take(), pair + pair);
    }
};

ABISSORA_TEST(tst_EquipmentViewModel);
#include "tst_EquipmentViewModel.moc"
