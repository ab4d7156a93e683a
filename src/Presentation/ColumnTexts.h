// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentExcerpt.h"
#include "EquipmentRow.h"

#include <QStringList>

namespace abissora {

/// The texts that decide how wide the columns of the register's table are. However long the register is, these are few:
/// of names, makes and models the longest ones, of dates every one of a short register and those of a whole year for a
/// long one.
struct ColumnTexts
{
    static constexpr qsizetype mostTexts = 32; ///< in each list of a long register
    static constexpr qsizetype shortRegister = 64;

    QStringList names;
    QStringList typeNames;
    QStringList brands;
    QStringList models;
    QStringList dates;
    QStringList abbreviatedDates;
    QStringList remaining;

    [[nodiscard]] static ColumnTexts of(const EquipmentExcerpt& items, const EquipmentRowMaker& rows);
};

} // namespace abissora
