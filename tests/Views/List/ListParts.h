// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentListView.h"
#include "EquipmentTableView.h"
#include "Gui.h"
#include "RegisterFixture.h"

/// Finding and using the parts of the register's screen.
namespace abissora::test {

/// The register's screen in a window of its own, shown and active.
class ShownList final : public EquipmentListView
{
public:
    explicit ShownList(RegisterFixture& f)
        : EquipmentListView(f.equipment, f.types, f.almanac, f.console, f.ids)
    {
        resize(900, 600);
        activate(*this);
    }
};

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
