// SPDX-License-Identifier: MIT
#include "Calendar.h"

#include "ZoneOffsets.h"

#include <algorithm>

namespace abissora {

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::milliseconds;
using std::chrono::months;
using std::chrono::year;
using std::chrono::year_month_day;
using std::chrono::years;

using LocalTime = std::chrono::local_time<milliseconds>;
using LocalDays = std::chrono::local_days;

constexpr LocalTime firstLocalTime = LocalDays{year{1} / 1 / 1};
constexpr LocalTime endOfLocalTimes = LocalDays{year{10000} / 1 / 1};
constexpr std::int64_t mostDays = (floor<days>(endOfLocalTimes) - floor<days>(firstLocalTime)).count();
constexpr int mostYears = 9999;

std::optional<LocalTime> inRange(LocalTime local)
{
    if (local < firstLocalTime || local >= endOfLocalTimes)
        return std::nullopt;
    return local;
}

std::optional<LocalTime> toLocal(Instant instant, const ZoneOffsets& offsets)
{
    // Checked before any arithmetic that could overflow; no offset reaches a day.
    const LocalTime asIfUtc{std::clamp(instant.time_since_epoch(), firstLocalTime.time_since_epoch() - days{2},
                                       endOfLocalTimes.time_since_epoch() + days{2})};
    if (asIfUtc < firstLocalTime - days{1} || asIfUtc > endOfLocalTimes + days{1})
        return std::nullopt;
    return inRange(asIfUtc + offsets.at(instant));
}

std::optional<Instant> toInstant(std::optional<LocalTime> local, const ZoneOffsets& offsets)
{
    if (!local || !inRange(*local))
        return std::nullopt;
    const Instant asIfUtc{local->time_since_epoch()};
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

std::optional<Instant> addDaysWithin(Instant instant, std::int64_t count, const ZoneOffsets& offsets)
{
    const auto local = toLocal(instant, offsets);
    if (!local || count > mostDays || count < -mostDays)
        return std::nullopt;
    if (count == 0)
        return instant; // also when it is the second of two occurrences
    return toInstant(*local + days{count}, offsets);
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
    return toInstant(LocalDays{date} + (*local - day), offsets);
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
    return QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), zone());
}

std::optional<Instant> Calendar::instant(QDate day, QTime time) const
{
    if (!day.isValid() || !time.isValid() || day.year() < 1 || day.year() > mostYears)
        return std::nullopt;
    const days sinceEpoch{QDate(1970, 1, 1).daysTo(day)};
    return toInstant(LocalDays{sinceEpoch} + milliseconds{time.msecsSinceStartOfDay()}, *offsets());
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
    const auto reached = [&](std::int64_t count) {
        const auto moved = addDaysWithin(from, direction * count, *zone);
        return moved && (direction > 0 ? *moved <= to : *moved >= to);
    };
    // The clocks' difference is right except beside a clock change, where it is off by one or two.
    std::int64_t count = std::max<std::int64_t>(0, floor<days>(direction * (*localTo - *localFrom)).count());
    while (count > 0 && !reached(count))
        --count;
    while (reached(count + 1))
        ++count;
    return direction * count;
}

} // namespace abissora
