// SPDX-License-Identifier: MIT
#pragma once

#include "HttpLimits.h"
#include "UpdateSource.h"

namespace abissora {

/// The manifest on the program's website, asked over the network. What a program does not call is not in it.
[[nodiscard]] UpdateSource networkUpdates();
[[nodiscard]] UpdateSource networkUpdatesWithin(const HttpLimits& limits);

} // namespace abissora
