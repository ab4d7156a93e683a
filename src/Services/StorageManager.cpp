// SPDX-License-Identifier: MIT
#include "StorageManager.h"

#include "Literals.h"
#include "RecordJson.h"
#include "SampleEquipment.h"

namespace abissora {

StorageManager::StorageManager(PreferencesStore& userDefaults, Console& console, const Clock& clock, Calendar calendar,
                               IdGenerator& ids)
    : m_userDefaults(userDefaults)
    , m_console(console)
    , m_clock(clock)
    , m_calendar(std::move(calendar))
    , m_ids(ids)
{}

void StorageManager::saveEquipment(const QList<Equipment>& equipment)
{
    const auto fail = [this](const QString& reason) { m_console.print(u"Error saving equipment: "_s + reason); };
    const auto json = encode(equipment);
    if (!json)
        fail(json.error().description());
    else if (const auto stored = m_userDefaults.setData(equipmentKey, *json); !stored)
        fail(stored.error().reason);
}

QList<Equipment> StorageManager::loadEquipment()
{
    const auto stored = m_userDefaults.data(equipmentKey);
    if (!stored)
        return giveUpLoading(stored.error().reason);
    if (!*stored)
        return loadSampleEquipment();
    auto decoded = decodeEquipment(**stored);
    if (!decoded)
        return giveUpLoading(decoded.error().description());
    return std::move(*decoded);
}

QList<Equipment> StorageManager::giveUpLoading(const QString& reason)
{
    m_console.print(u"Error loading equipment: "_s + reason);
    if (const auto kept = m_userDefaults.preserveUnreadable(equipmentKey); !kept)
        m_console.print(u"Error saving equipment: "_s + kept.error().reason);
    return loadSampleEquipment();
}

QList<Equipment> StorageManager::loadSampleEquipment()
{
    return sampleEquipment(m_clock.now(), m_calendar, m_ids);
}

} // namespace abissora
