// SPDX-License-Identifier: MIT
#pragma once

#include "Product.h"
#include "UpdateSource.h"

namespace abissora {

/// The whole run of the program; gives its exit status. The manifest's address is the one of the source that is opened.
[[nodiscard]] int runProgram(int argc, char** argv, Product product, const OpenUpdateSource& openUpdateSource);

} // namespace abissora
