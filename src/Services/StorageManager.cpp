// SPDX-License-Identifier: MIT
#include "StorageManager.h"

#include "Literals.h"
#include "RecordJson.h"
#include "Storable.h"

namespace abissora {

namespace {

/// The three items that a first start shows, built around `now`, with fresh ids.
QList<Equipment> sampleEquipment(Instant now, const Calendar& calendar, IdGenerator& ids)
{
    const auto years = [&](int count) { return calendar.addYears(now, count).value_or(now); };
    const auto months = [&](int count) { return calendar.addMonths(now, count).value_or(now); };
    constexpr std::chrono::seconds fifteenDays{1'296'000};

    Equipment regulator;
    regulator.id = ids.next();
    regulator.name = u"Erogatore Apeks XTX50"_s;
    regulator.type = EquipmentType::regulator;
    regulator.brand = u"Apeks"_s;
    regulator.model = u"XTX50"_s;
    regulator.serialNumber = u"AP123456"_s;
    regulator.purchaseDate = years(-2);
    regulator.lastServiceDate = years(-1);
    regulator.nextServiceDate = years(1);
    regulator.notes = u"Ottimo erogatore per acque fredde. Utilizzato per immersioni in Italia."_s;

    Equipment bcd;
    bcd.id = ids.next();
    bcd.name = u"GAV Scubapro Hydros"_s;
    bcd.type = EquipmentType::bcd;
    bcd.brand = u"Scubapro"_s;
    bcd.model = u"Hydros Pro"_s;
    bcd.serialNumber = u"SP789012"_s;
    bcd.purchaseDate = years(-1);
    bcd.lastServiceDate = months(-6);
    bcd.nextServiceDate = months(1);
    bcd.notes = u"GAV leggero e confortevole. Perfetto per viaggi."_s;

    Equipment computer;
    computer.id = ids.next();
    computer.name = u"Computer Suunto EON Core"_s;
    computer.type = EquipmentType::computer;
    computer.brand = u"Suunto"_s;
    computer.model = u"EON Core"_s;
    computer.serialNumber = u"SU456789"_s;
    computer.purchaseDate = years(-1);
    computer.lastServiceDate = months(-1);
    computer.nextServiceDate = now + fifteenDays;
    computer.notes = u"Computer subacqueo con display a colori."_s;

    return {storable(regulator), storable(bcd), storable(computer)};
}

} // namespace

StorageManager::StorageManager(PreferencesStore& userDefaults, Console& console, const Clock& clock, Calendar calendar,
                               IdGenerator& ids, Decode decode)
    : m_userDefaults(userDefaults)
    , m_console(console)
    , m_clock(clock)
    , m_calendar(std::move(calendar))
    , m_ids(ids)
    , m_decode(std::move(decode))
{}

void StorageManager::saveEquipment(const QList<Equipment>& equipment, Occasion occasion)
{
    const auto fail = [this](const QString& reason) { m_console.print(u"Error saving equipment: "_s + reason); };
    const auto json = m_encoder.encode(equipment);
    if (!json)
        fail(json.error().description());
    else if (const auto stored = m_userDefaults.setData(equipmentKey, *json, occasion); !stored)
        fail(stored.error().reason);
}

QList<Equipment> StorageManager::loadEquipment()
{
    m_hasLoadedStored = false;
    const auto stored = m_userDefaults.data(equipmentKey);
    if (!stored)
        return giveUpLoading(stored.error().reason);
    if (!*stored)
        return sampleEquipment(m_clock.now(), m_calendar, m_ids);
    auto decoded = m_decode(**stored);
    if (!decoded)
        return giveUpLoading(decoded.error().description());
    if (decoded->hasUnknownMembers)
        m_userDefaults.keepUnknownMembers(equipmentKey);
    m_hasLoadedStored = true;
    return std::move(decoded->records);
}

QList<Equipment> StorageManager::giveUpLoading(const QString& reason)
{
    m_console.print(u"Error loading equipment: "_s + reason);
    if (const auto kept = m_userDefaults.preserveUnreadable(equipmentKey); !kept)
        m_console.print(u"Error saving equipment: "_s + kept.error().reason);
    return sampleEquipment(m_clock.now(), m_calendar, m_ids);
}

} // namespace abissora
