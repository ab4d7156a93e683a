// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "Clock.h"
#include "PreferencesStore.h"

namespace abissora {

/// Keeps the register as it should be stored, when it cannot be, as a state of its own outside the register's folder:
/// what is pending, and of the rest what is stored. Gives the state's folder: the latest one, where that holds the
/// same.
[[nodiscard]] IoResult<QString> keepEmergencyCopy(const PreferencesStore& preferences,
                                                  const ApplicationDirectories& directories, const Clock& clock);

} // namespace abissora
