// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QStringList>
#include <optional>

/// Cells of a table as people and spreadsheets write them, where a whole column tells more than one cell.
namespace abissora::importValues {

enum class DayOrder { DayFirst, MonthFirst };
enum class DecimalSign { Unknown, Comma, FullStop, Both };

/// Month first only where a column holds days that make sense no other way, and none that forbid it.
[[nodiscard]] DayOrder dayOrderOf(const QStringList& cells);
/// In any of the usual forms (see dayText::parse), also with a time after a day as "2026-05-12".
[[nodiscard]] std::optional<QDate> day(const QString& cell, DayOrder order);

/// What separates decimals in a column of amounts. Both where cells contradict one another, Unknown where none tells.
[[nodiscard]] DecimalSign decimalSignOf(const QStringList& cells);

enum class AmountFault { None, NoAmount, Ambiguous };
struct Amount
{
    double value = 0;
    AmountFault fault = AmountFault::None;
};
/// 0 for an empty cell. Ambiguous is one as "1.234" where both signs separate decimals in its column.
[[nodiscard]] Amount amount(const QString& cell, DecimalSign sign, const QString& currencySymbol);

/// "sì", "attivo", "x" and their like against "no", "dismesso" and theirs; nothing for any other word.
[[nodiscard]] std::optional<bool> yesOrNo(const QString& cell);

} // namespace abissora::importValues
