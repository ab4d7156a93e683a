// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

namespace abissora {

/// The record itself, but with the first or the last instant for one beyond it, and 0 for a number that is not finite:
/// the register is stored whole, so that one value without a stored form would keep back all others.
[[nodiscard]] Equipment storable(Equipment item);
[[nodiscard]] Maintenance storable(Maintenance record);

} // namespace abissora
