// SPDX-License-Identifier: MIT
#include "EquipmentFormState.h"

#include "EquipmentTypeViewModel.h"
#include "ServiceInterval.h"

namespace abissora {

EquipmentFormState EquipmentFormState::of(const Equipment& item)
{
    return {
        .name = item.name,
        .selectedTypeName = item.displayTypeName(),
        .brand = item.brand,
        .model = item.model,
        .serialNumber = item.serialNumber,
        .purchaseDate = item.purchaseDate,
        .lastServiceDate = item.lastServiceDate,
        .notes = item.notes,
        .isActive = item.isActive,
    };
}

EquipmentFormState EquipmentFormState::ofNewItem(Instant now)
{
    EquipmentFormState state;
    state.purchaseDate = now;
    state.lastServiceDate = now;
    return state;
}

EquipmentFormState EquipmentFormState::ofAnotherLike(const Equipment& item)
{
    EquipmentFormState state = of(item);
    state.serialNumber.clear();
    state.isActive = true;
    return state;
}

bool EquipmentFormState::isFormValid() const
{
    return !name.trimmed().isEmpty() && !brand.trimmed().isEmpty();
}

Instant EquipmentFormState::calculateNextServiceDate(const EquipmentTypeViewModel& types, const Almanac& almanac) const
{
    const std::int64_t interval = serviceInterval::ofType(selectedTypeName, types.types());
    return almanac.calendar.addDays(lastServiceDate, interval).value_or(almanac.now());
}

Equipment EquipmentFormState::appliedTo(Equipment item, Instant nextServiceDate) const
{
    const QString typeName = selectedTypeName.trimmed();
    const auto builtIn = EquipmentTypeViewModel::getEquipmentType(typeName);
    item.name = name.trimmed();
    item.type = builtIn.value_or(EquipmentType::other);
    item.customTypeName = builtIn ? std::nullopt : std::optional(typeName);
    item.brand = brand.trimmed();
    item.model = model.trimmed();
    item.serialNumber = serialNumber.trimmed();
    item.purchaseDate = purchaseDate;
    item.lastServiceDate = lastServiceDate;
    item.nextServiceDate = nextServiceDate;
    item.notes = notes.trimmed();
    item.isActive = isActive;
    return item;
}

} // namespace abissora
