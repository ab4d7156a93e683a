// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Generations.h"

namespace abissora {

/// Copies the whole register into a zip file; only reads the register. Gives the exit status.
[[nodiscard]] int backUp(const QString& target, const ApplicationDirectories& directories,
                         const CommandStreams& streams);

/// Whether what --restore was given is a file and no earlier state.
[[nodiscard]] bool isArchiveOperand(const QString& operand);

/// Puts such a copy in the place of the register, which this process may write. Documents follow when the register is
/// read. Gives the exit status.
[[nodiscard]] int restoreArchive(const QString& path, const ApplicationDirectories& directories,
                                 Generations& generations, WritePermission& permission, const CommandStreams& streams);

} // namespace abissora
