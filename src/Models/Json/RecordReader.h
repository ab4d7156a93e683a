// SPDX-License-Identifier: MIT
#pragma once

#include "JsonError.h"
#include "ValueSlots.h"

#include <QByteArray>
#include <optional>

namespace abissora::json {

/// Parses `json` into `target`, whose type `slot` describes. Nothing on success. The parser does not recurse.
[[nodiscard]] std::optional<JsonError> readInto(void* target, const Slot& slot, const QByteArray& json);

} // namespace abissora::json
