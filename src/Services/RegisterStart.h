// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentArchive.h"
#include "Restoration.h"

namespace abissora {

/// What comes before anything of a register is read, by the process that may write it: temporary files of a process
/// that was killed go, a restoration that it had begun is completed.
void clearUp(const ApplicationDirectories& directories, Generations& generations);

} // namespace abissora
