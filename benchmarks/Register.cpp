// SPDX-License-Identifier: MIT
#include "Register.h"

#include "Literals.h"

#include <random>

namespace abissora::benchmark {

namespace {

using Random = std::mt19937;

QUuid id(Random& random)
{
    const auto word = [&random] { return static_cast<std::uint32_t>(random()); };
    return QUuid::fromRfc4122(QByteArray::fromHex(
        QByteArray::number(qulonglong(word()) << 32 | word(), 16)
            .rightJustified(16, '0')
            .append(QByteArray::number(qulonglong(word()) << 32 | word(), 16).rightJustified(16, '0'))));
}

Instant instant(Random& random, Instant now)
{
    constexpr int twoYears = 2 * 365 * 86'400;
    return now + std::chrono::seconds(std::uniform_int_distribution(-twoYears, twoYears)(random));
}

Maintenance maintenance(Random& random, Instant now, int n)
{
    constexpr auto types = allCases<MaintenanceType>();
    Maintenance record;
    record.id = id(random);
    record.date = instant(random, now);
    record.type = types.at(static_cast<std::size_t>(n) % types.size());
    record.description = u"Revisione, prova a %1 bar"_s.arg(n * 10);
    record.performedBy = u"Officina Blu"_s;
    record.cost = std::uniform_int_distribution(0, 40'000)(random) / 100.0;
    record.notes = u"Ritirata."_s;
    record.nextServiceDate = instant(random, now);
    record.isCompleted = n % 2 == 0;
    return record;
}

} // namespace

QList<Equipment> registerOf(int count, Instant now)
{
    static const QStringList brands{u"Marevivo"_s, u"Nordsee"_s, u"Écume"_s, u"Sette Mari"_s};
    constexpr auto types = allCases<EquipmentType>();
    Random random(1); // the same register at every run
    QList<Equipment> equipment;
    equipment.reserve(count);
    for (int i = 0; i < count; ++i) {
        Equipment item;
        item.id = id(random);
        item.type = types.at(static_cast<std::size_t>(i) % types.size());
        item.name = rawValue(item.type) + u" numero %1"_s.arg(i);
        item.brand = brands.at(i % brands.size());
        item.model = u"Modello %1"_s.arg(i % 37);
        item.serialNumber = u"AB-%1"_s.arg(i, 8, 10, '0'_L1);
        item.purchaseDate = instant(random, now);
        item.lastServiceDate = instant(random, now);
        item.nextServiceDate = instant(random, now);
        item.notes = u"Per acque fredde."_s;
        item.isActive = i % 10 != 0;
        for (int n = 0; n < 4; ++n)
            item.maintenanceHistory.append(maintenance(random, now, n));
        equipment.append(item);
    }
    return equipment;
}

} // namespace abissora::benchmark
