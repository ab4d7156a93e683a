// SPDX-License-Identifier: MIT
#include "EquipmentTypeFormState.h"

#include "TextSearch.h"

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
    return {id, name.trimmed(), rawValue(selectedIcon), caseName(selectedColor), serviceIntervalDays, true};
}

QList<DivingIconsCategory> filteredIcons(const QString& searchIconText)
{
    const TextSearch search(searchIconText);
    QList<DivingIconsCategory> sections = categorizedDivingIcons();
    for (DivingIconsCategory& section : sections) {
        section.icons.removeIf([&search](DivingIcons icon) {
            return !search.foundIn(displayName(icon)) && !search.foundIn(rawValue(icon));
        });
    }
    sections.removeIf([](const DivingIconsCategory& section) { return section.icons.isEmpty(); });
    return sections;
}

} // namespace abissora
