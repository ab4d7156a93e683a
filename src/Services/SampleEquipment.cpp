// SPDX-License-Identifier: MIT
#include "SampleEquipment.h"

namespace abissora {

QList<Equipment> sampleEquipment(Instant now, const Calendar& calendar, IdGenerator& ids)
{
    const auto years = [&](int count) { return calendar.addYears(now, count).value_or(now); };
    const auto months = [&](int count) { return calendar.addMonths(now, count).value_or(now); };
    constexpr std::chrono::seconds fifteenDays{1'296'000};

    Equipment regulator;
    regulator.id = ids.next();
    regulator.name = QStringLiteral("Erogatore Apeks XTX50");
    regulator.type = EquipmentType::regulator;
    regulator.brand = QStringLiteral("Apeks");
    regulator.model = QStringLiteral("XTX50");
    regulator.serialNumber = QStringLiteral("AP123456");
    regulator.purchaseDate = years(-2);
    regulator.lastServiceDate = years(-1);
    regulator.nextServiceDate = years(1);
    regulator.notes = QStringLiteral("Ottimo erogatore per acque fredde. Utilizzato per immersioni in Italia.");

    Equipment bcd;
    bcd.id = ids.next();
    bcd.name = QStringLiteral("GAV Scubapro Hydros");
    bcd.type = EquipmentType::bcd;
    bcd.brand = QStringLiteral("Scubapro");
    bcd.model = QStringLiteral("Hydros Pro");
    bcd.serialNumber = QStringLiteral("SP789012");
    bcd.purchaseDate = years(-1);
    bcd.lastServiceDate = months(-6);
    bcd.nextServiceDate = months(1);
    bcd.notes = QStringLiteral("GAV leggero e confortevole. Perfetto per viaggi.");

    Equipment computer;
    computer.id = ids.next();
    computer.name = QStringLiteral("Computer Suunto EON Core");
    computer.type = EquipmentType::computer;
    computer.brand = QStringLiteral("Suunto");
    computer.model = QStringLiteral("EON Core");
    computer.serialNumber = QStringLiteral("SU456789");
    computer.purchaseDate = years(-1);
    computer.lastServiceDate = months(-1);
    computer.nextServiceDate = now + fifteenDays;
    computer.notes = QStringLiteral("Computer subacqueo con display a colori.");

    return {regulator, bcd, computer};
}

} // namespace abissora
