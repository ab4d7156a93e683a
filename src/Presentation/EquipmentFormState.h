// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

namespace abissora {

class EquipmentTypeViewModel;

/// What the two equipment forms hold, as it was entered.
struct EquipmentFormState
{
    QString name;
    QString selectedTypeName;
    QString brand;
    QString model;
    QString serialNumber;
    Instant purchaseDate{};
    Instant lastServiceDate{};
    QString notes;
    bool isActive = true;

    [[nodiscard]] static EquipmentFormState of(const Equipment& item);

    /// Name and brand hold more than white space.
    [[nodiscard]] bool isFormValid() const;
    /// The last service plus the type's interval, or 365 days for a type that the catalogue does not have; `now` when
    /// the calendar cannot produce the date.
    [[nodiscard]] Instant calculateNextServiceDate(const EquipmentTypeViewModel& types, const Calendar& calendar,
                                                   Instant now) const;
    /// `item` with what the form holds, texts trimmed at both ends; its id and history stay.
    [[nodiscard]] Equipment appliedTo(Equipment item, Instant nextServiceDate) const;

    friend bool operator==(const EquipmentFormState&, const EquipmentFormState&) = default;
};

} // namespace abissora
