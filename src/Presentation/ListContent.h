// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "TypeAppearance.h"

namespace abissora {

/// What the register's screen shows, the texts of its rows apart.
struct ListContent
{
    /// The filter by type, which can be taken away.
    struct Filter
    {
        QString text;
        TypeAppearance appearance;

        friend bool operator==(const Filter&, const Filter&) = default;
    };

    /// What hides items.
    struct Narrowing
    {
        QString searchText;
        std::optional<QString> filterTypeName;
        std::optional<EquipmentType> selectedType;

        friend bool operator==(const Narrowing&, const Narrowing&) = default;
    };

    EquipmentExcerpt items;
    std::optional<Filter> filter;
    QString offer; ///< of the button in the place of the rows
    QString shownCount;
    QString dueCount;    ///< of the whole register; empty when nothing is due
    QString activeCount; ///< of the rows

    /// Reads the filtered list once.
    [[nodiscard]] static ListContent of(const EquipmentViewModel& equipment, const EquipmentTypeViewModel& types);
    [[nodiscard]] static Narrowing narrowingOf(const EquipmentViewModel& equipment);
    /// A search or a filter may hide items.
    [[nodiscard]] static bool isNarrowed(const EquipmentViewModel& equipment);
};

} // namespace abissora
