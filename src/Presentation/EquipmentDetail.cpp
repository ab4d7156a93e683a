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
    return std::make_unique<MaintenanceDraft>(m_equipment, m_types, m_documents, m_ids, m_almanac, m_item.id,
                                              recordId ? record(*recordId) : std::nullopt);
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

void EquipmentDetail::uploadDocument(const QUuid& recordId, DocumentSlot slot)
{
    const auto before = record(recordId);
    if (!before)
        return;
    // The panel runs the event loop: the screen and the record may be gone when it closes.
    MaintenanceDocumentStore& documents = m_documents;
    const QPointer<EquipmentDetail> alive(this);
    const auto picked = documents.pickPDFAndStore(documentName(*before, slot));
    std::optional<Maintenance> changed = alive ? record(before->id) : std::nullopt;
    if (changed) {
        documentName(*changed, slot) = picked;
        replaceRecord(m_item.maintenanceHistory, *changed);
        store();
    } else if (picked) {
        documents.deleteDocument(*picked);
    }
}

void EquipmentDetail::replaceDocument(const QUuid& recordId, DocumentSlot slot)
{
    std::optional<Maintenance> changed = record(recordId);
    const std::optional<QString> name = changed ? documentName(*changed, slot) : std::nullopt;
    if (!name)
        return;
    m_documents.deleteDocument(*name);
    forgetDocument(*changed, *name);
    replaceRecord(m_item.maintenanceHistory, *changed);
    store();
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
