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

/// What the program says of itself. Both references must outlive it.
struct ProgramFacts
{
    const AppInfo& info;
    const Product& product;

    /// Version, date of the build, author and copyright, as they are at the moment of the call.
    [[nodiscard]] QList<ProgramFact> all() const;
};

} // namespace abissora
