// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "EquipmentTypeViewModel.h"
#include "PreferencesStore.h"
#include "SettingsViewModel.h"
#include "SymbolIcon.h"

namespace abissora {

class ApplicationDirectories;

/// For the person, where nothing was stored yet.
[[nodiscard]] QString noRegister(const ApplicationDirectories& directories);

/// A register as it lies on the disk, for what is done without a window. Nothing of it is ever written, also while
/// another process works on it: defaults and migrated icons stand in memory only.
class StoredRegister
{
public:
    explicit StoredRegister(const ApplicationDirectories& directories);
    Q_DISABLE_COPY_MOVE(StoredRegister)

    /// The stored items; or a sentence for the person where there are none or where they cannot be read as a whole.
    [[nodiscard]] const tl::expected<QList<Equipment>, QString>& equipment() const { return m_equipment; }
    [[nodiscard]] const EquipmentTypeViewModel& types() const { return m_types; }
    [[nodiscard]] const SettingsViewModel& settings() const { return m_settings; }
    [[nodiscard]] const Almanac& almanac() const { return m_almanac; }

private:
    class Silence final : public Console
    {
    public:
        void print(const QString& /*text*/) override {}
    };
    class NothingWritten final : public StateKeeper
    {
    public:
        [[nodiscard]] IoResult<void> beforeWriting(const QString& key, Occasion occasion) override;
        [[nodiscard]] IoResult<void> keepUnreadable(const QString& key) override;
    };

    SystemClock m_clock;
    Almanac m_almanac;
    Silence m_console;
    NothingWritten m_keeper;
    RandomIdGenerator m_ids;
    ResourceSymbolLibrary m_symbols;
    PreferencesStore m_preferences;
    EquipmentTypeViewModel m_types;
    SettingsViewModel m_settings;
    tl::expected<QList<Equipment>, QString> m_equipment;
};

} // namespace abissora
