// SPDX-License-Identifier: MIT
#include "SettingsViewModel.h"

#include "Literals.h"

namespace abissora {

namespace {

const QString notificationsEnabledKey = u"notificationsEnabled"_s;
const QString reminderDaysKey = u"reminderDays"_s;
const QString defaultServiceIntervalKey = u"defaultServiceInterval"_s;
const QString currencySymbolKey = u"currencySymbol"_s;
const QString darkModeKey = u"darkMode"_s;
const QString checkForUpdatesOnLaunchKey = u"checkForUpdatesOnLaunch"_s;

const bool standardNotificationsEnabled = true;
const std::int64_t standardReminderDays = 30;
const std::int64_t standardServiceInterval = 365;
const QString standardCurrencySymbol = u"€"_s;
const bool standardDarkMode = false;
const bool standardCheckForUpdatesOnLaunch = false;

} // namespace

SettingsViewModel::SettingsViewModel(PreferencesStore& preferences, Console& console, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_console(console)
{
    for (const auto signal :
         {&SettingsViewModel::notificationsEnabledChanged, &SettingsViewModel::reminderDaysChanged,
          &SettingsViewModel::defaultServiceIntervalChanged, &SettingsViewModel::currencySymbolChanged,
          &SettingsViewModel::darkModeChanged, &SettingsViewModel::checkForUpdatesOnLaunchChanged})
        connect(this, signal, this, &SettingsViewModel::changed);
}

bool SettingsViewModel::notificationsEnabled() const
{
    return m_preferences.boolean(notificationsEnabledKey).value_or(standardNotificationsEnabled);
}

void SettingsViewModel::setNotificationsEnabled(bool enabled)
{
    report(m_preferences.setBoolean(notificationsEnabledKey, enabled));
    Q_EMIT notificationsEnabledChanged();
}

std::int64_t SettingsViewModel::reminderDays() const
{
    return m_preferences.integer(reminderDaysKey).value_or(standardReminderDays);
}

void SettingsViewModel::setReminderDays(std::int64_t days)
{
    report(m_preferences.setInteger(reminderDaysKey, days));
    Q_EMIT reminderDaysChanged();
}

std::int64_t SettingsViewModel::defaultServiceInterval() const
{
    return m_preferences.integer(defaultServiceIntervalKey).value_or(standardServiceInterval);
}

void SettingsViewModel::setDefaultServiceInterval(std::int64_t days)
{
    report(m_preferences.setInteger(defaultServiceIntervalKey, days));
    Q_EMIT defaultServiceIntervalChanged();
}

QString SettingsViewModel::currencySymbol() const
{
    return m_preferences.text(currencySymbolKey).value_or(standardCurrencySymbol);
}

void SettingsViewModel::setCurrencySymbol(const QString& symbol)
{
    report(m_preferences.setText(currencySymbolKey, symbol));
    Q_EMIT currencySymbolChanged();
}

bool SettingsViewModel::darkMode() const
{
    return m_preferences.boolean(darkModeKey).value_or(standardDarkMode);
}

void SettingsViewModel::setDarkMode(bool dark)
{
    report(m_preferences.setBoolean(darkModeKey, dark));
    Q_EMIT darkModeChanged();
}

bool SettingsViewModel::checkForUpdatesOnLaunch() const
{
    return m_preferences.boolean(checkForUpdatesOnLaunchKey).value_or(standardCheckForUpdatesOnLaunch);
}

void SettingsViewModel::setCheckForUpdatesOnLaunch(bool check)
{
    report(m_preferences.setBoolean(checkForUpdatesOnLaunchKey, check));
    Q_EMIT checkForUpdatesOnLaunchChanged();
}

void SettingsViewModel::resetToDefaults()
{
    setNotificationsEnabled(standardNotificationsEnabled);
    setReminderDays(standardReminderDays);
    setDefaultServiceInterval(standardServiceInterval);
    setCurrencySymbol(standardCurrencySymbol);
    setDarkMode(standardDarkMode);
    setCheckForUpdatesOnLaunch(standardCheckForUpdatesOnLaunch);
}

void SettingsViewModel::report(const IoResult<void>& stored) const
{
    if (!stored)
        m_console.print(u"Error saving settings: "_s + stored.error().reason);
}

} // namespace abissora
