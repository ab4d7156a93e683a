// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"

namespace abissora {

/// Writes the register in the form that the file's name asks for.
[[nodiscard]] int exportRegister(const CommandLine& commandLine, const ApplicationDirectories& directories,
                                 const CommandStreams& streams);

/// Prints what would be stored of a file; when the command line says yes, stores it unless a row is faulty, and refuses
/// while another process works on the register.
[[nodiscard]] int importFile(const CommandLine& commandLine, const ApplicationDirectories& directories,
                             const CommandStreams& streams);

/// Lists what is due; the status tells whether anything is.
[[nodiscard]] int listDue(const CommandLine& commandLine, const ApplicationDirectories& directories,
                          const CommandStreams& streams);

} // namespace abissora
