// SPDX-License-Identifier: MIT
#include "TypeChoice.h"

#include "EquipmentType.h"
#include "Literals.h"
#include "StableUuid.h"
#include "TypeAppearance.h"

namespace abissora {

QString defaultTypeName(const QList<EquipmentTypeModel>& offered)
{
    const QString regulator = rawValue(EquipmentType::regulator);
    if (offers(offered, regulator))
        return regulator;
    return offered.isEmpty() ? QString() : offered.first().name;
}

bool offers(const QList<EquipmentTypeModel>& offered, const QString& typeName)
{
    return std::any_of(offered.begin(), offered.end(),
                       [&typeName](const EquipmentTypeModel& type) { return type.name == typeName; });
}

QList<EquipmentTypeModel> availableTypes(const QList<EquipmentTypeModel>& offered, const QString& selectedTypeName)
{
    if (selectedTypeName.isEmpty() || offers(offered, selectedTypeName))
        return offered;
    return offered + QList<EquipmentTypeModel>{{
                         .id = stableUUID(selectedTypeName),
                         .name = selectedTypeName,
                         .icon = unknownTypeIcon,
                         .color = u"gray"_s,
                         .serviceIntervalDays = 365,
                         .isActive = true,
                     }};
}

} // namespace abissora
