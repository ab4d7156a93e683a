// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "StateContent.h"

namespace abissora {

/// What the list of earlier states says of one of them.
struct EarlierStateRow
{
    QString when;     ///< "21 nov 2026, 18:42"
    QString counts;   ///< "12 articoli · 31 manutenzioni"; "…" while nobody knows
    QString occasion; ///< "Prima di eliminare un articolo"
    QString symbol;   ///< of the occasion
    bool isWarning = false;

    [[nodiscard]] static EarlierStateRow of(const EarlierState& state, const StateContent& content,
                                            const Almanac& almanac);
    /// What can be said of a state whose files were not read.
    [[nodiscard]] static EarlierStateRow ofUnread(const EarlierState& state, const Almanac& almanac);

    friend bool operator==(const EarlierStateRow&, const EarlierStateRow&) = default;
};

/// "18:42"
[[nodiscard]] QString timeText(Instant instant, const Almanac& almanac);

/// The group that a state stands in: "Non salvato", "Oggi", "Ieri", a month of this year ("Novembre") or of another
/// one ("Novembre 2025"), by the almanac's moment.
[[nodiscard]] QString groupTitle(const EarlierState& state, const Almanac& almanac);

/// Whether a person should look at it: it holds what could not be read, or what could not be stored.
[[nodiscard]] bool wantsAttention(const EarlierState& state);

/// Whether anything comes of restoring it.
[[nodiscard]] bool canBeRestored(const StateContent& content);

} // namespace abissora
