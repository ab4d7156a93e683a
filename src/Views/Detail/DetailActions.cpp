// SPDX-License-Identifier: MIT
#include "DetailActions.h"

#include "Buttons.h"
#include "FlowLayout.h"
#include "Metrics.h"

namespace abissora {

DetailActions::DetailActions(QWidget* parent)
    : QWidget(parent)
    , m_addMaintenance(new PrimaryButton(QStringLiteral("Aggiungi Manutenzione")))
    , m_toggleActive(new LookButton(ButtonLook::Caution, {}, nullptr))
{
    auto* edit = new PlainButton(QStringLiteral("Modifica"));
    edit->setObjectName(QStringLiteral("editEquipment"));
    edit->setSymbol(QStringLiteral("pencil"));
    edit->setToolTip(QStringLiteral("Modifica l'attrezzatura"));
    m_addMaintenance->setObjectName(QStringLiteral("addMaintenance"));
    m_addMaintenance->setSymbol(QStringLiteral("wrench.fill"));
    m_addMaintenance->setToolTip(QStringLiteral("Aggiungi una nuova manutenzione"));
    m_toggleActive->setObjectName(QStringLiteral("toggleActive"));
    auto* remove = new DestructiveButton(QStringLiteral("Elimina"));
    remove->setObjectName(QStringLiteral("deleteEquipment"));
    remove->setToolTip(QStringLiteral("Elimina l'attrezzatura"));

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
    m_toggleActive->setText(active ? QStringLiteral("Disattiva") : QStringLiteral("Attiva"));
    m_toggleActive->setToolTip(active ? QStringLiteral("Disattiva l'attrezzatura")
                                      : QStringLiteral("Attiva l'attrezzatura"));
    setButtonLook(*m_toggleActive, active ? ButtonLook::Caution : ButtonLook::Positive);
}

} // namespace abissora
