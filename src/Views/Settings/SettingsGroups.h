// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace abissora {

class EquipmentTypeViewModel;
class Opener;
class SettingsGroupBox;
class SettingsViewModel;
struct ProgramFacts;

// The groups of the settings. Those of preferences show them as they are stored and store every edit at once. What a
// group is given must outlive it.

/// How many types are in use, and the way to their management.
[[nodiscard]] SettingsGroupBox* makeTypesGroup(EquipmentTypeViewModel& types, const std::function<void()>& manage);
[[nodiscard]] SettingsGroupBox* makeNotificationsGroup(SettingsViewModel& settings);
[[nodiscard]] SettingsGroupBox* makeGeneralGroup(SettingsViewModel& settings);
[[nodiscard]] SettingsGroupBox* makeAppearanceGroup(SettingsViewModel& settings);
[[nodiscard]] SettingsGroupBox* makeHelpGroup(const std::function<void()>& open);
/// What the program says of itself, its credits and its website.
[[nodiscard]] SettingsGroupBox* makeInformationGroup(const ProgramFacts& program, EquipmentTypeViewModel& types,
                                                     Opener& opener);
[[nodiscard]] SettingsGroupBox* makeRestoreGroup(const std::function<void()>& reset);

} // namespace abissora
