// SPDX-License-Identifier: MIT
#include "PreferenceGroups.h"

#include "SegmentedControl.h"
#include "Stepper.h"
#include "ToggleSwitch.h"

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
    : SettingsGroupBox(QStringLiteral("Notifiche"), QStringLiteral("bell"), parent)
    , m_settings(settings)
    , m_enabled(new ToggleSwitch(QStringLiteral("Abilita Notifiche")))
    , m_reminderDays(new Stepper)
{
    m_enabled->setObjectName(QStringLiteral("notificationsEnabled"));
    m_reminderDays->setObjectName(QStringLiteral("reminderDays"));
    m_reminderDays->setRange(7, 90);
    m_reminderDays->setSingleStep(7);
    m_reminderDays->setSuffix(QStringLiteral(" giorni"));
    addLine(m_enabled);
    addLine(QStringLiteral("Giorni di anticipo"), m_reminderDays);
    redraw();
    connect(m_enabled, &QAbstractButton::clicked, &settings, &SettingsViewModel::setNotificationsEnabled);
    connect(m_reminderDays, &Stepper::edited, &settings, &SettingsViewModel::setReminderDays);
    connect(&settings, &SettingsViewModel::changed, this, &NotificationsGroup::redraw);
}

void NotificationsGroup::redraw()
{
    m_enabled->setChecked(m_settings.notificationsEnabled());
    m_reminderDays->setValue(m_settings.reminderDays());
}

GeneralGroup::GeneralGroup(SettingsViewModel& settings, QWidget* parent)
    : SettingsGroupBox(QStringLiteral("Impostazioni Generali"), QStringLiteral("gear"), parent)
    , m_settings(settings)
    , m_interval(new SegmentedControl(SegmentedControl::Purpose::Choice))
    , m_currency(new QLineEdit)
{
    m_interval->setObjectName(QStringLiteral("defaultServiceInterval"));
    for (const Interval& interval : intervals)
        m_interval->addSegment(QString::fromLatin1(interval.text));
    m_currency->setObjectName(QStringLiteral("currencySymbol"));
    m_currency->setMaxLength(std::numeric_limits<int>::max()); // what is stored shall not be shortened
    m_currency->setPlaceholderText(QStringLiteral("Simbolo"));
    m_currency->setFixedWidth(withText(currencyWidth, m_currency->fontMetrics()));
    addLine(QStringLiteral("Intervallo Tagliando Default"), m_interval);
    addLine(QStringLiteral("Simbolo Valuta"), m_currency);
    redraw();
    connect(m_interval, &SegmentedControl::activated, &settings, [&settings](int segment) {
        settings.setDefaultServiceInterval(intervals.at(static_cast<std::size_t>(segment)).days);
    });
    connect(m_currency, &QLineEdit::textEdited, &settings, &SettingsViewModel::setCurrencySymbol);
    connect(&settings, &SettingsViewModel::changed, this, &GeneralGroup::redraw);
}

void GeneralGroup::redraw()
{
    m_interval->setCurrentIndex(segmentOf(m_settings.defaultServiceInterval()));
    if (const QString symbol = m_settings.currencySymbol(); m_currency->text() != symbol)
        m_currency->setText(symbol);
}

AppearanceGroup::AppearanceGroup(SettingsViewModel& settings, QWidget* parent)
    : SettingsGroupBox(QStringLiteral("Aspetto"), QStringLiteral("paintbrush"), parent)
    , m_settings(settings)
    , m_darkMode(new ToggleSwitch(QStringLiteral("Modalità Scura")))
{
    m_darkMode->setObjectName(QStringLiteral("darkMode"));
    addLine(m_darkMode);
    redraw();
    connect(m_darkMode, &QAbstractButton::clicked, &settings, &SettingsViewModel::setDarkMode);
    connect(&settings, &SettingsViewModel::changed, this, &AppearanceGroup::redraw);
}

void AppearanceGroup::redraw()
{
    m_darkMode->setChecked(m_settings.darkMode());
}

} // namespace abissora
