// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentExcerpt.h"

namespace abissora {

/// What the register is narrowed down to.
struct EquipmentFilter
{
    std::optional<QString> filterTypeName; ///< when present and not empty it wins over selectedType
    std::optional<EquipmentType> selectedType;
    QString searchText; ///< looked for in name, brand and model

    friend bool operator==(const EquipmentFilter&, const EquipmentFilter&) = default;
};

struct FilteredEquipment
{
    EquipmentExcerpt equipment; ///< soonest due first; catalogue order among equal dates
    QString log;                ///< the running commentary of the filtering, lines joined by line feeds
};

[[nodiscard]] FilteredEquipment apply(const EquipmentFilter& filter, const QList<Equipment>& catalogue);

/// The value, or "nil" when absent: how the running log writes an optional text.
[[nodiscard]] QString orNil(const std::optional<QString>& text);

} // namespace abissora
