// SPDX-License-Identifier: MIT
#pragma once

namespace abissora {

/// Gives the parts of the type screens their roles; each calls it when it is made.
void provideTypesAccessibility();

} // namespace abissora
