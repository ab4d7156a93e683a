// SPDX-License-Identifier: MIT
#include "RegisterSummary.h"

namespace abissora {

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
