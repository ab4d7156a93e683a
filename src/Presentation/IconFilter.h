// SPDX-License-Identifier: MIT
#pragma once

#include "DivingIcons.h"

namespace abissora {

/// The picker's sections with only the icons whose displayed name or identifier contains the text; without the sections
/// that it empties.
[[nodiscard]] QList<DivingIconsCategory> filteredIcons(const QString& searchIconText);

} // namespace abissora
