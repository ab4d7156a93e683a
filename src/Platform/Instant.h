// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace abissora {

/// A point in time, UTC, to the millisecond. Shown and computed with in the user's zone through Calendar.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;

} // namespace abissora
