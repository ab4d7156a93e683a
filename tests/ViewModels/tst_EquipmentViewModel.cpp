// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "FileSizeLimit.h"
#include "TestRunner.h"
#include "Timeline.h"

#include <QTest>

using namespace abissora;

namespace {

const QString equipmentChanged = QStringLiteral("<equipmentChanged>");
const QString changed = QStringLiteral("<changed>");

/// A catalogue whose prints and notifications form one sequence.
struct Followed : test::TemporaryRegister
{
    explicit Followed(const QList<Equipment>& stored)
    {
        write(test::registerFile, encode(stored).value());
        viewModel.emplace(storageManager(), documents, timeline, clock, calendar);
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
        Equipment own = test::equipment(2, QStringLiteral("Faro"));
        own.customTypeName = QStringLiteral("Torcia");
        Equipment blank = test::equipment(3, QString());
        blank.customTypeName = QString();
        Followed catalogue({test::equipment(1, QStringLiteral("Jacket")), own, blank});
        catalogue.viewModel->loadEquipment();
        QCOMPARE(catalogue.timeline.take(), QStringList({QStringLiteral("📦 Caricati 3 equipaggiamenti\n"
                                                                        "   📌 Jacket: type='GAV', customType='nil'\n"
                                                                        "   📌 Faro: type='GAV', customType='Torcia'\n"
                                                                        "   📌 : type='GAV', customType=''"),
                                                         changed, equipmentChanged}));
    }

    void anEmptyRegister()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "[]");
        const EquipmentViewModel viewModel(files.storageManager(), files.documents, files.console, files.clock,
                                           files.calendar);
        QCOMPARE(files.console.calls(), QStringList{QStringLiteral("📦 Caricati 0 equipaggiamenti")});
        QCOMPARE(viewModel.equipment(), QList<Equipment>());
    }

    void aFirstStartStoresNothing()
    {
        test::TemporaryRegister files;
        EquipmentViewModel viewModel(files.storageManager(), files.documents, files.console, files.clock,
                                     files.calendar);
        QCOMPARE(files.console.calls(),
                 QStringList{QStringLiteral("📦 Caricati 3 equipaggiamenti\n"
                                            "   📌 Erogatore Apeks XTX50: type='Erogatore', customType='nil'\n"
                                            "   📌 GAV Scubapro Hydros: type='GAV', customType='nil'\n"
                                            "   📌 Computer Suunto EON Core: type='Computer Subacqueo', "
                                            "customType='nil'")});
        QCOMPARE(files.names(QStringLiteral(".")), QStringList());
        viewModel.addEquipment(test::equipment(9));
        QCOMPARE(decodeEquipment(files.content(test::registerFile)).value().size(), 4);
    }

    void addition()
    {
        Followed catalogue({test::equipment(1)});
        catalogue.viewModel->addEquipment(test::equipment(2, QStringLiteral("Pinne")));
        QCOMPARE(catalogue.viewModel->equipment(),
                 QList({test::equipment(1), test::equipment(2, QStringLiteral("Pinne"))}));
        QCOMPARE(catalogue.timeline.take(),
                 QStringList({changed, equipmentChanged, QStringLiteral("➕ Aggiunto equipaggiamento: Pinne")}));
    }

    void updateReplacesTheFirstOfTheId()
    {
        const Equipment twin = test::equipment(1, QStringLiteral("Gemello"));
        Followed catalogue({test::equipment(5), test::equipment(1), twin});
        Equipment item = test::equipmentWith(1, {test::maintenance(7)});
        item.name = QStringLiteral("Nuovo nome");
        item.customTypeName = QStringLiteral("Torcia");
        catalogue.viewModel->updateEquipment(item);
        QCOMPARE(catalogue.viewModel->equipment(), QList({test::equipment(5), item, twin}));
        QCOMPARE(
            catalogue.timeline.take(),
            QStringList({changed, equipmentChanged, QStringLiteral("✏️ Aggiornato equipaggiamento: Nuovo nome")}));
    }

    void deletionRemovesTheFirstOfTheId()
    {
        const Equipment twin = test::equipment(1, QStringLiteral("Gemello"));
        Followed catalogue({test::equipment(1, QStringLiteral("Maschera")), test::equipment(2), twin});
        catalogue.viewModel->setSelectedEquipment(test::equipment(1));
        catalogue.timeline.take();
        catalogue.viewModel->deleteEquipment(test::equipment(1, QStringLiteral("Maschera")));
        QCOMPARE(catalogue.viewModel->equipment(), QList({test::equipment(2), twin}));
        QCOMPARE(
            catalogue.timeline.take(),
            QStringList({changed, equipmentChanged, QStringLiteral("🗑️ Eliminato equipaggiamento: Maschera")}));
        QCOMPARE(catalogue.viewModel->selectedEquipment(), std::optional(test::equipment(1)));
    }

    void deletionTakesTheStoredItemsDocuments()
    {
        Maintenance both = test::maintenance(2);
        both.receiptFileName = QStringLiteral("R.pdf");
        both.certificateFileName = QStringLiteral("C.pdf");
        Maintenance gone = test::maintenance(3);
        gone.receiptFileName = QStringLiteral("gone.pdf");
        gone.certificateFileName = QStringLiteral("../preferences/savedEquipment.json");
        Maintenance last = test::maintenance(4);
        last.certificateFileName = QStringLiteral("D.pdf");
        test::Catalogue catalogue({test::equipmentWith(1, {both, gone, last}), test::equipment(5)});
        for (const char* name : {"R.pdf", "C.pdf", "D.pdf", "other.pdf"})
            catalogue.write(QStringLiteral("MaintenanceDocuments/") + QLatin1String(name), "%PDF");
        catalogue.viewModel.deleteEquipment(test::equipment(1)); // a copy without history
        QCOMPARE(catalogue.names(QStringLiteral("MaintenanceDocuments")), QStringList{QStringLiteral("other.pdf")});
        QCOMPARE(catalogue.storedEquipment(), QList{test::equipment(5)});
    }

    void unknownItemsChangeNothing()
    {
        Followed catalogue({test::equipment(1)});
        catalogue.write(QStringLiteral("MaintenanceDocuments/R.pdf"), "%PDF");
        QVERIFY(QFile::remove(catalogue.path(test::registerFile))); // a save would bring it back
        Maintenance record = test::maintenance(2);
        record.receiptFileName = QStringLiteral("R.pdf");
        catalogue.viewModel->updateEquipment(test::equipment(9));
        catalogue.viewModel->deleteEquipment(test::equipmentWith(9, {record}));
        catalogue.viewModel->addMaintenance(test::SequentialIds::at(9), record);
        catalogue.viewModel->updateMaintenance(test::SequentialIds::at(9), record);
        catalogue.viewModel->deleteMaintenance(test::SequentialIds::at(9), record.id);
        catalogue.viewModel->addMaintenance(QUuid(), record);
        QCOMPARE(catalogue.viewModel->equipment(), QList{test::equipment(1)});
        QCOMPARE(catalogue.timeline.take(), QStringList());
        QCOMPARE(catalogue.names(QStringLiteral("preferences")), QStringList());
        QCOMPARE(catalogue.names(QStringLiteral("MaintenanceDocuments")).size(), 1);
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
        catalogue.viewModel.updateEquipment(test::equipment(2, QStringLiteral("Pinne")));
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
            catalogue.viewModel->addEquipment(test::equipment(2, QStringLiteral("Pinne")));
        }
        QCOMPARE(catalogue.viewModel->equipment().size(), 2);
        QCOMPARE(catalogue.content(test::registerFile), before);
        QCOMPARE(catalogue.console.calls(),
                 QStringList{QString(QStringLiteral("Error saving equipment: ") + IoError::fromErrno(EFBIG).reason)});
        QCOMPARE(catalogue.timeline.take(),
                 QStringList({changed, equipmentChanged, QStringLiteral("➕ Aggiunto equipaggiamento: Pinne")}));
    }

    void elementsOfTheListMayBeArguments()
    {
        test::Catalogue catalogue({test::equipment(1, QStringLiteral("Maschera"))});
        for (int i = 0; i < 100; ++i)
            catalogue.viewModel.addEquipment(catalogue.viewModel.equipment().at(0));
        QCOMPARE(catalogue.viewModel.equipment(),
                 QList<Equipment>(101, test::equipment(1, QStringLiteral("Maschera"))));
        catalogue.viewModel.updateEquipment(catalogue.viewModel.equipment().at(50));
        for (int i = 0; i < 100; ++i)
            catalogue.viewModel.deleteEquipment(catalogue.viewModel.equipment().constLast());
        QCOMPARE(catalogue.viewModel.equipment().size(), 1);
        QCOMPARE(catalogue.console.calls().count(QStringLiteral("🗑️ Eliminato equipaggiamento: Maschera")), 100);
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
        const QStringList pair{changed, QStringLiteral("<selectedEquipmentChanged>"), changed,
                               QStringLiteral("<isAddingEquipmentChanged>")};
        QCOMPARE(catalogue.timeline.take(), pair + pair);
    }
};

ABISSORA_TEST(tst_EquipmentViewModel);
#include "tst_EquipmentViewModel.moc"
