// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace abissora {

/// Exit status of a program that found no screen to open its window on.
inline constexpr int noDisplayStatus = 69;

/// False when a window cannot be opened for want of a screen, as on a server. True where that cannot be told.
[[nodiscard]] bool hasDisplay(const QStringList& arguments);

/// From here on, a toolkit that finds no screen after all ends the program with a sentence and noDisplayStatus instead
/// of aborting it.
void explainMissingDisplay();

/// The sentence.
[[nodiscard]] QString noDisplayText();

} // namespace abissora
