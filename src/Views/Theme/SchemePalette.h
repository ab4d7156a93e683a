// SPDX-License-Identifier: MIT
#pragma once

#include "Tokens.h"

#include <QPalette>

namespace abissora {

/// Every role in every group is set. Some carry a meaning of this program's own, so that a widget follows a change of
/// scheme by naming a role: AlternateBase is the sidebar, Button the surface of cards and tables, PlaceholderText the
/// secondary text.
[[nodiscard]] QPalette paletteFor(Scheme scheme);

} // namespace abissora
