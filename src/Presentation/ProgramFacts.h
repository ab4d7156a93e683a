// SPDX-License-Identifier: MIT
#pragma once

#include "AppInfo.h"
#include "HelpLoader.h"
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
    /// Whether this program can look for newer releases at all.
    [[nodiscard]] bool looksForUpdates() const { return !product.manifestURL.isEmpty(); }
    /// The guide, without what this program does not have.
    [[nodiscard]] QList<HelpSection> guide() const;
};

} // namespace abissora
