// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
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
    /// Of an item that was bought and serviced now.
    [[nodiscard]] static EquipmentFormState ofNewItem(Instant now);

    /// Of a new item like this one, which is another piece: without its serial number, and active.
    [[nodiscard]] static EquipmentFormState ofAnotherLike(const Equipment& item);

    /// Name and brand hold more than white space.
    [[nodiscard]] bool isFormValid() const;
    /// The last service plus the type's interval; the present moment when the calendar cannot produce the date.
    [[nodiscard]] Instant calculateNextServiceDate(const EquipmentTypeViewModel& types, const Almanac& almanac) const;
    /// `item` with what the form holds, texts trimmed at both ends; its id and history stay.
    [[nodiscard]] Equipment appliedTo(Equipment item, Instant nextServiceDate) const;

    friend bool operator==(const EquipmentFormState&, const EquipmentFormState&) = default;
};

} // namespace abissora
