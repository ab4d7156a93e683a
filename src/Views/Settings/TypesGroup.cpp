// SPDX-License-Identifier: MIT
#include "TypesGroup.h"

#include "Buttons.h"
#include "Literals.h"

namespace abissora {

TypesGroup::TypesGroup(EquipmentTypeViewModel& types, QWidget* parent)
    : SettingsGroupBox(u"Tipologie Attrezzatura"_s, u"list.bullet"_s, parent)
    , m_types(types)
    , m_count(new InkLabel(TextStyle::Body, &Tokens::secondaryText))
    , m_update([this] { redraw(); })
{
    addText(u"Gestisci le tipologie di attrezzatura disponibili per la categorizzazione"_s);
    m_count->setObjectName(u"activeTypes"_s);
    auto* manage = new PlainButton(u"Gestisci Tipologie"_s);
    manage->setObjectName(u"manageTypes"_s);
    manage->setSymbol(u"pencil.circle"_s);
    addLine(m_count, manage);
    connect(manage, &QAbstractButton::clicked, this, &TypesGroup::manageRequested);
    connect(&types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
    redraw();
}

void TypesGroup::redraw()
{
    m_count->setText(QString::number(m_types.filteredTypes().size()) + u" tipologie attive"_s);
}

} // namespace abissora
