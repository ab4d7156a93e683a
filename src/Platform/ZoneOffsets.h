// SPDX-License-Identifier: MIT
#pragma once

#include "Instant.h"

#include <QTimeZone>
#include <memory>
#include <vector>

namespace abissora {

/// A time zone's offsets from UTC, tabulated where dates usually lie, so that a list of thousands of dates costs
/// binary searches instead of time zone objects. Immutable.
class ZoneOffsets
{
public:
    explicit ZoneOffsets(const QTimeZone& zone);

    /// The system's zone of this moment, UTC when it cannot be determined. Shared while the zone stays the same: TZ is
    /// looked at every time, the system's own setting at most once a second.
    [[nodiscard]] static std::shared_ptr<const ZoneOffsets> system();

    [[nodiscard]] const QTimeZone& zone() const { return m_zone; }
    [[nodiscard]] std::chrono::seconds at(Instant instant) const;

private:
    struct Offset
    {
        Instant since;
        std::chrono::seconds value;
    };

    QTimeZone m_zone;
    std::vector<Offset> m_offsets;
};

} // namespace abissora
