// SPDX-License-Identifier: MIT
#include "EquipmentDetail.h"

#include "Literals.h"

#include <QPointer>

namespace abissora {

EquipmentDetail::EquipmentDetail(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                                 MaintenanceDocumentStore& documents, IdGenerator& ids, const Almanac& almanac,
                                 const Equipment& item)
    : m_equipment(equipment)
    , m_types(types)
    , m_documents(documents)
    , m_ids(ids)
    , m_almanac(almanac)
    , m_item(item)
{
    connect(&m_equipment, &EquipmentViewModel::equipmentChanged, this, &EquipmentDetail::syncFromModel);
    connect(&m_types, &EquipmentTypeViewModel::typesChanged, this, &EquipmentDetail::changed);
}

EquipmentDetail::~EquipmentDetail()
{
    for (const auto& copy : std::as_const(m_copies))
        copy->cancel();
}

void EquipmentDetail::setEquipment(const Equipment& item)
{
    m_item = item;
    syncFromModel();
}

void EquipmentDetail::syncFromModel()
{
    const QList<Equipment>& items = m_equipment.equipment();
    const auto stored = std::ranges::find(items, m_item.id, &Equipment::id);
    if (stored != items.end())
        m_item = *stored;
    Q_EMIT changed();
}

QList<MaintenanceRowContent> EquipmentDetail::history() const
{
    QList<MaintenanceRowContent> rows;
    for (const Maintenance& record : newestFirst(m_item.maintenanceHistory))
        rows.append(MaintenanceRowContent::of(record, m_almanac.dates, m_documents));
    return rows;
}

void EquipmentDetail::toggleActive()
{
    m_item.isActive = !m_item.isActive;
    store();
}

void EquipmentDetail::deleteEquipment()
{
    m_equipment.deleteEquipment(m_item);
}

std::unique_ptr<MaintenanceDraft> EquipmentDetail::draft(const std::optional<QUuid>& recordId) const
{
    auto draft = std::make_unique<MaintenanceDraft>(m_equipment, m_types, m_documents, m_ids, m_almanac, m_item.id,
                                                    recordId ? record(*recordId) : std::nullopt);
    if (m_currencySymbol)
        draft->setCurrencySymbol(m_currencySymbol());
    return draft;
}

QString EquipmentDetail::maintenanceDeleteAlertMessage(const QUuid& recordId) const
{
    const auto found = record(recordId);
    if (!found)
        return u"Eliminare questa manutenzione?"_s;
    return u"Eliminare la manutenzione del %1?\nAnche eventuali documenti allegati verranno rimossi."_s.arg(
        m_almanac.dates.abbreviatedDate(found->date));
}

void EquipmentDetail::deleteMaintenance(const QUuid& recordId)
{
    const auto deleted = record(recordId);
    if (!deleted)
        return;
    // The register works out the item's service dates anew and the copy takes them over before it is stored itself.
    m_equipment.deleteMaintenance(m_item.id, deleted->id);
    m_item.maintenanceHistory.removeIf([&deleted](const Maintenance& kept) { return kept.id == deleted->id; });
    store();
}

QCoro::Task<> EquipmentDetail::uploadDocument(QUuid recordId, DocumentSlot slot)
{
    return takeDocument(recordId, slot, std::nullopt);
}

QCoro::Task<> EquipmentDetail::attachDocument(QUuid recordId, DocumentSlot slot, QString path)
{
    return takeDocument(recordId, slot, std::move(path));
}

QCoro::Task<> EquipmentDetail::takeDocument(QUuid recordId, DocumentSlot slot, std::optional<QString> path)
{
    const std::pair place(recordId, slot);
    if (const auto copy = m_copies.value(place); !record(recordId) || (copy && !copy->isCancelled()))
        co_return;
    const auto copy = std::make_shared<WorkProgress>();
    m_copies.insert(place, copy);
    const QUuid itemId = m_item.id;
    // The screen may be gone by then: the copy was cancelled and nothing is left of it.
    const QPointer<EquipmentDetail> alive(this);
    std::optional<QString> stored;
    if (path)
        stored = co_await m_documents.store(*path, copy);
    else
        stored = co_await m_documents.pickPDFAndStore(std::nullopt, copy);
    // One that was cancelled may end after its successor.
    if (!alive || m_copies.value(place) != copy)
        co_return;
    m_copies.remove(place);
    if (stored || !path)
        putDocument(itemId, recordId, slot, stored);
}

void EquipmentDetail::putDocument(const QUuid& itemId, const QUuid& recordId, DocumentSlot slot,
                                  const std::optional<QString>& name)
{
    const QList<Equipment>& items = m_equipment.equipment();
    const auto found = std::ranges::find(items, itemId, &Equipment::id);
    Equipment item = found != items.end() ? *found : Equipment();
    std::optional<Maintenance> changed = recordOf(item.maintenanceHistory, recordId);
    if (!changed) {
        if (name)
            m_documents.deleteDocument(*name);
        return;
    }
    const std::optional<QString> replaced = std::exchange(documentName(*changed, slot), name);
    replaceRecord(item.maintenanceHistory, *changed);
    m_equipment.updateEquipment(item);
    const bool isNamed = changed->receiptFileName == replaced || changed->certificateFileName == replaced;
    if (name && replaced && !isNamed)
        m_documents.deleteDocument(*replaced);
}

void EquipmentDetail::replaceDocument(const QUuid& recordId, DocumentSlot slot)
{
    std::optional<Maintenance> changed = record(recordId);
    const std::optional<QString> name = changed ? documentName(*changed, slot) : std::nullopt;
    if (!name)
        return;
    forgetDocument(*changed, *name);
    replaceRecord(m_item.maintenanceHistory, *changed);
    store();
    m_documents.deleteDocument(*name);
}

std::optional<QString> EquipmentDetail::documentPath(const QUuid& recordId, DocumentSlot slot) const
{
    const auto found = record(recordId);
    return found ? m_documents.url(documentName(*found, slot).value_or(QString())) : std::nullopt;
}

void EquipmentDetail::store()
{
    m_equipment.updateEquipment(m_item);
    Q_EMIT changed();
}

std::optional<Maintenance> EquipmentDetail::record(const QUuid& id) const
{
    return recordOf(m_item.maintenanceHistory, id);
}

} // namespace abissora
