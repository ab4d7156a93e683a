// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QColor>
#include <QIcon>
#include <variant>

class QPalette;

namespace abissora {

/// What a symbol is painted with: the palette's text colour, a colour of the scheme by its name, or one fixed colour.
using SymbolInk = std::variant<std::monostate, NamedColor, QColor>;

/// The colour of an ink on a palette. A disabled symbol has the disabled colour whatever its ink; a selected one has
/// the colour of selected text, unless its colour is fixed.
[[nodiscard]] QColor inkColor(const SymbolInk& ink, const QPalette& palette, QIcon::Mode mode);

} // namespace abissora
