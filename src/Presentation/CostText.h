// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace abissora::costText {

/// What a text may hold besides digits and separators.
struct Reading
{
    QString currencySymbol = {}; ///< passed over, as the usual words and signs are
    bool takesNegative = false;  ///< with a minus before the digits or before the currency
};

/// The amount that a text stands for; 0 for an empty one. Comma and full stop both separate decimals; the other one of
/// the two groups thousands, and so do a single full stop before exactly three digits ("1.234"), blanks of every kind
/// and apostrophes. A currency ("EUR", "euro", any currency sign) may stand at either end. Nothing for what is no
/// number or a doubtful one ("1,2,3", "1e3"), for negative ones and for those out of range.
[[nodiscard]] std::optional<double> parse(const QString& text, const Reading& reading = {});

/// Whether typing on can make a number of it.
[[nodiscard]] bool isUnfinished(const QString& text, const Reading& reading = {});

/// With a decimal comma and at least two decimals, as many as it takes to parse back to the very same number; an
/// empty text for 0.
[[nodiscard]] QString show(double cost);

/// As the history lists it, whatever the locale: "€45.00". Nothing for a cost that is not above 0.
[[nodiscard]] std::optional<QString> listed(double cost);

} // namespace abissora::costText
