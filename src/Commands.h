// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"

#include <cstdio>

namespace abissora {

struct CommandLine;

/// Where the commands say what they have to say.
struct CommandStreams
{
    std::FILE* out = stdout;
    std::FILE* error = stderr;
};

/// Lists the earlier states, restores one or checks everything, as the command line says, and gives the exit status.
/// Only a restoration changes anything; it is refused while another process works on the register.
[[nodiscard]] int runCommand(const CommandLine& commandLine, const ApplicationDirectories& directories,
                             const CommandStreams& streams = {});

} // namespace abissora
