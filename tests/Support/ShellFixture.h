// SPDX-License-Identifier: MIT
#pragma once

#include "EditEquipmentView.h"
#include "EquipmentDetailSheet.h"
#include "EquipmentDetailView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "MaintenanceOverviewView.h"
#include "ScreenFactory.h"
#include "ScreenFixture.h"
#include "SettingsView.h"
#include "SidebarView.h"
#include "StatisticsView.h"

namespace abissora::test {

/// A register with every screen of the main window over it.
class ShellFixture : public ScreenFixture, public ScreenFactory
{
public:
    using ScreenFixture::ScreenFixture;

    SidebarView* makeSidebar() override { return new SidebarView(equipment, types, console); }
    EquipmentListView* makeList() override { return new EquipmentListView(equipment, types, almanac, console, ids); }
    EquipmentDetailView* makeDetail(const Equipment& item) override { return new EquipmentDetailView(context, item); }
    QWidget* makeOverview() override
    {
        return new MaintenanceOverviewView(equipment, types, [this](const Equipment& item, QWidget* parent) {
            return new EquipmentDetailSheet(context, item, parent);
        });
    }
    QWidget* makeStatistics() override { return new StatisticsView(equipment, types); }
    QWidget* makeSettings() override
    {
        return new SettingsView(settings, types, updates, {info, product}, ids, opener);
    }
    EquipmentFormView* makeFormForNew(QWidget* over) override { return new EquipmentFormView(context, over); }
    EditEquipmentView* makeFormFor(const Equipment& item, QWidget* over) override
    {
        return new EditEquipmentView(context, item, over);
    }
};

} // namespace abissora::test
