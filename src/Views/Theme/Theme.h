// SPDX-License-Identifier: MIT
#pragma once

#include "Tokens.h"

#include <QPalette>

class QApplication;

namespace abissora {

/// Every role in every group is set. Some carry a meaning of this program's own, so that a widget follows a change of
/// scheme by naming a role: AlternateBase is the sidebar, Button the surface of cards and tables, PlaceholderText the
/// secondary text.
[[nodiscard]] QPalette paletteFor(Scheme scheme);

/// Dresses the application: the style and the font at the first call, the palette at every call. To switch the scheme
/// while windows are open, call it again.
void applyTheme(QApplication& application, Scheme scheme);

} // namespace abissora
