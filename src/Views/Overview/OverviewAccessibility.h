// SPDX-License-Identifier: MIT
#pragma once

namespace abissora {

/// Gives the due list and its rows the roles of a list; each calls it when it is made.
void provideOverviewAccessibility();

} // namespace abissora
