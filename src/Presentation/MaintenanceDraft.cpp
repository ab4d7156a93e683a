// SPDX-License-Identifier: MIT
#include "MaintenanceDraft.h"

#include "ServiceInterval.h"

namespace abissora {

MaintenanceFormState MaintenanceFormState::of(const Maintenance& record)
{
    return {
        .date = record.date,
        .type = record.type,
        .description = record.description,
        .performedBy = record.performedBy,
        .cost = record.cost,
        .isCompleted = record.isCompleted.value_or(true),
        .nextServiceDate = record.nextServiceDate,
        .notes = record.notes,
    };
}

Maintenance MaintenanceFormState::appliedTo(Maintenance record) const
{
    record.date = date;
    record.type = type;
    record.description = description;
    record.performedBy = performedBy;
    record.cost = cost;
    record.isCompleted = isCompleted;
    record.nextServiceDate = nextServiceDate;
    record.notes = notes;
    return record;
}

MaintenanceDraft::MaintenanceDraft(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                                   MaintenanceDocumentStore& documents, IdGenerator& ids, const Almanac& almanac,
                                   const QUuid& equipmentId, const std::optional<Maintenance>& editing)
    : m_equipment(equipment)
    , m_types(types)
    , m_ids(ids)
    , m_almanac(almanac)
    , m_equipmentId(equipmentId)
    , m_isNew(!editing)
    , m_record(editing.value_or(Maintenance()))
    , m_attachments(documents, m_record)
{}

MaintenanceFormState MaintenanceDraft::initial() const
{
    MaintenanceFormState state = MaintenanceFormState::of(m_record);
    if (m_isNew) {
        state.date = m_almanac.now();
        state.nextServiceDate = nextServiceDate(state.date);
    }
    return state;
}

std::int64_t MaintenanceDraft::intervalDays() const
{
    return serviceInterval::ofItem(m_equipmentId, m_equipment.equipment(), m_types.types());
}

Instant MaintenanceDraft::nextServiceDate(Instant date) const
{
    return m_almanac.calendar.addDays(date, intervalDays()).value_or(date);
}

bool MaintenanceDraft::nextDateFollows() const
{
    const MaintenanceFormState state = initial();
    const Calendar& calendar = m_almanac.calendar;
    return calendar.local(state.nextServiceDate).date() == calendar.local(nextServiceDate(state.date)).date();
}

void MaintenanceDraft::save(const MaintenanceFormState& entered)
{
    m_record = m_attachments.appliedTo(entered.appliedTo(m_record));
    if (m_isNew) {
        m_record.id = m_ids.next();
        m_equipment.addMaintenance(m_equipmentId, m_record);
    } else {
        m_equipment.updateMaintenance(m_equipmentId, m_record);
    }
    if (isStored(m_record.id))
        m_attachments.commit();
    else
        m_attachments.discard();
}

bool MaintenanceDraft::isStored(const QUuid& recordId) const
{
    const QList<Equipment>& items = m_equipment.equipment();
    const auto item = std::ranges::find(items, m_equipmentId, &Equipment::id);
    return item != items.end() && recordOf(item->maintenanceHistory, recordId);
}

} // namespace abissora
