// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Maintenance.h"

#include <QList>

namespace abissora {

/// The built-in kinds of equipment. Their raw values are both the stored and the displayed text.
enum class EquipmentType { regulator, bcd, cylinder, mask, fins, wetsuit, drysuit, computer, other };

template <>
struct RawValues<EquipmentType>
{
    using Entry = RawValueEntry<EquipmentType>;
    static constexpr std::array entries{
        Entry{EquipmentType::regulator, u"Erogatore"}, Entry{EquipmentType::bcd, u"GAV"},
        Entry{EquipmentType::cylinder, u"Bombola"},    Entry{EquipmentType::mask, u"Maschera"},
        Entry{EquipmentType::fins, u"Pinne"},          Entry{EquipmentType::wetsuit, u"Muta"},
        Entry{EquipmentType::drysuit, u"Muta Stagna"}, Entry{EquipmentType::computer, u"Computer Subacqueo"},
        Entry{EquipmentType::other, u"Altro"},
    };
};

/// One piece of diving gear. Two records are the same item when their ids are equal; operator== compares every field.
struct Equipment
{
    QUuid id;
    QString name;
    EquipmentType type = EquipmentType::regulator;
    QString brand;
    QString model;
    QString serialNumber;
    Instant purchaseDate{};
    Instant lastServiceDate{};
    Instant nextServiceDate{};
    QString notes;
    bool isActive = true;
    QList<Maintenance> maintenanceHistory; ///< in the order in which they were added
    std::optional<QString> customTypeName; ///< the user's own type; absent for a built-in kind

    /// The type's name as shown: customTypeName unless absent or empty, else the raw value of type.
    [[nodiscard]] QString displayTypeName() const
    {
        return customTypeName && !customTypeName->isEmpty() ? *customTypeName : rawValue(type);
    }

    /// The name that links the item to its type record: customTypeName whenever present, even when empty.
    [[nodiscard]] QString typeName() const { return customTypeName ? *customTypeName : rawValue(type); }

    /// Whole calendar days from `now` to nextServiceDate, truncated toward zero; negative when past; 0 when the
    /// calendar cannot give a count.
    [[nodiscard]] std::int64_t daysUntilNextService(Instant now, const Calendar& calendar) const
    {
        return calendar.daysBetween(now, nextServiceDate).value_or(0);
    }

    friend bool operator==(const Equipment&, const Equipment&) = default;
};

/// An item with this many days left, or fewer, is due.
inline constexpr std::int64_t dueThresholdDays = 30;

} // namespace abissora

// A list moves its records as bytes.
Q_DECLARE_TYPEINFO(abissora::Equipment, Q_RELOCATABLE_TYPE);
