// SPDX-License-Identifier: MIT
#pragma once

namespace abissora {

/// Gives the components of this layer their roles; each calls it when it is made.
void provideAccessibility();

} // namespace abissora
