// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QList>
#include <algorithm>

namespace abissora {

struct ServiceInterval
{
    QString text;
    std::int64_t days;
};

/// What the settings offer for items of no type of their own.
inline const QList<ServiceInterval> offeredIntervals{{u"6 Mesi"_s, 180}, {u"1 Anno"_s, 365}, {u"2 Anni"_s, 730}};

/// The place among those offered; -1 for any other number of days.
[[nodiscard]] inline int placeOfInterval(std::int64_t days)
{
    const auto found = std::ranges::find(offeredIntervals, days, &ServiceInterval::days);
    return found == offeredIntervals.end() ? -1 : static_cast<int>(found - offeredIntervals.begin());
}

} // namespace abissora
