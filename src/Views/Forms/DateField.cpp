// SPDX-License-Identifier: MIT
#include "DateField.h"

#include "TypeScale.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QTextCharFormat>
#include <QWheelEvent>

namespace abissora {

namespace {

constexpr int fieldWidth = 170;

} // namespace

DateField::DateField(const Calendar& calendar, QWidget* parent)
    : QDateEdit(parent)
    , m_calendar(calendar)
{
    // The field's own arithmetic is about days only: a zone with clock changes would get in its way.
    setTimeSpec(Qt::UTC);
    setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    setCalendarPopup(true);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel, which then belongs to the scroll area around
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setInstant({});
    connect(this, &QDateTimeEdit::dateChanged, this, &DateField::report);
}

void DateField::setInstant(Instant instant)
{
    const QSignalBlocker silence(this);
    const QDateTime local = m_calendar.local(instant);
    setDate(std::clamp(local.date(), minimumDate(), maximumDate()));
    m_original = instant;
    m_timeOfDay = local.time();
    m_originalDay = date();
}

Instant DateField::instant()
{
    if (!m_reporting)
        interpretText();
    if (date() == m_originalDay)
        return m_original;
    return m_calendar.instant(date(), m_timeOfDay).value_or(m_original);
}

void DateField::report()
{
    const QScopedValueRollback reporting(m_reporting, true);
    Q_EMIT edited();
}

QSize DateField::sizeHint() const
{
    const QSize needed = QDateEdit::sizeHint();
    return {std::max(needed.width(), withText(fieldWidth, fontMetrics())), needed.height()};
}

QSize DateField::minimumSizeHint() const
{
    return sizeHint();
}

bool DateField::focusNextPrevChild(bool next)
{
    return QWidget::focusNextPrevChild(next);
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    const bool opens =
        event->key() == Qt::Key_F4 || (event->modifiers() == Qt::AltModifier && event->key() == Qt::Key_Down);
    if (opens)
        openCalendarPopup();
    else
        QDateEdit::keyPressEvent(event);
}

void DateField::mousePressEvent(QMouseEvent* event)
{
    prepareCalendarPopup();
    QDateEdit::mousePressEvent(event);
}

void DateField::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QDateEdit::wheelEvent(event);
    else
        event->ignore();
}

void DateField::prepareCalendarPopup()
{
    if (m_popupPrepared)
        return;
    m_popupPrepared = true;
    QCalendarWidget* const popup = calendarWidget();
    popup->setFirstDayOfWeek(Qt::Monday);
    popup->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        popup->setWeekdayTextFormat(day, {});
}

void DateField::openCalendarPopup()
{
    // The base class opens it for a press on the arrow only.
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.subControls = QStyle::SC_ComboBoxArrow;
    const QPointF place =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
    QMouseEvent press(QEvent::MouseButtonPress, place, mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
    mousePressEvent(&press);
}

} // namespace abissora
