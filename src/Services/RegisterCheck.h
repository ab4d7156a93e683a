// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"

#include <QStringList>

namespace abissora {

/// What reading everything of a register found, as sentences for the person.
struct CheckReport
{
    /// Folders and values that cannot be read, damaged, missing and surplus documents, damaged states.
    QStringList problems;
    /// Worth knowing, and in order all the same: what the program itself has kept for good because it was damaged.
    QStringList notes;
    QString summary; ///< how much there is
    /// False where none was stored yet; what cannot be looked into counts as one.
    bool hasRegister = false;
};

/// Reads the register, the types, the settings, the documents and every earlier state. Changes nothing.
[[nodiscard]] CheckReport checkRegister(const ApplicationDirectories& directories);

} // namespace abissora
