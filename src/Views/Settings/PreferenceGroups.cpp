// SPDX-License-Identifier: MIT
#include "PreferenceGroups.h"

#include "Literals.h"
#include "SegmentedControl.h"
#include "SettingsSwitch.h"
#include "Stepper.h"

#include <QLineEdit>
#include <limits>

namespace abissora {

namespace {

constexpr int currencyWidth = 90;

/// Days behind the segments, in their order.
struct Interval
{
    const char* text;
    std::int64_t days;
};

constexpr std::array<Interval, 3> intervals{Interval{"6 Mesi", 180}, Interval{"1 Anno", 365}, Interval{"2 Anni", 730}};

/// -1 for a stored interval that none of the segments stands for.
int segmentOf(std::int64_t days)
{
    const auto* const found =
        std::find_if(intervals.begin(), intervals.end(), [days](const Interval& each) { return each.days == days; });
    return found == intervals.end() ? -1 : static_cast<int>(found - intervals.begin());
}

} // namespace

NotificationsGroup::NotificationsGroup(SettingsViewModel& settings, QWidget* parent)
    : SettingsGroupBox(u"Notifiche"_s, u"bell"_s, parent)
    , m_settings(settings)
    , m_reminderDays(new Stepper)
{
    auto* enabled = new SettingsSwitch(u"Abilita Notifiche"_s, settings, &SettingsViewModel::notificationsEnabled,
                                       &SettingsViewModel::setNotificationsEnabled);
    enabled->setObjectName(u"notificationsEnabled"_s);
    m_reminderDays->setObjectName(u"reminderDays"_s);
    m_reminderDays->setRange(7, 90);
    m_reminderDays->setSingleStep(7);
    m_reminderDays->setSuffix(u" giorni"_s);
    addLine(enabled);
    addLine(u"Giorni di anticipo"_s, m_reminderDays);
    redraw();
    connect(m_reminderDays, &Stepper::edited, &settings, &SettingsViewModel::setReminderDays);
    connect(&settings, &SettingsViewModel::changed, this, &NotificationsGroup::redraw);
}

void NotificationsGroup::redraw()
{
    m_reminderDays->setValue(m_settings.reminderDays());
}

GeneralGroup::GeneralGroup(SettingsViewModel& settings, QWidget* parent)
    : SettingsGroupBox(u"Impostazioni Generali"_s, u"gear"_s, parent)
    , m_settings(settings)
    , m_interval(new SegmentedControl(SegmentedControl::Purpose::Choice))
    , m_currency(new QLineEdit)
{
    m_interval->setObjectName(u"defaultServiceInterval"_s);
    for (const Interval& interval : intervals)
        m_interval->addSegment(QString::fromLatin1(interval.text));
    m_currency->setObjectName(u"currencySymbol"_s);
    m_currency->setMaxLength(std::numeric_limits<int>::max()); // what is stored shall not be shortened
    m_currency->setPlaceholderText(u"Simbolo"_s);
    m_currency->setFixedWidth(withText(currencyWidth, m_currency->fontMetrics()));
    addLine(u"Intervallo Tagliando Default"_s, m_interval);
    addLine(u"Simbolo Valuta"_s, m_currency);
    redraw();
    connect(m_interval, &SegmentedControl::activated, &settings, [&settings](int segment) {
        settings.setDefaultServiceInterval(intervals.at(static_cast<std::size_t>(segment)).days);
    });
    // Not textEdited, which leaves out what a screen reader puts in.
    connect(m_currency, &QLineEdit::textChanged, &settings, [&settings](const QString& symbol) {
        if (symbol != settings.currencySymbol())
            settings.setCurrencySymbol(symbol);
    });
    connect(&settings, &SettingsViewModel::changed, this, &GeneralGroup::redraw);
}

void GeneralGroup::redraw()
{
    m_interval->setCurrentIndex(segmentOf(m_settings.defaultServiceInterval()));
    if (const QString symbol = m_settings.currencySymbol(); m_currency->text() != symbol)
        m_currency->setText(symbol);
}

AppearanceGroup::AppearanceGroup(SettingsViewModel& settings, QWidget* parent)
    : SettingsGroupBox(u"Aspetto"_s, u"paintbrush"_s, parent)
{
    auto* darkMode = new SettingsSwitch(u"Modalità Scura"_s, settings, &SettingsViewModel::darkMode,
                                        &SettingsViewModel::setDarkMode);
    darkMode->setObjectName(u"darkMode"_s);
    addLine(darkMode);
}

} // namespace abissora
