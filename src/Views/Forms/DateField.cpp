// SPDX-License-Identifier: MIT
#include "DateField.h"

#include "DayText.h"
#include "Literals.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QTextCharFormat>
#include <QToolButton>
#include <QWidgetAction>

namespace abissora {

namespace {

constexpr int fieldWidth = 170;

QString textOf(QDate day)
{
    return day.toString(u"dd/MM/yyyy"_s);
}

/// The toolkit's pictures have colours of their own.
void setArrow(QCalendarWidget& calendar, const char* name, Qt::ArrowType arrow)
{
    auto* button = calendar.findChild<QToolButton*>(QLatin1String(name));
    if (button == nullptr)
        return;
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Tokens::of(calendar.palette()).onFill);
    button->setPalette(palette);
    button->setIcon({});
    button->setArrowType(arrow);
}

} // namespace

DateField::DateField(const Calendar& calendar, QWidget* parent)
    : CheckedField(parent)
    , m_calendar(calendar)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setInputMethodHints(Qt::ImhDate);
    QAction* const open = addAction(symbolIcon(u"calendar"_s, NamedColor::secondary), TrailingPosition);
    open->setText(u"Calendario"_s);
    setInstant({});
    connect(open, &QAction::triggered, this, &DateField::openCalendar);
    // Not textEdited: assistive technology sets the text without it. setInstant() gives no other day than it just took.
    connect(this, &QLineEdit::textChanged, this, &DateField::takeCompleteDay);
    connect(this, &QLineEdit::editingFinished, this, &DateField::commit);
}

void DateField::setInstant(Instant instant)
{
    const QDateTime local = m_calendar.local(instant);
    m_original = {local.date(), instant};
    m_timeOfDay = local.time();
    m_last = m_original;
    m_told = instant;
    setText(textOf(m_last.day));
    setError({});
}

Instant DateField::instant() const
{
    return typed().value_or(m_last).instant;
}

std::optional<DateField::Value> DateField::valueOn(QDate day) const
{
    if (day == m_original.day)
        return m_original;
    const auto instant = m_calendar.instant(day, m_timeOfDay);
    return instant ? std::optional(Value{day, *instant}) : std::nullopt;
}

std::optional<DateField::Value> DateField::typed() const
{
    if (text() == textOf(m_last.day))
        return m_last;
    const auto day = dayText::parse(text());
    return day ? valueOn(*day) : std::nullopt;
}

bool DateField::commit()
{
    if (const auto value = typed()) {
        take(*value);
        return true;
    }
    setError((text().trimmed().isEmpty() ? u"Manca la data"_s : u"Data non valida"_s) +
             u": scrivi giorno, mese e anno, per esempio "_s + textOf(m_last.day));
    return false;
}

void DateField::take(const Value& value)
{
    const bool isAnother = value.day != m_last.day;
    m_last = value;
    if (text() != textOf(value.day))
        setText(textOf(value.day));
    setError({});
    tellInstant();
    if (isAnother)
        Q_EMIT edited();
}

void DateField::takeCompleteDay()
{
    const auto value = typed();
    if (value && dayText::parseComplete(text()))
        take(*value);
    tellInstant();
}

void DateField::tellInstant()
{
    if (const Instant now = instant(); now != std::exchange(m_told, now))
        Q_EMIT instantChanged();
}

bool DateField::step(int key)
{
    const QDate day = typed().value_or(m_last).day;
    QDate other;
    switch (key) {
    case Qt::Key_Up:
        other = day.addDays(1);
        break;
    case Qt::Key_Down:
        other = day.addDays(-1);
        break;
    case Qt::Key_PageUp:
        other = day.addMonths(1);
        break;
    case Qt::Key_PageDown:
        other = day.addMonths(-1);
        break;
    default:
        return false;
    }
    if (const auto value = valueOn(other))
        take(*value);
    return true;
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool opens =
        event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier);
    if (opens)
        openCalendar();
    else if (!plain || !step(event->key()))
        QLineEdit::keyPressEvent(event);
}

void DateField::openCalendar()
{
    if (m_popup == nullptr)
        makeCalendar();
    m_days->setSelectedDate(typed().value_or(m_last).day);
    m_days->showSelectedDate();
    m_popup->popup(mapToGlobal(QPoint(0, height())));
    m_days->setFocus(Qt::PopupFocusReason);
}

void DateField::makeCalendar()
{
    m_days = new QCalendarWidget;
    m_days->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    m_days->setFirstDayOfWeek(Qt::Monday);
    m_days->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_days->setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
    m_days->setDateEditEnabled(false);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        m_days->setWeekdayTextFormat(day, {});
    setArrow(*m_days, "qt_calendar_prevmonth", Qt::LeftArrow);
    setArrow(*m_days, "qt_calendar_nextmonth", Qt::RightArrow);

    m_popup = new QMenu(this);
    auto* entry = new QWidgetAction(m_popup);
    entry->setDefaultWidget(m_days);
    m_popup->addAction(entry);
    for (const auto picked : {&QCalendarWidget::clicked, &QCalendarWidget::activated}) {
        connect(m_days, picked, this, [this](QDate day) {
            m_popup->close();
            setText(textOf(day));
            commit();
        });
    }
}

QSize DateField::sizeHint() const
{
    return {withText(fieldWidth, fontMetrics()), QLineEdit::sizeHint().height()};
}

QSize DateField::minimumSizeHint() const
{
    return sizeHint();
}

} // namespace abissora
