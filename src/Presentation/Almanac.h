// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Clock.h"
#include "DateFormat.h"

namespace abissora {

/// What the present moment is, how days are counted from it and how dates are written: what every screen with dates
/// takes.
struct Almanac
{
    const Clock& clock;
    Calendar calendar;
    DateFormat dates;

    [[nodiscard]] Instant now() const { return clock.now(); }
};

} // namespace abissora
