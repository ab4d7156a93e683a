// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QColor>

class QPalette;

namespace abissora {

enum class Scheme { Light, Dark };

/// Every colour of the program, once for each scheme. Nothing outside the theme spells a colour.
struct Tokens
{
    QColor window;
    QColor sidebar;
    QColor surface; ///< cards and tables
    QColor field;   ///< what text is typed into
    QColor border;
    QColor divider;
    QColor strongBorder; ///< controls
    QColor text;
    QColor secondaryText;
    QColor disabled;
    QColor accentInk;  ///< accent on window and surface
    QColor accentFill; ///< accent under onFill
    QColor onFill;     ///< text on accentFill and dangerFill
    QColor accentTint;
    QColor selection; ///< selected table row
    QColor match;     ///< behind the text that a search found
    QColor danger;
    QColor dangerFill;
    QColor dangerTint;
    QColor ok;
    QColor warning;
    QColor scrim; ///< over what a sheet covers; translucent

    [[nodiscard]] QColor named(NamedColor color) const;

    [[nodiscard]] static const Tokens& of(Scheme scheme);
    /// The scheme that a palette belongs to, told by the lightness of its window colour.
    [[nodiscard]] static const Tokens& of(const QPalette& palette);

    std::array<QColor, 13> namedColors; ///< in the order of NamedColor, without primary and secondary
};

[[nodiscard]] Scheme schemeOf(const QPalette& palette);

} // namespace abissora
