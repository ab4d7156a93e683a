// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Texts that come from elsewhere and are only shown. They may be of any length and hold any character.
namespace abissora {

/// Without what draws nothing or turns the direction of writing; line ends and tabs stay.
[[nodiscard]] QString shownText(const QString& text, qsizetype longest);
/// The same on one line.
[[nodiscard]] QString shownLine(const QString& text, qsizetype longest);

} // namespace abissora
