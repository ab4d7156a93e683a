// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "FormRow.h"

#include <QMenu>
#include <optional>

class QCalendarWidget;

namespace abissora {

/// The day of an instant as dd/MM/yyyy: typed in any of the usual ways (DayText.h), stepped (Up and Down a day, Page Up
/// and Page Down a month) or picked from a calendar (the mark at the end, Alt+Down, F4). Only the day is edited:
/// another day keeps the time of day, the original day gives the original instant back to the millisecond. A text that
/// is no day of the calendar is no value.
class DateField : public CheckedField
{
    Q_OBJECT

public:
    explicit DateField(const Calendar& calendar, QWidget* parent = nullptr);

    /// Tells only what becomes of an error.
    void setInstant(Instant instant);
    /// With what is being typed; the last day that stood here while the text is none.
    [[nodiscard]] Instant instant() const;

    bool commit() override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The person gave another day. While a day is being typed, as soon as it is complete.
    void edited();
    /// instant() is another one by what the person did, also while a day is being typed that may become another.
    void instantChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Value
    {
        QDate day;
        Instant instant{};
    };

    [[nodiscard]] std::optional<Value> valueOn(QDate day) const;
    [[nodiscard]] std::optional<Value> typed() const;
    void take(const Value& value);
    void takeCompleteDay();
    void tellInstant();
    bool step(int key);
    void openCalendar();
    void makeCalendar();

    Calendar m_calendar;
    Value m_original;
    QTime m_timeOfDay;
    Value m_last;
    Instant m_told{};
    QMenu* m_popup = nullptr; // made when it is first opened
    QCalendarWidget* m_days = nullptr;
};

} // namespace abissora
