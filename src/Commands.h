// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "CommandStreams.h"

namespace abissora {

struct CommandLine;

/// Does what the command line says and gives the exit status (ExitStatus.h). Only a restoration and an import change
/// anything; they are refused while another process works on the register.
[[nodiscard]] int runCommand(const CommandLine& commandLine, const ApplicationDirectories& directories,
                             const CommandStreams& streams = {});

} // namespace abissora
