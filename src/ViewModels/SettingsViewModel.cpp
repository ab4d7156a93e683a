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

} // namespace

SettingsViewModel::SettingsViewModel(PreferencesStore& preferences, Console& console, QObject* parent)
    : StateObject(parent)
    , m_preferences(preferences)
    , m_console(console)
{
    m_values.notificationsEnabled =
        preferences.boolean(notificationsEnabledKey).value_or(m_values.notificationsEnabled);
    m_values.reminderDays = preferences.integer(reminderDaysKey).value_or(m_values.reminderDays);
    m_values.defaultServiceInterval =
        preferences.integer(defaultServiceIntervalKey).value_or(m_values.defaultServiceInterval);
    m_values.currencySymbol = preferences.text(currencySymbolKey).value_or(m_values.currencySymbol);
    m_values.darkMode = preferences.boolean(darkModeKey).value_or(m_values.darkMode);
    m_values.checkForUpdatesOnLaunch =
        preferences.boolean(checkForUpdatesOnLaunchKey).value_or(m_values.checkForUpdatesOnLaunch);
}

void SettingsViewModel::setNotificationsEnabled(bool enabled)
{
    m_values.notificationsEnabled = enabled;
    publish(m_preferences.setBoolean(notificationsEnabledKey, enabled),
            &SettingsViewModel::notificationsEnabledChanged);
}

void SettingsViewModel::setReminderDays(std::int64_t days)
{
    m_values.reminderDays = days;
    publish(m_preferences.setInteger(reminderDaysKey, days), &SettingsViewModel::reminderDaysChanged);
}

void SettingsViewModel::setDefaultServiceInterval(std::int64_t days)
{
    m_values.defaultServiceInterval = days;
    publish(m_preferences.setInteger(defaultServiceIntervalKey, days),
            &SettingsViewModel::defaultServiceIntervalChanged);
}

void SettingsViewModel::setCurrencySymbol(const QString& symbol)
{
    m_values.currencySymbol = symbol;
    publish(m_preferences.setText(currencySymbolKey, symbol), &SettingsViewModel::currencySymbolChanged);
}

void SettingsViewModel::setDarkMode(bool dark)
{
    m_values.darkMode = dark;
    publish(m_preferences.setBoolean(darkModeKey, dark), &SettingsViewModel::darkModeChanged);
}

void SettingsViewModel::setCheckForUpdatesOnLaunch(bool check)
{
    m_values.checkForUpdatesOnLaunch = check;
    publish(m_preferences.setBoolean(checkForUpdatesOnLaunchKey, check),
            &SettingsViewModel::checkForUpdatesOnLaunchChanged);
}

void SettingsViewModel::resetToDefaults()
{
    const Values standard;
    setNotificationsEnabled(standard.notificationsEnabled);
    setReminderDays(standard.reminderDays);
    setDefaultServiceInterval(standard.defaultServiceInterval);
    setCurrencySymbol(standard.currencySymbol);
    setDarkMode(standard.darkMode);
    setCheckForUpdatesOnLaunch(standard.checkForUpdatesOnLaunch);
}

void SettingsViewModel::publish(const IoResult<void>& stored, void (SettingsViewModel::*signal)())
{
    if (!stored)
        m_console.print(u"Error saving settings: "_s + stored.error().reason);
    announce(signal);
}

} // namespace abissora
