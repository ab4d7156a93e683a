// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"

namespace abissora {

/// Prints the list of all items, or the sheets of those of one name, into a PDF, and gives the exit status. The
/// register is only read; no screen is needed.
[[nodiscard]] int printCommand(const CommandLine& commandLine, const ApplicationDirectories& directories,
                               const CommandStreams& streams);

} // namespace abissora
