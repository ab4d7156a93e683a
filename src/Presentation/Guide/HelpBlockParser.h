// SPDX-License-Identifier: MIT
#pragma once

#include "HelpBlock.h"

#include <QList>

namespace abissora {

/// The blocks of a section's body, in its order. Anything is a body: what is no other block is a paragraph. Lines lose
/// their indentation, those of code included.
[[nodiscard]] QList<HelpBlock> parseBlocks(const QString& body);

} // namespace abissora
