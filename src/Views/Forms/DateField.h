// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"

#include <QDateEdit>

namespace abissora {

/// The day of an instant as dd/MM/yyyy, typed, stepped or picked from a calendar (Alt+Down or F4). Only the day is
/// edited: another day keeps the time of day, the original day gives the original instant back to the millisecond. Tab
/// leaves it, the wheel changes it only while it has the focus. Days before the year 100 are kept but not shown.
class DateField : public QDateEdit
{
    Q_OBJECT

public:
    explicit DateField(const Calendar& calendar, QWidget* parent = nullptr);

    /// Emits nothing.
    void setInstant(Instant instant);
    /// Takes in first what is being typed, which may emit edited().
    [[nodiscard]] Instant instant();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Once for every other day that the person gave. instant() may be asked for it.
    void edited();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void prepareCalendarPopup();
    void openCalendarPopup();
    void report();

    Calendar m_calendar;
    Instant m_original{};
    QTime m_timeOfDay;
    QDate m_originalDay; ///< as the field can show it
    bool m_reporting = false;
    bool m_popupPrepared = false;
};

} // namespace abissora
