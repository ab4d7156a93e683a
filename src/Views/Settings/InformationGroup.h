// SPDX-License-Identifier: MIT
#pragma once

#include "CoalescedUpdate.h"
#include "EquipmentTypeViewModel.h"
#include "ProgramFacts.h"
#include "SettingsGroupBox.h"

namespace abissora {

class Opener;
class SettingsInfoRow;

/// What the program says of itself, its credits and its website.
class InformationGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    /// All that it is given must outlive it.
    InformationGroup(const ProgramFacts& program, EquipmentTypeViewModel& types, Opener& opener,
                     QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    SettingsInfoRow* addRow(const QString& label);
    [[nodiscard]] QLayout* makeWebsiteLine(Opener& opener);
    void redraw();

    ProgramFacts m_program;
    EquipmentTypeViewModel& m_types;
    QList<SettingsInfoRow*> m_facts;
    SettingsInfoRow* m_available = nullptr;
    CoalescedUpdate m_update;
};

} // namespace abissora
