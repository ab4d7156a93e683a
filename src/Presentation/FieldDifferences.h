// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "Equipment.h"
#include "EquipmentTypeModel.h"
#include "SettingsViewModel.h"

namespace abissora {

/// A field under the label that its form uses, with what it says before and after a change.
struct FieldDifference
{
    QString label;
    QString before;
    QString after; ///< equal to `before` where the texts do not show what changes

    friend bool operator==(const FieldDifference&, const FieldDifference&) = default;
};

/// In the order of the forms. The history of an item comes last, with the number of records under its label:
/// "torna 1 manutenzione", "2 manutenzioni".
[[nodiscard]] QList<FieldDifference> fieldDifferences(const Equipment& before, const Equipment& after,
                                                      const DateFormat& dates);
/// Without the ids, which nobody sees.
[[nodiscard]] QList<FieldDifference> fieldDifferences(const EquipmentTypeModel& before,
                                                      const EquipmentTypeModel& after);
/// Of the settings whose keys `counts` says yes to.
[[nodiscard]] QList<FieldDifference> fieldDifferences(const SettingsViewModel& before, const SettingsViewModel& after,
                                                      const std::function<bool(const QString&)>& counts);

} // namespace abissora
