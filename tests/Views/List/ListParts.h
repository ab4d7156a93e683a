// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentListView.h"
#include "EquipmentTableView.h"
#include "Gui.h"
#include "Literals.h"

/// Finding and using the parts of the register's screen.
namespace abissora::test {

inline QStringList names(EquipmentListView& view)
{
    QStringList names;
    for (const Equipment& item : part<EquipmentTableView>(view, "equipmentTable").equipmentModel().equipment())
        names.append(item.name);
    return names;
}

inline QString cell(EquipmentListView& view, int row, int column)
{
    return part<EquipmentTableView>(view, "equipmentTable").model()->index(row, column).data().toString();
}

} // namespace abissora::test
