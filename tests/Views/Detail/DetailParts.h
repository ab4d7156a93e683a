// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentDetailView.h"
#include "Gui.h"
#include "MaintenanceRow.h"
#include "RegisterFixture.h"

/// The detail screen of one item, and what its tests ask of it.
namespace abissora::test {

/// One item with the given history, on show.
struct ShownDetail
{
    explicit ShownDetail(const QList<Maintenance>& history = {}, int days = 100)
        : item(makeItem(1, u"Erogatore di riserva"_s, EquipmentType::regulator, {}))
    {
        item.nextServiceDate = f.inDays(days);
        item.maintenanceHistory = history;
        f.equipment.addEquipment(item);
        f.takeLog();
        view = std::make_unique<EquipmentDetailView>(f.detail(item), f.opener);
        view->resize(385, 1400);
        activate(*view);
    }

    [[nodiscard]] Equipment stored() const
    {
        for (const Equipment& candidate : f.equipment.equipment()) {
            if (candidate.id == item.id)
                return candidate;
        }
        return {};
    }
    [[nodiscard]] QStringList descriptions() const
    {
        QStringList texts;
        for (int i = 0; isShown(*view, u"maintenance%1"_s.arg(i)); ++i)
            texts.append(textOf(row(i), u"maintenanceDescription"_s));
        return texts;
    }
    [[nodiscard]] MaintenanceRow& row(int index) const
    {
        return part<MaintenanceRow>(*view, u"maintenance%1"_s.arg(index));
    }

    RegisterFixture f;
    Equipment item;
    std::unique_ptr<EquipmentDetailView> view;
};

inline QList<Maintenance> threeRecords()
{
    return {makeRecord(1, 20, u"metà"_s), makeRecord(2, 40, u"prima"_s), makeRecord(3, 5, u"ultima"_s)};
}

} // namespace abissora::test
