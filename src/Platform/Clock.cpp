// SPDX-License-Identifier: MIT
#include "Clock.h"

namespace abissora {

Instant SystemClock::now() const
{
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

} // namespace abissora
