// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QHashFunctions>
#include <QString>
#include <QUuid>

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
    [[nodiscard]] NamedColor colorValue() const;

    friend bool operator==(const EquipmentTypeModel&, const EquipmentTypeModel&) = default;
};

[[nodiscard]] size_t qHash(const EquipmentTypeModel& type, size_t seed = 0);

} // namespace abissora
