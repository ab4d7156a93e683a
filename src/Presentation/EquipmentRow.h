// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "DateFormat.h"
#include "EquipmentTypeViewModel.h"
#include "TypeAppearance.h"

namespace abissora {

/// What one row of the register's table shows.
struct EquipmentRow
{
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

    friend bool operator==(const EquipmentRow&, const EquipmentRow&) = default;
};

/// Makes rows as they are at one moment.
class EquipmentRowMaker
{
public:
    /// `types` must outlive it.
    EquipmentRowMaker(const EquipmentTypeViewModel& types, DateFormat format, Calendar calendar, Instant now);

    [[nodiscard]] EquipmentRow row(const Equipment& item) const;

private:
    const EquipmentTypeViewModel* m_types;
    DateFormat m_format;
    Calendar m_calendar;
    Instant m_now;
};

} // namespace abissora
