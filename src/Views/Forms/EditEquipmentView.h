// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentForm.h"

namespace abissora {

/// "Modifica Attrezzatura": edits a copy of an item and puts it in the item's place in the register.
class EditEquipmentView final : public EquipmentForm
{
    Q_OBJECT

public:
    EditEquipmentView(const AppContext& context, const Equipment& equipment, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The register has taken the item over.
    void saved(const abissora::Equipment& equipment);

protected:
    void save(const EquipmentFormState& state, Instant nextServiceDate) override;

private:
    Equipment m_equipment;
};

} // namespace abissora
