// SPDX-License-Identifier: MIT
#include "EquipmentFormView.h"

#include "Literals.h"

namespace abissora {

namespace {

EquipmentFormState blankForm(Instant now)
{
    EquipmentFormState state;
    state.purchaseDate = now;
    state.lastServiceDate = now;
    return state;
}

} // namespace

EquipmentFormView::EquipmentFormView(const AppContext& context, QWidget* parent)
    : EquipmentForm(Purpose::Add, u"Nuova Attrezzatura"_s, context, blankForm(context.clock.now()), parent)
{}

void EquipmentFormView::save(const EquipmentFormState& state, Instant nextServiceDate)
{
    Equipment item;
    item.id = context().ids.next();
    context().equipment.addEquipment(state.appliedTo(item, nextServiceDate));
}

} // namespace abissora
