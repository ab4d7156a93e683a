// SPDX-License-Identifier: MIT
#pragma once

#include "DateField.h"
#include "Gui.h"
#include "MaintenanceFormView.h"
#include "RegisterFixture.h"

namespace abissora::test {

/// The form of a record over a window.
struct ShownMaintenanceForm
{
    explicit ShownMaintenanceForm(const std::optional<Maintenance>& editing = std::nullopt)
    {
        Equipment item = makeItem(1, u"Articolo"_s, EquipmentType::regulator, f.inDays(100));
        if (editing)
            item.maintenanceHistory = {*editing};
        id = item.id;
        f.equipment.addEquipment(item);
        below.resize(1280, 1300);
        below.show();
        open(editing);
    }

    void open(const std::optional<Maintenance>& editing)
    {
        form = std::make_unique<MaintenanceFormView>(f.draft(id, editing), f.opener, &below);
        form->open();
        settle();
    }
    template <typename Field>
    Field& field(const char* name)
    {
        return part<Field>(*form, QLatin1String(name));
    }
    void typeDate(const char* name, const QString& text)
    {
        auto& date = field<DateField>(name);
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, text);
        QTest::keyClick(&date, Qt::Key_Tab);
    }
    void save() { click(*form, u"primary"_s); }
    [[nodiscard]] QList<Maintenance> history() const { return f.equipment.equipment().last().maintenanceHistory; }

    RegisterFixture f;
    QUuid id;
    QWidget below;
    std::unique_ptr<MaintenanceFormView> form;
};

} // namespace abissora::test
