// SPDX-License-Identifier: MIT
#include "RegisterSummary.h"

namespace abissora {

bool isDueSoon(const Equipment& item, Instant now, const Calendar& calendar)
{
    constexpr std::chrono::days threshold{dueThresholdDays};
    constexpr std::chrono::days aDay{1};
    constexpr std::chrono::days clocks{2}; // more than two local times of one instant can differ by
    const Instant next = item.nextServiceDate;
    if (!item.isActive || next <= now + threshold - clocks)
        return item.isActive;
    const bool canBeCounted = now >= firstInstant && next <= lastInstant;
    return !(canBeCounted && next >= now + threshold + aDay + clocks) &&
           isDueSoon(item, item.daysUntilNextService(now, calendar));
}

RegisterSummary RegisterSummary::of(const QList<Equipment>& equipment, Instant now, const Calendar& calendar)
{
    RegisterSummary summary;
    summary.total = equipment.size();
    for (const Equipment& item : equipment) {
        const std::int64_t days = item.daysUntilNextService(now, calendar);
        summary.active += item.isActive ? 1 : 0;
        summary.expiring += days >= 1 && days <= dueThresholdDays ? 1 : 0;
        summary.inOrder += days > dueThresholdDays ? 1 : 0;
        if (isDueSoon(item, days))
            summary.due.append({item, days});
    }
    return summary;
}

QHash<QString, qsizetype> activeItemsByTypeName(const QList<Equipment>& equipment)
{
    QHash<QString, qsizetype> counts;
    for (const Equipment& item : equipment) {
        if (item.isActive)
            ++counts[item.displayTypeName()];
    }
    return counts;
}

} // namespace abissora
