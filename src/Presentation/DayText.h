// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>
#include <optional>

/// Days as people type them.
namespace abissora::dayText {

/// Day, month and year in this order, between slashes, hyphens, full stops or blanks ("1/2/24", "1-2-2024"), with the
/// month's Italian name or at least its first three letters ("1 febbraio 2024", "1 feb 24"), or as 6 or 8 digits
/// ("010224", "01022024"); or year, month and day as "2024-02-01". Two digits of a year stand for 1970 to 2069. Nothing
/// for what is no day of the calendar.
[[nodiscard]] std::optional<QDate> parse(const QString& text);

/// Only as two, two and four digits, with slashes or without: such a text is not passed while another is typed.
[[nodiscard]] std::optional<QDate> parseComplete(const QString& text);

} // namespace abissora::dayText
