// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "EquipmentFormState.h"
#include "Sheet.h"

class QLabel;
class QLineEdit;

namespace abissora {

class DateField;
class FormRow;
class GroupBox;
class NotesField;
class ToggleSwitch;
class TypePicker;

/// What the sheets for a new and for an existing item share: groups, fields, the next service date that follows them,
/// and the check before saving.
class EquipmentForm : public Sheet
{
    Q_OBJECT

protected:
    enum class Purpose { Add, Edit };

    EquipmentForm(Purpose purpose, const QString& title, const AppContext& context, const EquipmentFormState& initial,
                  QWidget* parent);

    [[nodiscard]] const AppContext& context() const { return m_context; }
    /// Called with a valid form; the sheet closes afterwards.
    virtual void save(const EquipmentFormState& state, Instant nextServiceDate) = 0;

private:
    [[nodiscard]] GroupBox* makeGeneralGroup();
    [[nodiscard]] GroupBox* makeDetailsGroup();
    [[nodiscard]] GroupBox* makeDatesGroup();
    [[nodiscard]] GroupBox* makeStateGroup();
    [[nodiscard]] GroupBox* makeNotesGroup();
    void addFootnotes();
    void setState(const EquipmentFormState& state);
    void connectFields();

    [[nodiscard]] EquipmentFormState state() const;
    [[nodiscard]] QLineEdit* firstEmptyRequiredField() const;
    [[nodiscard]] DateField* firstInvalidDate() const;
    void followTypes();
    void refresh();
    void saveEquipment();
    void showAlert(const QString& message);

    AppContext m_context;
    Purpose m_purpose;
    QString m_selectedTypeName;

    QLineEdit* m_name;
    TypePicker* m_type;
    QLabel* m_interval;
    FormRow* m_intervalRow;
    QLineEdit* m_brand;
    QLineEdit* m_model;
    QLineEdit* m_serialNumber;
    DateField* m_purchaseDate;
    DateField* m_lastServiceDate;
    QLabel* m_nextServiceDate;
    ToggleSwitch* m_isActive;
    NotesField* m_notes;
    QLabel* m_incomplete;
};

} // namespace abissora
