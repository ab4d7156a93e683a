// SPDX-License-Identifier: MIT
#pragma once

#include "DetailContent.h"
#include "MaintenanceDraft.h"

namespace abissora {

/// One item in full, with what can be done with it. Works on a copy of the item, writes every change through the
/// register and takes over whatever the register makes of the item. An item that the register no longer has stays as
/// it was.
class EquipmentDetail : public QObject
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it.
    EquipmentDetail(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                    MaintenanceDocumentStore& documents, IdGenerator& ids, const Almanac& almanac,
                    const Equipment& item);

    [[nodiscard]] const Equipment& equipment() const { return m_item; }
    /// Of this item or another one.
    void setEquipment(const Equipment& item);

    [[nodiscard]] DetailContent content() const { return DetailContent::of(m_item, m_types, m_almanac); }
    /// Newest first.
    [[nodiscard]] QList<MaintenanceRowContent> history() const;

    void toggleActive();
    void deleteEquipment();

    /// For a record of the history; for a new one when none is given or it is not there.
    [[nodiscard]] std::unique_ptr<MaintenanceDraft> draft(const std::optional<QUuid>& recordId = std::nullopt) const;
    [[nodiscard]] QString maintenanceDeleteAlertMessage(const QUuid& recordId) const;
    /// These three do nothing when the history has no such record.
    void deleteMaintenance(const QUuid& recordId);
    /// Lets the person pick a PDF; whatever comes of it stands in the slot.
    void uploadDocument(const QUuid& recordId, DocumentSlot slot);
    /// Deletes the file, to make way for another.
    void replaceDocument(const QUuid& recordId, DocumentSlot slot);
    /// Where the file lies that the slot names.
    [[nodiscard]] std::optional<QString> documentPath(const QUuid& recordId, DocumentSlot slot) const;

    [[nodiscard]] EquipmentViewModel& equipmentModel() const { return m_equipment; }
    [[nodiscard]] const EquipmentTypeViewModel& types() const { return m_types; }
    [[nodiscard]] const Almanac& almanac() const { return m_almanac; }

Q_SIGNALS:
    /// What is shown may be another.
    void changed();

private:
    void syncFromModel();
    void store();
    [[nodiscard]] std::optional<Maintenance> record(const QUuid& id) const;

    EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_types;
    MaintenanceDocumentStore& m_documents;
    IdGenerator& m_ids;
    Almanac m_almanac;
    Equipment m_item;
};

} // namespace abissora
