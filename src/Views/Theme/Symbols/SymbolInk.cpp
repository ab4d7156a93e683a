// SPDX-License-Identifier: MIT
#include "SymbolInk.h"

#include "Tokens.h"

#include <QPalette>

namespace abissora {

QColor inkColor(const SymbolInk& ink, const QPalette& palette, QIcon::Mode mode)
{
    const Tokens& tokens = Tokens::of(palette);
    if (mode == QIcon::Disabled)
        return tokens.disabled;
    if (const auto* fixed = std::get_if<QColor>(&ink))
        return *fixed;
    if (mode == QIcon::Selected)
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    if (const auto* named = std::get_if<NamedColor>(&ink))
        return tokens.named(*named);
    return palette.color(QPalette::Active, QPalette::WindowText);
}

} // namespace abissora
