// SPDX-License-Identifier: MIT
#pragma once

#include "RawValues.h"

namespace abissora {

/// The kinds of maintenance. Their raw values are both the stored and the displayed text.
enum class MaintenanceType { annual, repair, test, cleaning, other };

template <>
struct RawValues<MaintenanceType>
{
    using Entry = RawValueEntry<MaintenanceType>;
    static constexpr std::array entries{
        Entry{MaintenanceType::annual, u"Manutenzione Annuale"},
        Entry{MaintenanceType::repair, u"Riparazione"},
        Entry{MaintenanceType::test, u"Test"},
        Entry{MaintenanceType::cleaning, u"Pulizia"},
        Entry{MaintenanceType::other, u"Altro"},
    };
};

} // namespace abissora
