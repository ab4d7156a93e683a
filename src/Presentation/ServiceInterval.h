// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "Literals.h"

namespace abissora {

/// One of those that the settings offer for items of no type of their own.
struct ServiceInterval
{
    QString text;
    std::int64_t days;
};

inline const QList<ServiceInterval> offeredIntervals{{u"6 Mesi"_s, 180}, {u"1 Anno"_s, 365}, {u"2 Anni"_s, 730}};

/// The place among those offered; -1 for any other number of days.
[[nodiscard]] inline int placeOfInterval(std::int64_t days)
{
    const auto found = std::ranges::find(offeredIntervals, days, &ServiceInterval::days);
    return found == offeredIntervals.end() ? -1 : static_cast<int>(found - offeredIntervals.begin());
}

} // namespace abissora

/// The days between two services, from the active type of a name. The two forms that count with them go different ways
/// where the catalogue has no good answer, and have to: dates that are stored already were made either way.
namespace abissora::serviceInterval {

inline constexpr std::int64_t usual = 365;
inline constexpr std::int64_t ofComputers = 730;

/// For the form of an item, of the type that is chosen in it: the type's number as it stands, even when it is not
/// positive; the usual one, for computers too, when the catalogue has no such type.
[[nodiscard]] inline std::int64_t ofType(const QString& typeName, const QList<EquipmentTypeModel>& types)
{
    const auto type = activeTypeNamed(typeName, types);
    return type ? type->serviceIntervalDays : usual;
}

/// For a maintenance record of the item: at least one day; without such a type the one of computers or the usual one.
[[nodiscard]] inline std::int64_t ofItem(const Equipment& item, const QList<EquipmentTypeModel>& types)
{
    if (const auto type = activeTypeNamed(item.typeName(), types))
        return std::max<std::int64_t>(type->serviceIntervalDays, 1);
    return item.type == EquipmentType::computer ? ofComputers : usual;
}

/// For the form of a maintenance record, of the item in the register: as ofItem() above; the usual one for an item that
/// is gone.
[[nodiscard]] inline std::int64_t ofItem(const QUuid& id, const QList<Equipment>& items,
                                         const QList<EquipmentTypeModel>& types)
{
    const auto item = std::ranges::find(items, id, &Equipment::id);
    return item == items.end() ? usual : ofItem(*item, types);
}

} // namespace abissora::serviceInterval
