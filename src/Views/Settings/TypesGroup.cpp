// SPDX-License-Identifier: MIT
#include "TypesGroup.h"

#include "Buttons.h"

namespace abissora {

TypesGroup::TypesGroup(EquipmentTypeViewModel& types, QWidget* parent)
    : SettingsGroupBox(QStringLiteral("Tipologie Attrezzatura"), QStringLiteral("list.bullet"), parent)
    , m_types(types)
    , m_count(new InkLabel(TextStyle::Body, &Tokens::secondaryText))
    , m_update([this] { redraw(); })
{
    addText(QStringLiteral("Gestisci le tipologie di attrezzatura disponibili per la categorizzazione"));
    m_count->setObjectName(QStringLiteral("activeTypes"));
    auto* manage = new PlainButton(QStringLiteral("Gestisci Tipologie"));
    manage->setObjectName(QStringLiteral("manageTypes"));
    manage->setSymbol(QStringLiteral("pencil.circle"));
    addLine(m_count, manage);
    connect(manage, &QAbstractButton::clicked, this, &TypesGroup::manageRequested);
    connect(&types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
    redraw();
}

void TypesGroup::redraw()
{
    m_count->setText(QString::number(m_types.filteredTypes().size()) + QStringLiteral(" tipologie attive"));
}

} // namespace abissora
