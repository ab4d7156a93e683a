// SPDX-License-Identifier: MIT
#include "EditEquipmentView.h"

#include "Literals.h"

namespace abissora {

EditEquipmentView::EditEquipmentView(const AppContext& context, const Equipment& equipment, QWidget* parent)
    : EquipmentForm(Purpose::Edit, u"Modifica Attrezzatura"_s, context, EquipmentFormState::of(equipment), parent)
    , m_equipment(equipment)
{}

void EditEquipmentView::save(const EquipmentFormState& state, Instant nextServiceDate)
{
    m_equipment = state.appliedTo(m_equipment, nextServiceDate);
    context().equipment.updateEquipment(m_equipment);
    Q_EMIT saved(m_equipment);
}

} // namespace abissora
