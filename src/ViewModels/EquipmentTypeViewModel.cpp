// SPDX-License-Identifier: MIT
#include "EquipmentTypeViewModel.h"

#include "AvailableColors.h"
#include "DivingIcons.h"
#include "IconMigration.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TextSearch.h"

namespace abissora {

namespace {

struct DefaultType
{
    QStringView name;
    DivingIcons icon{};
    AvailableColors color{};
    std::int64_t serviceIntervalDays = 365;
};

constexpr std::array standardTypes{
    DefaultType{u"Erogatore", DivingIcons::regulator, AvailableColors::blue},
    DefaultType{u"GAV", DivingIcons::bcd, AvailableColors::orange},
    DefaultType{u"Bombola", DivingIcons::tank, AvailableColors::gray},
    DefaultType{u"Maschera", DivingIcons::mask, AvailableColors::purple},
    DefaultType{u"Pinne", DivingIcons::fins, AvailableColors::green},
    DefaultType{u"Muta", DivingIcons::wetsuit, AvailableColors::red},
    DefaultType{u"Muta Stagna", DivingIcons::drysuit, AvailableColors::indigo},
    DefaultType{u"Computer Subacqueo", DivingIcons::diveComputer, AvailableColors::cyan, 730},
    DefaultType{u"Torcia", DivingIcons::diveLight, AvailableColors::yellow},
    DefaultType{u"Bussola", DivingIcons::compass, AvailableColors::teal},
    DefaultType{u"Profondimetro", DivingIcons::depthGauge, AvailableColors::mint},
    DefaultType{u"Manometro", DivingIcons::pressureGauge, AvailableColors::gray},
    DefaultType{u"Cintura Zavorra", DivingIcons::weightBelt, AvailableColors::brown},
    DefaultType{u"Kit Pronto Soccorso", DivingIcons::firstAid, AvailableColors::red},
    DefaultType{u"Ossigeno", DivingIcons::oxygen, AvailableColors::green},
    DefaultType{u"Altro", DivingIcons::other, AvailableColors::gray},
};

const QString loadingFailed = u"Error loading types: "_s;
const QString savingFailed = u"Error saving types: "_s;

} // namespace

EquipmentTypeViewModel::EquipmentTypeViewModel(PreferencesStore& preferences, const SymbolLibrary& symbols,
                                               Console& console, IdGenerator& ids, QObject* parent)
    : StateObject(parent)
    , m_preferences(preferences)
    , m_symbols(symbols)
    , m_console(console)
    , m_ids(ids)
{
    loadTypes();
}

void EquipmentTypeViewModel::loadTypes()
{
    if (loadStoredTypes())
        migrateIconsIfNeeded();
    else
        resetToDefaults();
}

bool EquipmentTypeViewModel::loadStoredTypes()
{
    const auto giveUp = [this](const QString& reason) {
        report(loadingFailed, reason);
        if (const auto kept = m_preferences.preserveUnreadable(typesKey); !kept)
            report(savingFailed, kept.error().reason);
        return false;
    };
    const auto stored = m_preferences.data(typesKey);
    if (!stored)
        return giveUp(stored.error().reason);
    if (!*stored)
        return false;
    const auto decoded = readTypes(**stored);
    if (!decoded)
        return giveUp(decoded.error().description());
    if (decoded->hasUnknownMembers)
        m_preferences.keepUnknownMembers(typesKey);
    setTypes(decoded->records);
    return true;
}

void EquipmentTypeViewModel::saveTypes(Occasion occasion)
{
    const auto json = encode(m_types);
    if (!json)
        report(savingFailed, json.error().description());
    else if (const auto stored = m_preferences.setData(typesKey, *json, occasion); !stored)
        report(savingFailed, stored.error().reason);
}

void EquipmentTypeViewModel::setTypes(const QList<EquipmentTypeModel>& types)
{
    m_types = types;
    announce(&EquipmentTypeViewModel::typesChanged);
}

void EquipmentTypeViewModel::setSelectedType(const std::optional<EquipmentTypeModel>& type)
{
    m_selectedType = type;
    announce(&EquipmentTypeViewModel::selectedTypeChanged);
}

void EquipmentTypeViewModel::setSearchText(const QString& text)
{
    m_searchText = text;
    announce(&EquipmentTypeViewModel::searchTextChanged);
}

void EquipmentTypeViewModel::setAddingType(bool adding)
{
    m_isAddingType = adding;
    announce(&EquipmentTypeViewModel::isAddingTypeChanged);
}

QList<EquipmentTypeModel> EquipmentTypeViewModel::filteredTypes() const
{
    const TextSearch search(m_searchText);
    QList<EquipmentTypeModel> filtered;
    std::ranges::copy_if(m_types, std::back_inserter(filtered), [&search](const EquipmentTypeModel& type) {
        return type.isActive && search.foundIn(type.name);
    });
    const auto codePoints = [](const EquipmentTypeModel& type) { return type.name.toUcs4(); };
    std::ranges::stable_sort(filtered, {}, codePoints);
    return filtered;
}

std::optional<EquipmentTypeModel> EquipmentTypeViewModel::getTypeByName(const QString& name) const
{
    return activeTypeNamed(name, m_types);
}

std::optional<EquipmentType> EquipmentTypeViewModel::getEquipmentType(const QString& from)
{
    return fromRawValue<EquipmentType>(from);
}

void EquipmentTypeViewModel::addType(const EquipmentTypeModel& type)
{
    m_types.append(type);
    saveTypes();
    announce(&EquipmentTypeViewModel::typesChanged);
}

void EquipmentTypeViewModel::importTypes(const QList<EquipmentTypeModel>& types)
{
    m_types += types;
    saveTypes(Occasion::import);
    announce(&EquipmentTypeViewModel::typesChanged);
}

void EquipmentTypeViewModel::updateType(const EquipmentTypeModel& type)
{
    const qsizetype index = indexOf(type.id);
    if (index < 0)
        return;
    m_types[index] = type;
    saveTypes();
    announce(&EquipmentTypeViewModel::typesChanged);
}

void EquipmentTypeViewModel::deleteType(const EquipmentTypeModel& type)
{
    const qsizetype index = indexOf(type.id);
    if (index < 0)
        return;
    m_types.removeAt(index);
    saveTypes(Occasion::deletedType);
    announce(&EquipmentTypeViewModel::typesChanged);
}

QList<EquipmentTypeModel> EquipmentTypeViewModel::getDefaultTypes() const
{
    QList<EquipmentTypeModel> types;
    for (const DefaultType& row : standardTypes)
        types.append({m_ids.next(), row.name.toString(), rawValue(row.icon), caseName(row.color),
                      row.serviceIntervalDays, true});
    return types;
}

void EquipmentTypeViewModel::resetToDefaults()
{
    m_types = getDefaultTypes();
    saveTypes(Occasion::typesReset);
    storeIconVersion();
    announce(&EquipmentTypeViewModel::typesChanged);
}

void EquipmentTypeViewModel::migrateIconsIfNeeded()
{
    if (m_preferences.integer(iconVersionKey).value_or(0) >= currentIconVersion)
        return;
    if (migrateIcons(m_types, getDefaultTypes(), m_symbols)) {
        saveTypes(Occasion::iconsMigrated);
        announce(&EquipmentTypeViewModel::typesChanged);
    }
    storeIconVersion();
}

void EquipmentTypeViewModel::storeIconVersion()
{
    if (const auto stored = m_preferences.setInteger(iconVersionKey, currentIconVersion); !stored)
        report(savingFailed, stored.error().reason);
}

qsizetype EquipmentTypeViewModel::indexOf(const QUuid& id) const
{
    const auto found = std::ranges::find(m_types, id, &EquipmentTypeModel::id);
    return found == m_types.end() ? -1 : found - m_types.begin();
}

void EquipmentTypeViewModel::report(const QString& prefix, const QString& reason) const
{
    m_console.print(prefix + reason);
}

} // namespace abissora
