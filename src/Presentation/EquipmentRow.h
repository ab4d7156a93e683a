// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "EquipmentTypeViewModel.h"
#include "TypeAppearance.h"

namespace abissora {

/// What one row of the register's table shows.
struct EquipmentRow
{
    enum Column { NameColumn, BrandColumn, ModelColumn, NextServiceColumn, StateColumn, ActionsColumn, ColumnCount };

    QString name;
    QString typeName;
    TypeAppearance appearance;
    QString brand;
    QString model;
    QString nextServiceDate;
    QString nextServiceDateAbbreviated; ///< for where the whole date has no room
    QString remaining;                  ///< "113 giorni", or "SCADUTO!"
    bool isDue = false;
    bool isActive = true;
    QString state; ///< "Attivo" or "Inattivo"

    /// Every line of a cell, one below the other; the actions are called by their title.
    [[nodiscard]] QString text(Column column) const;
    [[nodiscard]] static QString title(Column column);

    friend bool operator==(const EquipmentRow&, const EquipmentRow&) = default;
};

/// Makes rows as they are at one moment.
class EquipmentRowMaker
{
public:
    /// As things are now. `types` must outlive it.
    EquipmentRowMaker(const EquipmentTypeViewModel& types, Almanac almanac);

    [[nodiscard]] EquipmentRow row(const Equipment& item) const;

private:
    const EquipmentTypeViewModel* m_types;
    Almanac m_almanac;
    Instant m_now;
};

} // namespace abissora
