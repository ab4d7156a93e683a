// SPDX-License-Identifier: MIT
#include "EquipmentTypeFormState.h"

namespace abissora {

EquipmentTypeFormState EquipmentTypeFormState::of(const EquipmentTypeModel& type)
{
    EquipmentTypeFormState state;
    state.name = type.name;
    state.selectedIcon = fromRawValue<DivingIcons>(type.icon).value_or(state.selectedIcon);
    state.selectedColor = availableColorNamed(type.color.toLower()).value_or(state.selectedColor);
    state.serviceIntervalDays = type.serviceIntervalDays;
    return state;
}

bool EquipmentTypeFormState::isFormValid() const
{
    return !name.trimmed().isEmpty();
}

EquipmentTypeModel EquipmentTypeFormState::toType(const QUuid& id) const
{
    return {id, name, rawValue(selectedIcon), caseName(selectedColor), serviceIntervalDays, true};
}

} // namespace abissora
