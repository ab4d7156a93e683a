// SPDX-License-Identifier: MIT
#include "SettingsSwitch.h"

namespace abissora {

SettingsSwitch::SettingsSwitch(const QString& text, SettingsViewModel& settings, Getter get, Setter set,
                               QWidget* parent)
    : ToggleSwitch(text, parent)
{
    setChecked((settings.*get)());
    // Not clicked, which leaves out a screen reader's toggling.
    connect(this, &QAbstractButton::toggled, &settings, [&settings, get, set](bool on) {
        if (on != (settings.*get)())
            (settings.*set)(on);
    });
    connect(&settings, &SettingsViewModel::changed, this, [this, &settings, get] { setChecked((settings.*get)()); });
}

} // namespace abissora
