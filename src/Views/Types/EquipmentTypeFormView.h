// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeFormState.h"
#include "Sheet.h"

class QLineEdit;

namespace abissora {

class ColorChoice;
class EquipmentTypeViewModel;
class GroupBox;
class IconPicker;
class IdGenerator;
class InkLabel;
class Stepper;

/// "Nuova Tipologia", or "Modifica Tipologia" when given a type: adds it to the catalogue or puts it in its place
/// there.
class EquipmentTypeFormView final : public Sheet
{
    Q_OBJECT

public:
    /// Both references must outlive it.
    EquipmentTypeFormView(EquipmentTypeViewModel& types, IdGenerator& ids,
                          const std::optional<EquipmentTypeModel>& editingType, QWidget* parent = nullptr);

private:
    class Preview;

    [[nodiscard]] GroupBox* makeBasics();
    void makeColumns();
    void setState(const EquipmentTypeFormState& state);
    void connectFields();

    [[nodiscard]] EquipmentTypeFormState state() const;
    void refresh();
    void save();

    EquipmentTypeViewModel& m_types;
    IdGenerator& m_ids;
    std::optional<EquipmentTypeModel> m_editingType;

    QLineEdit* m_name;
    InkLabel* m_invalidName;
    Stepper* m_interval;
    ColorChoice* m_color;
    IconPicker* m_icons;
    Preview* m_preview;
    QObject m_listener; ///< hears the fields; goes before them, which tell something even when they go
};

} // namespace abissora
