// SPDX-License-Identifier: MIT
#pragma once

#include "CoalescedUpdate.h"
#include "EquipmentTypeViewModel.h"
#include "SettingsGroupBox.h"

namespace abissora {

class PlainButton;

/// How many types are in use, and the way to their management.
class TypesGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    /// `types` must outlive it.
    explicit TypesGroup(EquipmentTypeViewModel& types, QWidget* parent = nullptr);

Q_SIGNALS:
    void manageRequested();

private:
    void redraw();

    EquipmentTypeViewModel& m_types;
    InkLabel* m_count;
    CoalescedUpdate m_update;
};

} // namespace abissora
