// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "PrintedPaper.h"

namespace abissora {

class EquipmentTypeViewModel;
struct Equipment;

namespace PrintedItem {

/// The service sheet of one item: its data and its whole history, as things are at the almanac's moment.
[[nodiscard]] PrintedPaper sheetOf(const Equipment& item, const EquipmentTypeViewModel& types, const Almanac& almanac,
                                   const PictureOf& pictureOf);

} // namespace PrintedItem

} // namespace abissora
