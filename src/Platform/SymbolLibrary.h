// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora {

/// The platform's library of named symbols, as far as layers without pictures need it.
class SymbolLibrary
{
public:
    virtual ~SymbolLibrary() = default;
    [[nodiscard]] virtual bool contains(const QString& name) const = 0;
};

} // namespace abissora
