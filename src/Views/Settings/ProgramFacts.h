// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"

namespace abissora {

struct ProgramFact
{
    QString label;
    QString value;
};

/// Version, date of the build, author and copyright, as they are at the moment of the call.
[[nodiscard]] QList<ProgramFact> programFacts(const AppContext& context);

} // namespace abissora
