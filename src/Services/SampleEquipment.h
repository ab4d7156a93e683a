// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Clock.h"
#include "Equipment.h"
#include "IdGenerator.h"

namespace abissora {

/// The three items that a first start shows, built around `now`, with fresh ids.
[[nodiscard]] QList<Equipment> sampleEquipment(Instant now, const Calendar& calendar, IdGenerator& ids);

} // namespace abissora
