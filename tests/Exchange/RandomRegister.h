// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "EquipmentTypeViewModel.h"

#include <QRandomGenerator>

namespace abissora::test {

/// Of up to `longest` characters: letters of many scripts, surrogate pairs, control characters other than NUL, quotes,
/// apostrophes, separators, line ends, outer blanks, beginnings of formulas.
[[nodiscard]] QString randomText(QRandomGenerator& random, int longest = 12);

/// Items as the forms make them and records after them, so that an item has the dates of its latest record; names are
/// not blank, serial numbers differ in more than letter case and blanks.
[[nodiscard]] QList<Equipment> randomRegister(QRandomGenerator& random, const EquipmentTypeViewModel& types,
                                              const Almanac& almanac);

} // namespace abissora::test
