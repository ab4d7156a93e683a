// SPDX-License-Identifier: MIT
#include "DetailActions.h"

#include "Buttons.h"
#include "FlowLayout.h"
#include "Literals.h"
#include "Metrics.h"

namespace abissora {

DetailActions::DetailActions(QWidget* parent)
    : QWidget(parent)
    , m_addMaintenance(new PrimaryButton(u"Aggiungi Manutenzione"_s, u"wrench.fill"_s))
    , m_toggleActive(new LookButton(ButtonLook::Caution))
{
    auto* edit = new PlainButton(u"Modifica"_s, u"pencil"_s);
    edit->setObjectName(u"editEquipment"_s);
    edit->setToolTip(u"Modifica l'attrezzatura"_s);
    m_addMaintenance->setObjectName(u"addMaintenance"_s);
    m_addMaintenance->setToolTip(u"Aggiungi una nuova manutenzione"_s);
    m_toggleActive->setObjectName(u"toggleActive"_s);
    auto* remove = new DestructiveButton(u"Elimina"_s);
    remove->setObjectName(u"deleteEquipment"_s);
    remove->setToolTip(u"Elimina l'attrezzatura"_s);

    auto* layout = new FlowLayout(metrics::spaceS, metrics::spaceS);
    setLayout(layout);
    for (QWidget* button : std::initializer_list<QWidget*>{edit, m_addMaintenance, m_toggleActive, remove})
        layout->addWidget(button);
    setActive(true);

    connect(edit, &QAbstractButton::clicked, this, &DetailActions::editClicked);
    connect(m_addMaintenance, &QAbstractButton::clicked, this, &DetailActions::addMaintenanceClicked);
    connect(m_toggleActive, &QAbstractButton::clicked, this, &DetailActions::toggleActiveClicked);
    connect(remove, &QAbstractButton::clicked, this, &DetailActions::deleteClicked);
}

void DetailActions::focusAddMaintenance()
{
    m_addMaintenance->setFocus(Qt::OtherFocusReason);
}

void DetailActions::setActive(bool active)
{
    m_toggleActive->setText(active ? u"Disattiva"_s : u"Attiva"_s);
    m_toggleActive->setToolTip(active ? u"Disattiva l'attrezzatura"_s : u"Attiva l'attrezzatura"_s);
    setButtonLook(*m_toggleActive, active ? ButtonLook::Caution : ButtonLook::Positive);
}

} // namespace abissora
