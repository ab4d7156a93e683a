// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "EquipmentFormState.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "IdGenerator.h"
#include "Sheet.h"

class QLabel;
class QLineEdit;

namespace abissora {

class DateField;
class FormRow;
class NotesField;
class ToggleSwitch;
class TypePicker;

/// What the sheets for a new and for an existing item share: groups, fields, the next service date that follows them,
/// and the check before saving.
class EquipmentForm : public Sheet
{
    Q_OBJECT

Q_SIGNALS:
    /// The register has taken the item over.
    void saved(const abissora::Equipment& equipment);

protected:
    enum class Purpose { Add, Edit };

    EquipmentForm(Purpose purpose, const QString& title, const EquipmentTypeViewModel& types, const Almanac& almanac,
                  const EquipmentFormState& initial, QWidget* parent);

    /// Called with a valid form; the sheet closes afterwards.
    virtual void save(const EquipmentFormState& state, Instant nextServiceDate) = 0;

private:
    void addGroups();
    void addFootnotes();
    void setState(const EquipmentFormState& state);
    void connectFields();

    [[nodiscard]] EquipmentFormState state() const;
    [[nodiscard]] QLineEdit* firstEmptyRequiredField() const;
    [[nodiscard]] DateField* firstInvalidDate() const;
    void followTypes();
    void refresh();
    void saveEquipment();
    [[nodiscard]] Instant nextServiceDate(const EquipmentFormState& entered) const;

    const EquipmentTypeViewModel& m_types;
    Almanac m_almanac;
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
    QObject m_listener; ///< hears the fields; goes before them, which tell something even when they go
};

/// "Nuova Attrezzatura": adds an item to the register.
class EquipmentFormView final : public EquipmentForm
{
    Q_OBJECT

public:
    /// Filled from another item where that is given. The state objects and the generator must outlive it.
    EquipmentFormView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types, const Almanac& almanac,
                      IdGenerator& ids, const std::optional<Equipment>& like = std::nullopt, QWidget* parent = nullptr);

protected:
    void save(const EquipmentFormState& state, Instant nextServiceDate) override;

private:
    EquipmentViewModel& m_equipment;
    IdGenerator& m_ids;
};

/// "Modifica Attrezzatura": edits a copy of an item and puts it in the item's place in the register.
class EditEquipmentView final : public EquipmentForm
{
    Q_OBJECT

public:
    /// The state objects must outlive it.
    EditEquipmentView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types, const Almanac& almanac,
                      const Equipment& item, QWidget* parent = nullptr);

protected:
    void save(const EquipmentFormState& state, Instant nextServiceDate) override;

private:
    EquipmentViewModel& m_equipment;
    Equipment m_item;
};

} // namespace abissora
