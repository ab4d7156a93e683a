// SPDX-License-Identifier: MIT
#include "Calendar.h"

#include <algorithm>
#include <vector>

namespace abissora {

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::milliseconds;
using std::chrono::months;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;
using std::chrono::years;

using LocalTime = std::chrono::local_time<milliseconds>;
using LocalDays = std::chrono::local_days;

constexpr std::int64_t mostDays = floor<days>(lastInstant - firstInstant).count();
constexpr int mostYears = 9999;

constexpr Instant tableBegin = sys_days{year{1900} / 1 / 1};
// QTimeZone lists transitions up to 2037 and computes later ones when asked for a single instant.
constexpr Instant tableEnd = sys_days{year{2037} / 1 / 1};

QDateTime utc(Instant instant)
{
    return QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC);
}

} // namespace

/// A time zone's offsets from UTC, tabulated where dates usually lie: asking the zone itself makes the day counts of a
/// long register take about a hundred times as long. Immutable.
class ZoneOffsets
{
public:
    explicit ZoneOffsets(const QTimeZone& zone);

    /// The system's zone of this moment, UTC when it cannot be determined. Shared while the zone stays the same: TZ is
    /// looked at every time, the system's own setting at most once a second.
    [[nodiscard]] static std::shared_ptr<const ZoneOffsets> system();

    [[nodiscard]] const QTimeZone& zone() const { return m_zone; }
    [[nodiscard]] seconds at(Instant instant) const;
    /// Whether the table knows that no clock changes within so many days before and after.
    [[nodiscard]] bool isSteadyAround(Instant instant, days reach) const;

private:
    struct Offset
    {
        Instant since;
        seconds value;
    };

    QTimeZone m_zone;
    std::vector<Offset> m_offsets;
};

ZoneOffsets::ZoneOffsets(const QTimeZone& zone)
    : m_zone(zone)
{
    if (!m_zone.isValid())
        m_zone = QTimeZone::utc();
    m_offsets.push_back({tableBegin, seconds{m_zone.offsetFromUtc(utc(tableBegin))}});
    const auto transitions = m_zone.transitions(utc(tableBegin), utc(tableEnd));
    for (const QTimeZone::OffsetData& transition : transitions)
        m_offsets.push_back(
            {Instant{milliseconds{transition.atUtc.toMSecsSinceEpoch()}}, seconds{transition.offsetFromUtc}});
}

std::shared_ptr<const ZoneOffsets> ZoneOffsets::system()
{
    struct Looked
    {
        std::optional<QByteArray> variable;
        std::chrono::steady_clock::time_point at;
        std::shared_ptr<const ZoneOffsets> offsets;
    };
    // Holds nothing but what the next lookup would find again.
    thread_local Looked cache;
    const auto now = std::chrono::steady_clock::now();
    const std::optional<QByteArray> variable =
        qEnvironmentVariableIsSet("TZ") ? std::optional(qgetenv("TZ")) : std::nullopt;
    const bool fresh = cache.offsets && cache.variable == variable &&
                       (variable.has_value() || now - cache.at < std::chrono::seconds{1});
    if (!fresh) {
        const QTimeZone zone = QTimeZone::systemTimeZone();
        if (!cache.offsets || cache.offsets->zone() != zone)
            cache.offsets = std::make_shared<const ZoneOffsets>(zone);
        cache.variable = variable;
        cache.at = now;
    }
    return cache.offsets;
}

seconds ZoneOffsets::at(Instant instant) const
{
    if (instant < tableBegin || instant >= tableEnd)
        return seconds{m_zone.offsetFromUtc(utc(instant))};
    return std::prev(std::ranges::upper_bound(m_offsets, instant, {}, &Offset::since))->value;
}

bool ZoneOffsets::isSteadyAround(Instant instant, days reach) const
{
    if (instant - reach < tableBegin || instant + reach >= tableEnd)
        return false;
    const auto next = std::ranges::upper_bound(m_offsets, instant - reach, {}, &Offset::since);
    return next == m_offsets.end() || instant + reach < next->since;
}

namespace {

bool isOfTheCalendar(QDate day)
{
    return day.isValid() && day.year() >= 1 && day.year() <= mostYears;
}

/// An instant by its UTC time, a local time by itself.
template <typename Scale>
bool isOfTheCalendar(std::chrono::time_point<Scale, milliseconds> time)
{
    return time.time_since_epoch() >= firstInstant.time_since_epoch() &&
           time.time_since_epoch() <= lastInstant.time_since_epoch();
}

std::optional<LocalTime> toLocal(Instant instant, const ZoneOffsets& offsets)
{
    if (!isOfTheCalendar(instant))
        return std::nullopt;
    const LocalTime asIfUtc{instant.time_since_epoch()};
    const LocalTime local = asIfUtc + offsets.at(instant);
    return isOfTheCalendar(local) ? local : asIfUtc;
}

/// Outside the calendar by up to the zone's offset.
Instant toInstant(LocalTime local, const ZoneOffsets& offsets)
{
    const Instant asIfUtc{local.time_since_epoch()};
    // The offsets well before and well after: where they agree there is nothing to decide.
    const auto before = offsets.at(asIfUtc - days{1});
    const auto after = offsets.at(asIfUtc + days{1});
    const Instant early = asIfUtc - before;
    if (before == after || offsets.at(early) == before)
        return early; // the only occurrence, or the first of two
    const Instant late = asIfUtc - after;
    if (offsets.at(late) == after)
        return late;
    return early; // skipped: the old offset leads past the gap, by the gap's length
}

std::optional<Instant> toInstantWithin(LocalTime local, const ZoneOffsets& offsets)
{
    if (!isOfTheCalendar(local))
        return std::nullopt;
    const Instant instant = toInstant(local, offsets);
    return isOfTheCalendar(instant) ? std::optional(instant) : std::nullopt;
}

std::optional<Instant> addDaysWithin(Instant instant, std::int64_t count, const ZoneOffsets& offsets)
{
    const auto local = toLocal(instant, offsets);
    if (!local || count > mostDays || count < -mostDays)
        return std::nullopt;
    if (count == 0)
        return instant; // also when it is the second of two occurrences
    return toInstantWithin(*local + days{count}, offsets);
}

std::optional<Instant> addMonthsWithin(Instant instant, months count, const ZoneOffsets& offsets)
{
    const auto local = toLocal(instant, offsets);
    if (!local)
        return std::nullopt;
    if (count == months{0})
        return instant;
    const LocalDays day = floor<days>(*local);
    year_month_day date = year_month_day{day} + count;
    if (!date.ok())
        date = date.year() / date.month() / std::chrono::last;
    return toInstantWithin(LocalDays{date} + (*local - day), offsets);
}

} // namespace

Calendar::Calendar(const QTimeZone& zone)
    : m_offsets(std::make_shared<const ZoneOffsets>(zone))
{}

std::shared_ptr<const ZoneOffsets> Calendar::offsets() const
{
    return m_offsets ? m_offsets : ZoneOffsets::system();
}

QTimeZone Calendar::zone() const
{
    return offsets()->zone();
}

QDateTime Calendar::local(Instant instant) const
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), zone());
    return isOfTheCalendar(local.date()) ? local : utc(instant);
}

std::optional<Instant> Calendar::instant(QDate day, QTime time) const
{
    if (!isOfTheCalendar(day) || !time.isValid())
        return std::nullopt;
    const auto zone = offsets();
    const LocalDays midnight{days{QDate(1970, 1, 1).daysTo(day)}};
    const Instant exact = toInstant(midnight + milliseconds{time.msecsSinceStartOfDay()}, *zone);
    const Instant nearest = std::clamp(exact, firstInstant, lastInstant);
    if (nearest != exact && floor<days>(toLocal(nearest, *zone).value()) != midnight)
        return std::nullopt;
    return nearest;
}

std::optional<Instant> Calendar::addDays(Instant instant, std::int64_t days) const
{
    return addDaysWithin(instant, days, *offsets());
}

std::optional<Instant> Calendar::addMonths(Instant instant, int months) const
{
    if (months > mostYears * 12 || months < -mostYears * 12)
        return std::nullopt;
    return addMonthsWithin(instant, std::chrono::months{months}, *offsets());
}

std::optional<Instant> Calendar::addYears(Instant instant, int years) const
{
    if (years > mostYears || years < -mostYears)
        return std::nullopt;
    return addMonthsWithin(instant, std::chrono::months{years * 12}, *offsets());
}

std::optional<std::int64_t> Calendar::daysBetween(Instant from, Instant to) const
{
    const auto zone = offsets();
    const auto localFrom = toLocal(from, *zone);
    const auto localTo = toLocal(to, *zone);
    if (!localFrom || !localTo)
        return std::nullopt;

    const std::int64_t direction = to < from ? -1 : 1;
    std::int64_t count = std::max<std::int64_t>(0, floor<days>(direction * (*localTo - *localFrom)).count());
    // Far from any clock change the clocks' difference is right.
    if (zone->isSteadyAround(to, days{4}))
        return direction * count;
    const auto reached = [&](std::int64_t number) {
        const auto moved = addDaysWithin(from, direction * number, *zone);
        return moved && (direction > 0 ? *moved <= to : *moved >= to);
    };
    // Beside a clock change the clocks' difference is off by one or two.
    while (count > 0 && !reached(count))
        --count;
    while (reached(count + 1))
        ++count;
    return direction * count;
}

} // namespace abissora
