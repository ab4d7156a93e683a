// SPDX-License-Identifier: MIT
#include "ScreenStage.h"

namespace abissora::gallery {

namespace {

using namespace std::chrono;

Equipment item(int number, const QString& name, EquipmentType type, const QString& brand, const QString& model,
               sys_days nextService)
{
    Equipment item = test::makeItem(number, name, type, nextService + 12h);
    item.brand = brand;
    item.model = model;
    item.purchaseDate = sys_days{2025y / November / 21} + 9h;
    item.lastServiceDate = sys_days{2026y / October / 21} + 9h;
    return item;
}

} // namespace

QList<Equipment> items()
{
    QList<Equipment> items{
        item(1, QStringLiteral("Erogatore Apeks XTX50"), EquipmentType::regulator, QStringLiteral("Apeks"),
             QStringLiteral("XTX50"), 2027y / November / 21),
        item(2, QStringLiteral("GAV Scubapro Hydros"), EquipmentType::bcd, QStringLiteral("Scubapro"),
             QStringLiteral("Hydros Pro"), 2026y / December / 21),
        item(3, QStringLiteral("Computer Suunto EON Core"), EquipmentType::computer, QStringLiteral("Suunto"),
             QStringLiteral("EON Core"), 2026y / December / 5),
        item(4, QStringLiteral("Bombola 15L acciaio"), EquipmentType::cylinder, QStringLiteral("Faber"),
             QStringLiteral("15L 232 bar"), 2026y / November / 2),
        item(5, QStringLiteral("Torcia principale"), EquipmentType::other, QStringLiteral("Big Blue"),
             QStringLiteral("VTL8000P"), 2027y / March / 14),
        item(6, QStringLiteral("Muta stagna trilaminato"), EquipmentType::drysuit, QStringLiteral("Santi"),
             QStringLiteral("Motion+"), 2027y / June / 2),
        item(7, QStringLiteral("Maschera di riserva"), EquipmentType::mask, QStringLiteral("Cressi"),
             QStringLiteral("F1"), 2027y / September / 30),
    };
    items[4].customTypeName = QStringLiteral("Torcia");
    items[6].isActive = false;
    Maintenance battery;
    battery.id = test::SequentialIds::at(1);
    battery.date = sys_days{2026y / October / 21} + 9h;
    battery.description = QStringLiteral("Sostituzione batteria e prova stagna");
    battery.performedBy = QStringLiteral("Blu Service");
    battery.cost = 45;
    battery.nextServiceDate = sys_days{2026y / December / 6} + 9h;
    battery.isCompleted = true;
    Maintenance repair = battery;
    repair.id = test::SequentialIds::at(2);
    repair.date = sys_days{2025y / November / 3} + 9h;
    repair.type = MaintenanceType::repair;
    repair.description = QStringLiteral("Cinturino rotto");
    repair.isCompleted = false;
    repair.cost = 0;
    items[2].serialNumber = QStringLiteral("SU456789");
    items[2].notes = QStringLiteral("Computer subacqueo con display a colori.");
    items[2].maintenanceHistory = {repair, battery};
    return items;
}

} // namespace abissora::gallery
