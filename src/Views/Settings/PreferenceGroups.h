// SPDX-License-Identifier: MIT
#pragma once

#include "SettingsGroupBox.h"
#include "SettingsViewModel.h"

class QLineEdit;

namespace abissora {

class SegmentedControl;
class Stepper;

/// Each of these groups shows some preferences as they are stored and stores every edit at once.

class NotificationsGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    /// `settings` must outlive it.
    explicit NotificationsGroup(SettingsViewModel& settings, QWidget* parent = nullptr);

private:
    void redraw();

    SettingsViewModel& m_settings;
    Stepper* m_reminderDays;
};

class GeneralGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    /// `settings` must outlive it.
    explicit GeneralGroup(SettingsViewModel& settings, QWidget* parent = nullptr);

private:
    void redraw();

    SettingsViewModel& m_settings;
    SegmentedControl* m_interval;
    QLineEdit* m_currency;
};

class AppearanceGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    /// `settings` must outlive it.
    explicit AppearanceGroup(SettingsViewModel& settings, QWidget* parent = nullptr);
};

} // namespace abissora
