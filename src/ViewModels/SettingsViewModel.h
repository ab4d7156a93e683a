// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"
#include "Literals.h"
#include "PreferencesStore.h"
#include "StateObject.h"

namespace abissora {

/// The user's preferences, each under one key of the store: read once, at the beginning, and written at once. A value
/// that cannot be written counts all the same while the program runs. Ranges are the controls' business.
class SettingsViewModel : public StateObject
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it.
    SettingsViewModel(PreferencesStore& preferences, Console& console, QObject* parent = nullptr);

    [[nodiscard]] bool notificationsEnabled() const { return m_values.notificationsEnabled; }
    void setNotificationsEnabled(bool enabled);
    /// Days.
    [[nodiscard]] std::int64_t reminderDays() const { return m_values.reminderDays; }
    void setReminderDays(std::int64_t days);
    /// Days.
    [[nodiscard]] std::int64_t defaultServiceInterval() const { return m_values.defaultServiceInterval; }
    void setDefaultServiceInterval(std::int64_t days);
    [[nodiscard]] const QString& currencySymbol() const { return m_values.currencySymbol; }
    void setCurrencySymbol(const QString& symbol);
    [[nodiscard]] bool darkMode() const { return m_values.darkMode; }
    void setDarkMode(bool dark);
    [[nodiscard]] bool checkForUpdatesOnLaunch() const { return m_values.checkForUpdatesOnLaunch; }
    void setCheckForUpdatesOnLaunch(bool check);

    /// Writes every default, so that all keys are present afterwards.
    void resetToDefaults();

Q_SIGNALS:
    void notificationsEnabledChanged();
    void reminderDaysChanged();
    void defaultServiceIntervalChanged();
    void currencySymbolChanged();
    void darkModeChanged();
    void checkForUpdatesOnLaunchChanged();

private:
    /// The values that a register without preferences has.
    struct Values
    {
        bool notificationsEnabled = true;
        std::int64_t reminderDays = 30;
        std::int64_t defaultServiceInterval = 365;
        QString currencySymbol = u"€"_s;
        bool darkMode = false;
        bool checkForUpdatesOnLaunch = false;
    };

    void publish(const IoResult<void>& stored, void (SettingsViewModel::*signal)());

    PreferencesStore& m_preferences;
    Console& m_console;
    Values m_values;
};

} // namespace abissora
