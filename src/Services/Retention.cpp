// SPDX-License-Identifier: MIT
#include "Retention.h"

#include <QSet>

namespace abissora {

namespace {

QStringList expiredOfHistory(const QList<SizedState>& states, const Calendar& calendar, const RetentionRules& rules)
{
    QStringList expired;
    QSet<QDate> days;
    QSet<QDate> months;
    int kept = 0;
    qint64 bytes = 0;
    bool full = false;
    for (const auto& [state, size] : states) {
        if (state.occasion >= Occasion::unreadable)
            continue;
        const QDate day = calendar.local(state.kept).date();
        const QDate month(day.year(), day.month(), 1);
        const bool isLastOfDay = days.size() < rules.days && !days.contains(day);
        const bool wanted = kept < rules.newest || isLastOfDay || !months.contains(month);
        days.insert(day);
        months.insert(month);
        // Once the bound is reached all older ones go: a gap in the middle would be no history.
        full = full || (wanted && kept >= rules.always && bytes + size > rules.bytes);
        if (!wanted || full) {
            expired.append(state.name);
            continue;
        }
        ++kept;
        bytes += size;
    }
    return expired;
}

} // namespace

QStringList expiredStates(const QList<SizedState>& states, const Calendar& calendar, Instant now,
                          const RetentionRules& rules)
{
    QList<SizedState> history;
    QList<SizedState> ahead;
    std::ranges::partition_copy(states, std::back_inserter(ahead), std::back_inserter(history),
                                [now](const SizedState& sized) { return isAhead(sized.state.kept, now); });
    return expiredOfHistory(history, calendar, rules) + expiredOfHistory(ahead, calendar, rules);
}

} // namespace abissora
