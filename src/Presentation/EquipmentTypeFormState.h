// SPDX-License-Identifier: MIT
#pragma once

#include "AvailableColors.h"
#include "DivingIcons.h"
#include "EquipmentTypeModel.h"

namespace abissora {

/// What the type form holds, as it was entered.
struct EquipmentTypeFormState
{
    QString name;
    DivingIcons selectedIcon = DivingIcons::regulator;
    AvailableColors selectedColor = AvailableColors::blue;
    std::int64_t serviceIntervalDays = 365;

    /// An icon or a colour that the form does not offer is left at the one of a new type.
    [[nodiscard]] static EquipmentTypeFormState of(const EquipmentTypeModel& type);

    /// The name holds more than white space.
    [[nodiscard]] bool isFormValid() const;
    /// The record to store, always active; its name without the blanks at its ends, as the items have it.
    [[nodiscard]] EquipmentTypeModel toType(const QUuid& id) const;

    friend bool operator==(const EquipmentTypeFormState&, const EquipmentTypeFormState&) = default;
};

/// The sections of the form's icons with only those whose displayed name or identifier contains the text; without the
/// sections that it empties.
[[nodiscard]] QList<DivingIconsCategory> filteredIcons(const QString& searchIconText);

} // namespace abissora
