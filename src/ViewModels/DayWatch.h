// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"

#include <QDate>
#include <QTimeZone>
#include <QTimer>

namespace abissora {

/// Notices, while the program runs, that what is counted from the present reads differently by now.
///
/// An item's day count steps at the time of day of its own date, so a timer for midnight would come too early for some
/// items and too late for others, and would be lost while the machine sleeps or its clock is set. Instead this looks
/// once a minute whether any count, the local day or the zone is another than at the last look, which is the same
/// question whatever the reason, and is silent when none is.
class DayWatch : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::minutes interval{1};

    /// Everything passed by reference must outlive it.
    DayWatch(const EquipmentViewModel& equipment, const Clock& clock, Calendar calendar, QObject* parent = nullptr);

public Q_SLOTS:
    /// Looks now: for the moments when time may have passed unnoticed, such as the program coming forward.
    void check();

Q_SIGNALS:
    void dayChanged();

private:
    [[nodiscard]] bool isAnyCountOtherThan(Instant before, Instant now) const;

    const EquipmentViewModel& m_equipment;
    const Clock& m_clock;
    Calendar m_calendar;
    QTimer m_timer;
    Instant m_checked;
    QDate m_day;
    QTimeZone m_zone;
};

} // namespace abissora
