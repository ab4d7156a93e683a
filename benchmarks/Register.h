// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

#include <QList>

namespace abissora::benchmark {

/// A register as a club or a shop would keep it: `count` items of four records each, about 1.3 kB of JSON an item,
/// due from two years before `now` to two years after. The same at every call.
[[nodiscard]] QList<Equipment> registerOf(int count, Instant now);

} // namespace abissora::benchmark
