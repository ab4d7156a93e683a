// SPDX-License-Identifier: MIT
#pragma once

#include "HttpLimits.h"
#include "Product.h"

namespace abissora {

/// The whole run of the program; gives its exit status.
[[nodiscard]] int runProgram(int argc, char** argv, const Product& product, const HttpLimits& limits = {});

} // namespace abissora
