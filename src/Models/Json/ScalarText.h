// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"

#include <QUuid>
#include <optional>
#include <string>
#include <string_view>

namespace abissora::json {

/// "2025-03-14T09:26:53Z", the milliseconds cut off; nothing outside the years 1 to 9999.
[[nodiscard]] std::optional<std::string> dateText(Instant instant);
/// Exactly that form, a date and time that exist.
[[nodiscard]] std::optional<Instant> dateFromText(std::string_view text);

/// 36 characters, hyphenated, hexadecimal digits of either case.
[[nodiscard]] std::optional<QUuid> uuidFromText(std::string_view text);

} // namespace abissora::json
