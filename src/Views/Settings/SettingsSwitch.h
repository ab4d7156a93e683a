// SPDX-License-Identifier: MIT
#pragma once

#include "SettingsViewModel.h"
#include "ToggleSwitch.h"

namespace abissora {

/// A switch bound to one setting: shows it as it is stored, stores it when the person switches.
class SettingsSwitch final : public ToggleSwitch
{
    Q_OBJECT

public:
    using Getter = bool (SettingsViewModel::*)() const;
    using Setter = void (SettingsViewModel::*)(bool);

    /// `settings` must outlive it.
    SettingsSwitch(const QString& text, SettingsViewModel& settings, Getter get, Setter set, QWidget* parent = nullptr);
};

} // namespace abissora
