// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"

#include <QHash>
#include <QList>

namespace abissora {

/// The day count is read by the caller, once per item.
[[nodiscard]] inline bool isDueSoon(const Equipment& item, std::int64_t daysUntilNextService)
{
    return item.isActive && daysUntilNextService <= dueThresholdDays;
}

/// The same of the item's own count, which is made only near the threshold.
[[nodiscard]] bool isDueSoon(const Equipment& item, Instant now, const Calendar& calendar);

/// The register in figures as it stands at one moment. They overlap: an active item with 12 days left is both due and
/// expiring; expiring and inOrder count inactive items too; an item with 0 days left is in neither of the two.
struct RegisterSummary
{
    struct DueItem
    {
        Equipment equipment;
        std::int64_t days = 0; ///< until its next service; negative when past

        friend bool operator==(const DueItem&, const DueItem&) = default;
    };

    qsizetype total = 0;
    qsizetype active = 0;
    qsizetype expiring = 0; ///< with 1 day left to dueThresholdDays
    qsizetype inOrder = 0;  ///< with more days left
    QList<DueItem> due;     ///< the active items with dueThresholdDays left or fewer, in catalogue order

    [[nodiscard]] static RegisterSummary of(const QList<Equipment>& equipment, Instant now, const Calendar& calendar);
};

/// How many active items show each type name.
[[nodiscard]] QHash<QString, qsizetype> activeItemsByTypeName(const QList<Equipment>& equipment);

} // namespace abissora
