// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"

#include <QLocale>
#include <QString>

namespace abissora {

/// Dates as the user reads them, in the calendar's zone.
class DateFormat
{
public:
    DateFormat(const QLocale& locale, Calendar calendar);

    /// The system's locale; Italian where that is "C" or unknown.
    [[nodiscard]] static QLocale userLocale(const QLocale& system = QLocale::system());

    /// "5 dicembre 2026": the locale's full date without its weekday.
    [[nodiscard]] QString longDate(Instant instant) const;
    /// "5 dic 2026": the same with the month abbreviated.
    [[nodiscard]] QString abbreviatedDate(Instant instant) const;
    /// "2026", whatever the locale.
    [[nodiscard]] QString year(Instant instant) const;
    /// "05/12/2026 18:45", whatever the locale.
    [[nodiscard]] QString dayAndTime(Instant instant) const;

    /// The Qt patterns behind longDate and abbreviatedDate.
    [[nodiscard]] QString longPattern() const { return m_longPattern; }
    [[nodiscard]] QString abbreviatedPattern() const { return m_abbreviatedPattern; }

private:
    QLocale m_locale;
    Calendar m_calendar;
    QString m_longPattern;
    QString m_abbreviatedPattern;
};

} // namespace abissora
