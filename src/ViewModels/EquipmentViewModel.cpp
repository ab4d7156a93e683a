// SPDX-License-Identifier: MIT
#include "EquipmentViewModel.h"

#include "Literals.h"
#include "Storable.h"

namespace abissora {

namespace {

/// What replacing an item takes away.
Occasion lossBetween(const Equipment& before, const Equipment& after)
{
    QSet<QUuid> ids;
    for (const Maintenance& record : after.maintenanceHistory)
        ids.insert(record.id);
    const auto isLost = [&ids](const Maintenance& record) { return !ids.contains(record.id); };
    if (std::ranges::any_of(before.maintenanceHistory, isLost))
        return Occasion::deletedRecord;
    return documentNames({after}).contains(documentNames({before})) ? Occasion::change : Occasion::deletedDocument;
}

void recomputeServiceDates(Equipment& item)
{
    const auto& history = item.maintenanceHistory;
    const auto latest = std::ranges::max_element(history, {}, &Maintenance::date);
    if (latest == history.cend())
        return;
    item.lastServiceDate = latest->date;
    item.nextServiceDate = latest->nextServiceDate;
}

} // namespace

void addImported(QList<Equipment>& equipment, const ImportedRecords& imported)
{
    equipment.reserve(equipment.size() + imported.items.size());
    for (const Equipment& item : imported.items)
        equipment.append(storable(item));
    QHash<QUuid, QList<Maintenance>> records;
    for (const auto& [item, record] : imported.records)
        records[item].append(storable(record));
    if (records.isEmpty())
        return;
    for (Equipment& item : equipment) {
        if (!records.contains(item.id))
            continue;
        item.maintenanceHistory += records.take(item.id); // the first of that id, as everywhere
        recomputeServiceDates(item);
    }
}

EquipmentViewModel::EquipmentViewModel(StorageManager storageManager, MaintenanceDocumentStore& documents,
                                       Console& console, const Clock& clock, Calendar calendar, QObject* parent)
    : StateObject(parent)
    , m_storageManager(std::move(storageManager))
    , m_documents(documents)
    , m_console(console)
    , m_clock(clock)
    , m_calendar(std::move(calendar))
{
    loadEquipment();
}

void EquipmentViewModel::loadEquipment()
{
    m_equipment = m_storageManager.loadEquipment();
    // Samples say nothing about the documents of a register that could not be read.
    if (m_storageManager.hasLoadedStored())
        m_documents.settle(documentNames(m_equipment));
    QString log = u"📦 Caricati %1 equipaggiamenti"_s.arg(m_equipment.size());
    for (const Equipment& item : std::as_const(m_equipment)) {
        log += u"\n   📌 "_s + item.name + u": type='"_s + rawValue(item.type) + u"', customType='"_s +
               orNil(item.customTypeName) + u'\'';
    }
    m_console.print(log);
    announce(&EquipmentViewModel::equipmentChanged);
}

void EquipmentViewModel::setSelectedEquipment(const std::optional<Equipment>& equipment)
{
    m_selectedEquipment = equipment;
    announce(&EquipmentViewModel::selectedEquipmentChanged);
}

void EquipmentViewModel::setAddingEquipment(bool adding)
{
    m_isAddingEquipment = adding;
    announce(&EquipmentViewModel::isAddingEquipmentChanged);
}

void EquipmentViewModel::addEquipment(const Equipment& equipment)
{
    const QString name = equipment.name; // the argument may be an element of the list
    m_equipment.append(storable(equipment));
    saveAndNotify();
    m_console.print(u"➕ Aggiunto equipaggiamento: "_s + name);
}

void EquipmentViewModel::updateEquipment(const Equipment& equipment)
{
    Equipment* item = find(equipment.id);
    if (!item)
        return;
    const QString name = equipment.name;
    const Equipment before = std::exchange(*item, storable(equipment));
    saveAndNotify(lossBetween(before, *item));
    m_console.print(u"✏️ Aggiornato equipaggiamento: "_s + name);
}

void EquipmentViewModel::deleteEquipment(const Equipment& equipment)
{
    const Equipment* item = find(equipment.id);
    if (!item)
        return;
    const Equipment deleted = *item;
    const QString name = deleted.name;
    m_equipment.removeAt(item - m_equipment.constData());
    m_storageManager.saveEquipment(m_equipment, Occasion::deletedItem);
    for (const Maintenance& maintenance : deleted.maintenanceHistory)
        deleteDocuments(maintenance);
    announce(&EquipmentViewModel::equipmentChanged);
    m_console.print(u"🗑️ Eliminato equipaggiamento: "_s + name);
}

void EquipmentViewModel::importRecords(const ImportedRecords& imported, Occasion occasion)
{
    addImported(m_equipment, imported);
    saveAndNotify(occasion);
    QString log = u"📥 Importati %1 equipaggiamenti e %2 manutenzioni"_s.arg(QString::number(imported.items.size()),
                                                                            QString::number(imported.records.size()));
    for (const Equipment& item : imported.items)
        log += u"\n➕ Aggiunto equipaggiamento: "_s + item.name;
    m_console.print(log);
}

void EquipmentViewModel::addMaintenance(const QUuid& to, const Maintenance& maintenance)
{
    Equipment* item = find(to);
    if (!item)
        return;
    const Maintenance& added = item->maintenanceHistory.emplaceBack(storable(maintenance));
    item->lastServiceDate = added.date;
    item->nextServiceDate = added.nextServiceDate;
    saveAndNotify();
}

void EquipmentViewModel::updateMaintenance(const QUuid& to, const Maintenance& maintenance)
{
    Equipment* item = find(to);
    if (!item)
        return;
    const Equipment before = *item;
    auto& history = item->maintenanceHistory;
    const auto record = std::ranges::find(history, maintenance.id, &Maintenance::id);
    if (record == history.end())
        return;
    *record = storable(maintenance);
    recomputeServiceDates(*item);
    saveAndNotify(lossBetween(before, *item));
}

void EquipmentViewModel::deleteMaintenance(const QUuid& from, const QUuid& maintenanceId)
{
    Equipment* item = find(from);
    if (!item)
        return;
    auto& history = item->maintenanceHistory;
    // By value: the argument may be the id of the very record that is moved over.
    const auto hasId = [maintenanceId](const Maintenance& m) { return m.id == maintenanceId; };
    const auto record = std::ranges::find_if(std::as_const(history), hasId);
    const std::optional<Maintenance> deleted = record == history.cend() ? std::nullopt : std::optional(*record);
    history.removeIf(hasId);
    recomputeServiceDates(*item);
    m_storageManager.saveEquipment(m_equipment, deleted ? Occasion::deletedRecord : Occasion::change);
    // The stored register names them no more.
    if (deleted)
        deleteDocuments(*deleted);
    announce(&EquipmentViewModel::equipmentChanged);
}

void EquipmentViewModel::setSearchText(const QString& text)
{
    m_filter.searchText = text;
    announce(&EquipmentViewModel::searchTextChanged);
}

void EquipmentViewModel::setSelectedType(std::optional<EquipmentType> type)
{
    m_filter.selectedType = type;
    announce(&EquipmentViewModel::selectedTypeChanged);
}

void EquipmentViewModel::setFilterTypeName(const std::optional<QString>& name)
{
    const auto old = std::exchange(m_filter.filterTypeName, name);
    m_console.print(u"📌 filterTypeName cambiato da "_s + orNil(old) + u" a "_s + orNil(m_filter.filterTypeName));
    announce(&EquipmentViewModel::filterTypeNameChanged);
}

void EquipmentViewModel::resetFilters()
{
    m_console.print(u"🔄 Reset filtri"_s);
    setSearchText({});
    setSelectedType(std::nullopt);
    setFilterTypeName(std::nullopt);
    Q_EMIT changed();
}

void EquipmentViewModel::filterByTypeName(const QString& name)
{
    m_console.print(u"🎯 FILTRO PER NOME: '"_s + name + u'\'');
    setSearchText({});
    setSelectedType(std::nullopt);
    setFilterTypeName(name);
    m_console.print(u"   ✅ filterTypeName impostato a: '"_s + orNil(filterTypeName()) + u'\'');
}

EquipmentExcerpt EquipmentViewModel::filteredEquipment() const
{
    const auto [equipment, log] = apply(m_filter, m_equipment);
    m_console.print(log);
    return equipment;
}

QList<const Equipment*> EquipmentViewModel::overdueEquipment() const
{
    const Instant now = m_clock.now();
    QList<const Equipment*> overdue;
    for (const Equipment& item : m_equipment) {
        if (isDueSoon(item, now, m_calendar))
            overdue.append(&item);
    }
    return overdue;
}

RegisterSummary EquipmentViewModel::summary() const
{
    return RegisterSummary::of(m_equipment, m_clock.now(), m_calendar);
}

void EquipmentViewModel::refreshDates()
{
    announce(&EquipmentViewModel::equipmentChanged);
}

Equipment* EquipmentViewModel::find(const QUuid& id)
{
    const auto found = std::ranges::find(std::as_const(m_equipment), id, &Equipment::id);
    return found == m_equipment.cend() ? nullptr : &m_equipment[found - m_equipment.cbegin()];
}

void EquipmentViewModel::deleteDocuments(const Maintenance& maintenance) const
{
    for (const auto& name : {maintenance.receiptFileName, maintenance.certificateFileName}) {
        if (name)
            m_documents.deleteDocument(*name);
    }
}

void EquipmentViewModel::saveAndNotify(Occasion occasion)
{
    m_storageManager.saveEquipment(m_equipment, occasion);
    announce(&EquipmentViewModel::equipmentChanged);
}

} // namespace abissora
