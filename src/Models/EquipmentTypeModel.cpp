// SPDX-License-Identifier: MIT
#include "EquipmentTypeModel.h"

#include "AvailableColors.h"

namespace abissora {

NamedColor EquipmentTypeModel::colorValue() const
{
    const auto found = availableColorNamed(color.toLower());
    return found ? abissora::colorValue(*found) : NamedColor::primary;
}

size_t qHash(const EquipmentTypeModel& type, size_t seed)
{
    return qHashMulti(seed, type.id, type.name, type.icon, type.color, type.serviceIntervalDays, type.isActive);
}

} // namespace abissora
