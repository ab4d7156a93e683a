// SPDX-License-Identifier: MIT
#pragma once

#include "AvailableColors.h"

#include <QHashFunctions>
#include <QList>
#include <QString>
#include <QUuid>
#include <algorithm>
#include <optional>

namespace abissora {

/// A kind of equipment as the user defines it. Equipment refers to it by name.
struct EquipmentTypeModel
{
    QUuid id;
    QString name;
    QString icon;  ///< the raw value of a DivingIcons case, or any other symbol name
    QString color; ///< an English colour word; see colorValue
    std::int64_t serviceIntervalDays = 365;
    bool isActive = true; ///< offered in pickers

    /// The colour that `color` names, whatever its letter case; primary for any other word.
    [[nodiscard]] NamedColor colorValue() const
    {
        const auto known = availableColorNamed(color.toLower());
        return known ? abissora::colorValue(*known) : NamedColor::primary;
    }

    friend bool operator==(const EquipmentTypeModel&, const EquipmentTypeModel&) = default;
};

[[nodiscard]] inline size_t qHash(const EquipmentTypeModel& type, size_t seed = 0)
{
    return qHashMulti(seed, type.id, type.name, type.icon, type.color, type.serviceIntervalDays, type.isActive);
}

/// The first active one of exactly this name.
[[nodiscard]] inline std::optional<EquipmentTypeModel> activeTypeNamed(const QString& name,
                                                                       const QList<EquipmentTypeModel>& types)
{
    const auto found = std::ranges::find_if(
        types, [&name](const EquipmentTypeModel& type) { return type.isActive && type.name == name; });
    return found == types.end() ? std::nullopt : std::optional(*found);
}

} // namespace abissora
