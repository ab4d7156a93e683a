// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora {

/// The text as a tool tip that shows it as it is: a tool tip would take "<b>" for markup.
[[nodiscard]] QString toolTipText(const QString& text);

} // namespace abissora
