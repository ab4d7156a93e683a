// SPDX-License-Identifier: MIT
#include "DayWatch.h"

namespace abissora {

DayWatch::DayWatch(const EquipmentViewModel& equipment, const Clock& clock, Calendar calendar, QObject* parent)
    : QObject(parent)
    , m_equipment(equipment)
    , m_clock(clock)
    , m_calendar(std::move(calendar))
    , m_checked(clock.now())
    , m_day(m_calendar.local(m_checked).date())
    , m_zone(m_calendar.zone())
{
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    m_timer.start(interval);
    connect(&m_timer, &QTimer::timeout, this, &DayWatch::check);
}

void DayWatch::check()
{
    const Instant now = m_clock.now();
    const Instant before = std::exchange(m_checked, now);
    const QDate dayBefore = std::exchange(m_day, m_calendar.local(now).date());
    const QTimeZone zoneBefore = std::exchange(m_zone, m_calendar.zone());
    if (m_day != dayBefore || m_zone != zoneBefore || isAnyCountOtherThan(before, now))
        Q_EMIT dayChanged();
}

bool DayWatch::isAnyCountOtherThan(Instant before, Instant now) const
{
    return std::ranges::any_of(m_equipment.equipment(), [&](const Equipment& item) {
        return item.daysUntilNextService(before, m_calendar) != item.daysUntilNextService(now, m_calendar);
    });
}

} // namespace abissora
