// SPDX-License-Identifier: MIT
#include "Equipment.h"

namespace abissora {

QString Equipment::displayTypeName() const
{
    return customTypeName && !customTypeName->isEmpty() ? *customTypeName : rawValue(type);
}

QString Equipment::typeName() const
{
    return customTypeName ? *customTypeName : rawValue(type);
}

std::int64_t Equipment::daysUntilNextService(Instant now, const Calendar& calendar) const
{
    return calendar.daysBetween(now, nextServiceDate).value_or(0);
}

} // namespace abissora
