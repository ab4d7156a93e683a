// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "AttachmentDraft.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"

namespace abissora {

/// What the maintenance form holds, as it was entered; the documents apart.
struct MaintenanceFormState
{
    Instant date{};
    MaintenanceType type = MaintenanceType::annual;
    QString description;
    QString performedBy;
    double cost = 0;
    bool isCompleted = true;
    Instant nextServiceDate{};
    QString notes;

    /// A record older than the field counts as completed.
    [[nodiscard]] static MaintenanceFormState of(const Maintenance& record);

    /// There is a description, be it of white space.
    [[nodiscard]] bool isFormValid() const { return !description.isEmpty(); }
    /// `record` with what the form holds, every text as it stands; its id and documents stay.
    [[nodiscard]] Maintenance appliedTo(Maintenance record) const;

    friend bool operator==(const MaintenanceFormState&, const MaintenanceFormState&) = default;
};

/// A record of an item while the form enters or edits it.
class MaintenanceDraft
{
public:
    /// For a new record when none is given. Everything passed by reference must outlive it.
    MaintenanceDraft(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                     MaintenanceDocumentStore& documents, IdGenerator& ids, const Almanac& almanac,
                     const QUuid& equipmentId, const std::optional<Maintenance>& editing = std::nullopt);

    [[nodiscard]] bool isNew() const { return m_isNew; }
    /// What the form starts with: the record, or one of today whose next service follows from the item's interval.
    [[nodiscard]] MaintenanceFormState initial() const;
    [[nodiscard]] AttachmentDraft& attachments() { return m_attachments; }
    [[nodiscard]] const Calendar& calendar() const { return m_almanac.calendar; }
    /// What may stand beside a cost that is entered; empty until it is told.
    [[nodiscard]] const QString& currencySymbol() const { return m_currencySymbol; }
    void setCurrencySymbol(const QString& symbol) { m_currencySymbol = symbol; }

    /// The days between two services of the item, as they are now.
    [[nodiscard]] std::int64_t intervalDays() const;
    /// So many days after the date; the date itself when the calendar does not reach that far.
    [[nodiscard]] Instant nextServiceDate(Instant date) const;

    /// Whether the next service is as many days after the record's date: otherwise somebody set it by hand.
    [[nodiscard]] bool nextDateFollows() const;

    /// Hands the record to the register, then settles the files. A register that has no such record, as its item is
    /// gone, takes none: what was attached goes again.
    void save(const MaintenanceFormState& entered);

private:
    [[nodiscard]] bool isStored(const QUuid& recordId) const;

    EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_types;
    IdGenerator& m_ids;
    Almanac m_almanac;
    QUuid m_equipmentId;
    QString m_currencySymbol;
    bool m_isNew;
    Maintenance m_record;
    AttachmentDraft m_attachments;
};

} // namespace abissora
