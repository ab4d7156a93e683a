// SPDX-License-Identifier: MIT
#include "ScreenStage.h"

#include "Literals.h"

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
        item(1, u"Erogatore Apeks XTX50"_s, EquipmentType::regulator, u"Apeks"_s, u"XTX50"_s, 2027y / November / 21),
        item(2, u"GAV Scubapro Hydros"_s, EquipmentType::bcd, u"Scubapro"_s, u"Hydros Pro"_s, 2026y / December / 21),
        item(3, u"Computer Suunto EON Core"_s, EquipmentType::computer, u"Suunto"_s, u"EON Core"_s,
             2026y / December / 5),
        item(4, u"Bombola 15L acciaio"_s, EquipmentType::cylinder, u"Faber"_s, u"15L 232 bar"_s, 2026y / November / 2),
        item(5, u"Torcia principale"_s, EquipmentType::other, u"Big Blue"_s, u"VTL8000P"_s, 2027y / March / 14),
        item(6, u"Muta stagna trilaminato"_s, EquipmentType::drysuit, u"Santi"_s, u"Motion+"_s, 2027y / June / 2),
        item(7, u"Maschera di riserva"_s, EquipmentType::mask, u"Cressi"_s, u"F1"_s, 2027y / September / 30),
    };
    items[4].customTypeName = u"Torcia"_s;
    items[6].isActive = false;
    Maintenance battery;
    battery.id = test::SequentialIds::at(1);
    battery.date = sys_days{2026y / October / 21} + 9h;
    battery.description = u"Sostituzione batteria e prova stagna"_s;
    battery.performedBy = u"Blu Service"_s;
    battery.cost = 45;
    battery.nextServiceDate = sys_days{2026y / December / 6} + 9h;
    battery.isCompleted = true;
    Maintenance repair = battery;
    repair.id = test::SequentialIds::at(2);
    repair.date = sys_days{2025y / November / 3} + 9h;
    repair.type = MaintenanceType::repair;
    repair.description = u"Cinturino rotto"_s;
    repair.isCompleted = false;
    repair.cost = 0;
    items[2].serialNumber = u"SU456789"_s;
    items[2].notes = u"Computer subacqueo con display a colori."_s;
    items[2].maintenanceHistory = {repair, battery};
    return items;
}

} // namespace abissora::gallery
