// SPDX-License-Identifier: MIT
#pragma once

#include <QUuid>

namespace abissora {

/// The same text always gives the same id, made from the sum and the number of its UTF-8 bytes. Other texts may share
/// it, and its version and variant bits are not those of a random id. The layout must stay as it is.
[[nodiscard]] QUuid stableUUID(const QString& from);

} // namespace abissora
