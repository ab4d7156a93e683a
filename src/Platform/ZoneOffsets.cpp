// SPDX-License-Identifier: MIT
#include "ZoneOffsets.h"

#include <QDateTime>
#include <algorithm>
#include <optional>

namespace abissora {

namespace {

using std::chrono::January;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::year;

constexpr Instant tableBegin = sys_days{year{1900} / January / 1};
// QTimeZone lists transitions up to 2037 and computes later ones when asked for a single instant.
constexpr Instant tableEnd = sys_days{year{2037} / January / 1};

QDateTime utc(Instant instant)
{
    return QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC);
}

Instant instantOf(const QDateTime& time)
{
    return Instant{std::chrono::milliseconds{time.toMSecsSinceEpoch()}};
}

struct SystemZone
{
    std::optional<QByteArray> variable;
    std::chrono::steady_clock::time_point checked;
    std::shared_ptr<const ZoneOffsets> offsets;
};

} // namespace

ZoneOffsets::ZoneOffsets(const QTimeZone& zone)
    : m_zone(zone)
{
    if (!m_zone.isValid())
        m_zone = QTimeZone::utc();
    m_offsets.push_back({tableBegin, seconds{m_zone.offsetFromUtc(utc(tableBegin))}});
    const auto transitions = m_zone.transitions(utc(tableBegin), utc(tableEnd));
    for (const QTimeZone::OffsetData& transition : transitions)
        m_offsets.push_back({instantOf(transition.atUtc), seconds{transition.offsetFromUtc}});
}

std::shared_ptr<const ZoneOffsets> ZoneOffsets::system()
{
    // Holds nothing but what the next lookup would find again.
    thread_local SystemZone cache;
    const auto now = std::chrono::steady_clock::now();
    const std::optional<QByteArray> variable =
        qEnvironmentVariableIsSet("TZ") ? std::optional(qgetenv("TZ")) : std::nullopt;
    const bool fresh = cache.offsets && cache.variable == variable &&
                       (variable.has_value() || now - cache.checked < std::chrono::seconds{1});
    if (!fresh) {
        const QTimeZone zone = QTimeZone::systemTimeZone();
        if (!cache.offsets || cache.offsets->zone() != zone)
            cache.offsets = std::make_shared<const ZoneOffsets>(zone);
        cache.variable = variable;
        cache.checked = now;
    }
    return cache.offsets;
}

seconds ZoneOffsets::at(Instant instant) const
{
    if (instant < tableBegin || instant >= tableEnd)
        return seconds{m_zone.offsetFromUtc(utc(instant))};
    const auto next = std::upper_bound(m_offsets.begin(), m_offsets.end(), instant,
                                       [](Instant at, const Offset& offset) { return at < offset.since; });
    return std::prev(next)->value;
}

} // namespace abissora
