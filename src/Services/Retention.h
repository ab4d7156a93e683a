// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "EarlierState.h"

#include <QStringList>

namespace abissora {

/// A kept state with what it occupies on the disk: the sum of its files that no newer state shares.
struct SizedState
{
    EarlierState state;
    qint64 bytes = 0;
};

struct RetentionRules
{
    int newest = 20;
    int days = 30;                            ///< days with changes, of each the last state
    qint64 bytes = qint64{512} * 1024 * 1024; ///< beyond these the oldest go
    int always = 3;                           ///< the newest, however large
};

/// The names of the states that go: those which are not among the newest, not the last of one of the latest days with
/// changes and not the last of a month; then the oldest until the rest keeps to the bound. Days and months are local.
/// Copies of unreadable data and of what could not be stored never go, and do not count. States that are ahead of `now`
/// are judged by themselves, by the same rules: they take no place of the others, and after a clock was set back they
/// are the history. `states` newest first.
[[nodiscard]] QStringList expiredStates(const QList<SizedState>& states, const Calendar& calendar, Instant now,
                                        const RetentionRules& rules = {});

} // namespace abissora
