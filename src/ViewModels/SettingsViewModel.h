// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"
#include "Literals.h"
#include "PreferencesStore.h"
#include "StateObject.h"
#include "StoredSettings.h"

namespace abissora {

/// The user's preferences, each a thin accessor over one key of the store: a read goes to the store, which keeps what
/// it has read, and a write stores at once. Ranges are the controls' business.
class SettingsViewModel : public StateObject
{
    Q_OBJECT

public:
    using Key = SettingKey;

    /// Everything passed by reference must outlive it.
    SettingsViewModel(PreferencesStore& preferences, Console& console, QObject* parent = nullptr);

    [[nodiscard]] bool notificationsEnabled() const;
    void setNotificationsEnabled(bool enabled);
    /// Days.
    [[nodiscard]] std::int64_t reminderDays() const;
    void setReminderDays(std::int64_t days);
    /// Days.
    [[nodiscard]] std::int64_t defaultServiceInterval() const;
    void setDefaultServiceInterval(std::int64_t days);
    [[nodiscard]] QString currencySymbol() const;
    void setCurrencySymbol(const QString& symbol);
    [[nodiscard]] bool darkMode() const;
    void setDarkMode(bool dark);
    [[nodiscard]] bool checkForUpdatesOnLaunch() const;
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
    void publish(const IoResult<void>& stored, void (SettingsViewModel::*signal)());

    PreferencesStore& m_preferences;
    Console& m_console;
};

} // namespace abissora
