// SPDX-License-Identifier: MIT
#include "SettingsViewModel.h"

namespace abissora {

namespace {

/// What counts while a key is absent.
constexpr bool standardNotificationsEnabled = true;
constexpr std::int64_t standardReminderDays = 30;
constexpr std::int64_t standardServiceInterval = 365;
const QString standardCurrencySymbol = u"€"_s;
constexpr bool standardDarkMode = false;
constexpr bool standardCheckForUpdatesOnLaunch = false;

} // namespace

SettingsViewModel::SettingsViewModel(PreferencesStore& preferences, Console& console, QObject* parent)
    : StateObject(parent)
    , m_preferences(preferences)
    , m_console(console)
{}

bool SettingsViewModel::notificationsEnabled() const
{
    return m_preferences.boolean(Key::notificationsEnabled).value_or(standardNotificationsEnabled);
}

void SettingsViewModel::setNotificationsEnabled(bool enabled)
{
    publish(m_preferences.setBoolean(Key::notificationsEnabled, enabled),
            &SettingsViewModel::notificationsEnabledChanged);
}

std::int64_t SettingsViewModel::reminderDays() const
{
    return m_preferences.integer(Key::reminderDays).value_or(standardReminderDays);
}

void SettingsViewModel::setReminderDays(std::int64_t days)
{
    publish(m_preferences.setInteger(Key::reminderDays, days), &SettingsViewModel::reminderDaysChanged);
}

std::int64_t SettingsViewModel::defaultServiceInterval() const
{
    return m_preferences.integer(Key::defaultServiceInterval).value_or(standardServiceInterval);
}

void SettingsViewModel::setDefaultServiceInterval(std::int64_t days)
{
    publish(m_preferences.setInteger(Key::defaultServiceInterval, days),
            &SettingsViewModel::defaultServiceIntervalChanged);
}

QString SettingsViewModel::currencySymbol() const
{
    return m_preferences.text(Key::currencySymbol).value_or(standardCurrencySymbol);
}

void SettingsViewModel::setCurrencySymbol(const QString& symbol)
{
    publish(m_preferences.setText(Key::currencySymbol, symbol), &SettingsViewModel::currencySymbolChanged);
}

bool SettingsViewModel::darkMode() const
{
    return m_preferences.boolean(Key::darkMode).value_or(standardDarkMode);
}

void SettingsViewModel::setDarkMode(bool dark)
{
    publish(m_preferences.setBoolean(Key::darkMode, dark), &SettingsViewModel::darkModeChanged);
}

bool SettingsViewModel::checkForUpdatesOnLaunch() const
{
    return m_preferences.boolean(Key::checkForUpdatesOnLaunch).value_or(standardCheckForUpdatesOnLaunch);
}

void SettingsViewModel::setCheckForUpdatesOnLaunch(bool check)
{
    publish(m_preferences.setBoolean(Key::checkForUpdatesOnLaunch, check),
            &SettingsViewModel::checkForUpdatesOnLaunchChanged);
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

void SettingsViewModel::publish(const IoResult<void>& stored, void (SettingsViewModel::*signal)())
{
    if (!stored)
        m_console.print(u"Error saving settings: "_s + stored.error().reason);
    announce(signal);
}

} // namespace abissora
