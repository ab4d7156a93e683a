// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Clock.h"
#include "Console.h"
#include "EquipmentEncoder.h"
#include "IdGenerator.h"
#include "Literals.h"
#include "PreferencesStore.h"
#include "StateFiles.h"

namespace abissora {

/// Keeps the whole register under one key of the preferences store. Failures go to the console only.
class StorageManager
{
public:
    static inline const QString equipmentKey = registerKey;

    /// How stored bytes are decoded: as readEquipment() does.
    using Decode = std::function<tl::expected<Decoded<Equipment>, JsonError>(const QByteArray&)>;

    /// Everything passed by reference must outlive it.
    StorageManager(PreferencesStore& userDefaults, Console& console, const Clock& clock, Calendar calendar,
                   IdGenerator& ids, Decode decode = readEquipment);

    /// Replaces the stored list. After a failure the stored list is what it was, and the new one is pending in the
    /// preferences store. `occasion` tells what the new list lacks.
    void saveEquipment(const QList<Equipment>& equipment, Occasion occasion = Occasion::change);

    /// The stored list; the sample list, which is not written back, when nothing is stored or it cannot be read. A copy
    /// of stored bytes that cannot be decoded is kept before anything overwrites them.
    [[nodiscard]] QList<Equipment> loadEquipment();
    /// Whether the list that was loaded is the stored one.
    [[nodiscard]] bool hasLoadedStored() const { return m_hasLoadedStored; }

private:
    [[nodiscard]] QList<Equipment> giveUpLoading(const QString& reason);

    PreferencesStore& m_userDefaults;
    Console& m_console;
    const Clock& m_clock;
    Calendar m_calendar;
    IdGenerator& m_ids;
    Decode m_decode;
    EquipmentEncoder m_encoder;
    bool m_hasLoadedStored = false;
};

} // namespace abissora
