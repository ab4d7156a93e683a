// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"

#include <QUuid>
#include <array>
#include <optional>
#include <string_view>

namespace abissora::json {

inline constexpr std::size_t dateLength = 20;

/// "2025-03-14T09:26:53Z", the milliseconds cut off; nothing outside the years 1 to 9999.
[[nodiscard]] std::optional<std::array<char, dateLength>> dateText(Instant instant);
/// Exactly that form, a date and time that exist.
[[nodiscard]] std::optional<Instant> dateFromText(std::string_view text);

inline constexpr std::size_t uuidLength = 36;

/// Hyphenated, hexadecimal digits in upper case.
[[nodiscard]] std::array<char, uuidLength> uuidText(const QUuid& id);
/// That form, digits of either case.
[[nodiscard]] std::optional<QUuid> uuidFromText(std::string_view text);

} // namespace abissora::json
