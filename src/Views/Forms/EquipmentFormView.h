// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentForm.h"

namespace abissora {

/// "Nuova Attrezzatura": adds an item to the register.
class EquipmentFormView final : public EquipmentForm
{
    Q_OBJECT

public:
    explicit EquipmentFormView(const AppContext& context, QWidget* parent = nullptr);

protected:
    void save(const EquipmentFormState& state, Instant nextServiceDate) override;
};

} // namespace abissora
