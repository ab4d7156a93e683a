// SPDX-License-Identifier: MIT
#pragma once

#include "UpdateInfo.h"

// Texts that come from elsewhere and are only shown. They may be of any length and hold any character.
namespace abissora {

/// Without what draws nothing or turns the direction of writing; line ends and tabs stay.
[[nodiscard]] QString shownText(const QString& text, qsizetype longest);
/// The same on one line.
[[nodiscard]] QString shownLine(const QString& text, qsizetype longest);
/// "1.3.0 (build 57)", on one line of a length that every screen has room for.
[[nodiscard]] QString shownRelease(const UpdateInfo& update);

} // namespace abissora
