// SPDX-License-Identifier: MIT
#pragma once

#include "DetailContent.h"
#include "MaintenanceDraft.h"

#include <QMap>
#include <functional>

namespace abissora {

/// One item in full, with what can be done with it. Works on a copy of the item, writes every change through the
/// register and takes over whatever the register makes of the item. An item that the register no longer has stays as
/// it was. The copies of documents that it waits for when it goes away are cancelled.
class EquipmentDetail : public QObject
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it.
    EquipmentDetail(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                    MaintenanceDocumentStore& documents, IdGenerator& ids, const Almanac& almanac,
                    const Equipment& item);
    ~EquipmentDetail() override;

    /// Asked for each draft.
    void setCurrencySymbol(std::function<QString()> currencySymbol) { m_currencySymbol = std::move(currencySymbol); }

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
    /// Lets the person pick a PDF; whatever comes of it stands in the slot, be another item on show by then. Once the
    /// register has that, the file that stood there is deleted. Does nothing while one is being copied for the slot.
    QCoro::Task<> uploadDocument(QUuid recordId, DocumentSlot slot);
    /// The same with a file that the person chose already, be it no PDF; the slot stays as it was where none is stored.
    QCoro::Task<> attachDocument(QUuid recordId, DocumentSlot slot, QString path);
    /// Empties the slot, then deletes its file, to make way for another.
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
    QCoro::Task<> takeDocument(QUuid recordId, DocumentSlot slot, std::optional<QString> path);
    void putDocument(const QUuid& itemId, const QUuid& recordId, DocumentSlot slot, const std::optional<QString>& name);
    [[nodiscard]] std::optional<Maintenance> record(const QUuid& id) const;

    EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_types;
    MaintenanceDocumentStore& m_documents;
    IdGenerator& m_ids;
    Almanac m_almanac;
    Equipment m_item;
    std::function<QString()> m_currencySymbol;
    QMap<std::pair<QUuid, DocumentSlot>, std::shared_ptr<WorkProgress>> m_copies; ///< those under way
};

} // namespace abissora
