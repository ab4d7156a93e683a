// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceDraft.h"
#include "Sheet.h"

class QComboBox;
class QLineEdit;

namespace abissora {

class CheckedField;
class CostField;
class DateField;
class InkLabel;
class NotesField;
class Opener;
class ToggleSwitch;

/// Enters a new maintenance record of an item, or edits one. The next service date follows the maintenance date, as
/// it is typed, until it is changed by hand, be it earlier.
class MaintenanceFormView : public Sheet
{
    Q_OBJECT

public:
    /// `opener` must outlive it.
    MaintenanceFormView(std::unique_ptr<MaintenanceDraft> draft, Opener& opener, QWidget* parent = nullptr);

    /// Does nothing while the record lacks its description or its cost is none; takes the person to a date that is
    /// none. A document that is being copied is waited for: should none come of it, the form stays.
    void save();

    void reject() override;

private:
    void buildBody();
    [[nodiscard]] QWidget* makeDetails();
    [[nodiscard]] QWidget* makeDocument(DocumentSlot slot);
    QCoro::Task<> attach(DocumentSlot slot, std::optional<QString> path = std::nullopt);
    [[nodiscard]] QWidget* makeNextService();
    void connectFields();
    void showState();
    void refresh();
    [[nodiscard]] MaintenanceFormState state() const;
    [[nodiscard]] CheckedField* firstInvalidField() const;

    std::unique_ptr<MaintenanceDraft> m_draft;
    Opener& m_opener;
    MaintenanceFormState m_initial;
    bool m_autoUpdateNextDate;
    bool m_savesOnceCopied = false;

    DateField* m_date;
    QComboBox* m_type;
    QLineEdit* m_description;
    QLineEdit* m_performedBy;
    CostField* m_cost;
    ToggleSwitch* m_completed;
    DateField* m_next;
    NotesField* m_notes;
    InkLabel* m_noCost;
    QObject m_listener; ///< hears the fields; goes before them, which tell something even when they go
};

} // namespace abissora
