// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "Sheet.h"

class QComboBox;
class QLineEdit;

namespace abissora {

class CheckedField;
class CostField;
class DateField;
class DocumentField;
class NotesField;
class ToggleSwitch;

/// Enters a new maintenance record of an item, or edits one. The next service date follows the maintenance date until
/// it is changed by hand.
class MaintenanceFormView : public Sheet
{
    Q_OBJECT

public:
    MaintenanceFormView(const AppContext& context, const QUuid& equipmentId,
                        const std::optional<Maintenance>& editingMaintenance, QWidget* parent = nullptr);

    /// The days between two services of the item.
    [[nodiscard]] std::int64_t equipmentIntervalDays() const;
    void updateNextServiceDate();
    /// Does nothing while the record lacks its description; takes the person to a date or a cost that is none.
    void save();

    void reject() override;

private:
    void buildBody();
    [[nodiscard]] QWidget* makeDetails();
    [[nodiscard]] QWidget* makeAdditional();
    [[nodiscard]] QWidget* makeOutcome();
    [[nodiscard]] QWidget* makeNextService();
    [[nodiscard]] QWidget* makeNotes();
    void connectFields();
    void showRecord();
    [[nodiscard]] CheckedField* firstInvalidField() const;
    [[nodiscard]] Maintenance record();

    AppContext m_context;
    QUuid m_equipmentId;
    bool m_isEditing;
    Maintenance m_original;
    bool m_autoUpdateNextDate = true;

    DateField* m_date;
    QComboBox* m_type;
    QLineEdit* m_description;
    QLineEdit* m_performedBy;
    CostField* m_cost;
    ToggleSwitch* m_completed;
    DocumentField* m_receipt;
    DocumentField* m_certificate;
    DateField* m_next;
    NotesField* m_notes;
};

} // namespace abissora
