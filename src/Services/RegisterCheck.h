// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"

#include <QStringList>

namespace abissora {

/// What reading everything of a register found, as sentences for the person.
struct CheckReport
{
    QStringList problems; ///< damaged values, missing and surplus documents, states that cannot be read
    QString summary;      ///< how much there is
};

/// Reads the register, the types, the settings, the documents and every earlier state. Changes nothing.
[[nodiscard]] CheckReport checkRegister(const ApplicationDirectories& directories);

} // namespace abissora
