// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"

#include <QDateTime>
#include <QTimeZone>
#include <memory>
#include <optional>

namespace abissora {

class ZoneOffsets;

/// The ends of the years 1 to 9999 in UTC: what is stored and what a calendar gives lies between them.
inline constexpr Instant firstInstant = std::chrono::sys_days{std::chrono::year{1} / 1 / 1};
inline constexpr Instant lastInstant =
    std::chrono::sys_days{std::chrono::year{9999} / 12 / 31} + std::chrono::days{1} - std::chrono::milliseconds{1};

/// The user's Gregorian calendar in one time zone, in the years 1 to 9999. A local time that a clock change skips is
/// moved forward by the length of the gap; one that happens twice is its first occurrence. An instant whose local time
/// lies outside those years has its UTC time for local time.
class Calendar
{
public:
    /// Follows the system's zone, also when it changes while the program runs.
    Calendar() = default;
    /// UTC when `zone` is invalid.
    explicit Calendar(const QTimeZone& zone);

    [[nodiscard]] QTimeZone zone() const;

    /// The same instant as a local date and time.
    [[nodiscard]] QDateTime local(Instant instant) const;
    /// Where the time of day leads beyond firstInstant or lastInstant, that one, as long as it is of the same day.
    /// Nothing for an invalid day or time, for a day outside the years 1 to 9999, and for one wholly beyond those two.
    [[nodiscard]] std::optional<Instant> instant(QDate day, QTime time) const;

    /// Nothing when the result lies outside the years 1 to 9999, be it in local time or in UTC.
    [[nodiscard]] std::optional<Instant> addDays(Instant instant, std::int64_t days) const;
    /// The day of the month is clipped to the month's length: 31 March plus one month is 30 April.
    [[nodiscard]] std::optional<Instant> addMonths(Instant instant, int months) const;
    [[nodiscard]] std::optional<Instant> addYears(Instant instant, int years) const;

    /// Whole calendar days from one instant to another, truncated toward zero: for a later `to` the largest n with
    /// `from` plus n days not after `to`, mirrored for an earlier one. A day is a calendar day, not 24 hours, so
    /// clock changes do not shift the count. Nothing when one of the two lies outside firstInstant to lastInstant.
    [[nodiscard]] std::optional<std::int64_t> daysBetween(Instant from, Instant to) const;

private:
    [[nodiscard]] std::shared_ptr<const ZoneOffsets> offsets() const;

    std::shared_ptr<const ZoneOffsets> m_offsets; // null: the system's
};

} // namespace abissora
