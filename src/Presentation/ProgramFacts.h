// SPDX-License-Identifier: MIT
#pragma once

#include "AppInfo.h"
#include "Product.h"

namespace abissora {

struct ProgramFact
{
    QString label;
    QString value;
};

/// Version, date of the build, author and copyright, as they are at the moment of the call.
[[nodiscard]] QList<ProgramFact> programFacts(const AppInfo& info, const Product& product);

} // namespace abissora
