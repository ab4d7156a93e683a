// SPDX-License-Identifier: MIT
#pragma once

#include "ContentView.h"
#include "Ended.h"
#include "EquipmentDetailView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "EquipmentTableView.h"
#include "Gui.h"
#include "LookedAtStates.h"
#include "MainWindow.h"
#include "MaintenanceOverviewView.h"
#include "PrintView.h"
#include "RegisterFixture.h"
#include "RestoreView.h"
#include "ScreenFactory.h"
#include "SettingsView.h"
#include "SidebarView.h"
#include "StatisticsView.h"
#include "ViewSheet.h"

namespace abissora::test {

/// A register with every screen of the main window over it.
class ShellFixture : public RegisterFixture, public ScreenFactory
{
public:
    using RegisterFixture::RegisterFixture;

    SidebarView* makeSidebar() override { return new SidebarView(equipment, types, console); }
    EquipmentListView* makeList() override { return new EquipmentListView(equipment, types, almanac, console, ids); }
    EquipmentDetailView* makeDetail(const Equipment& item) override
    {
        return new EquipmentDetailView(detail(item), opener);
    }
    QWidget* makeOverview() override
    {
        return new MaintenanceOverviewView(equipment, types, [this](const Equipment& item, QWidget* parent) {
            return EquipmentDetailView::makeSheet(detail(item), opener, parent);
        });
    }
    QWidget* makeStatistics() override { return new StatisticsView(equipment, types); }
    QWidget* makeSettings() override
    {
        return new SettingsView(settings, types, updates, {info, product}, ids, opener);
    }
    EquipmentFormView* makeFormForNew(const std::optional<Equipment>& like, QWidget* over) override
    {
        return new EquipmentFormView(equipment, types, almanac, ids, like, over);
    }
    EditEquipmentView* makeFormFor(const Equipment& item, QWidget* over) override
    {
        return new EditEquipmentView(equipment, types, almanac, item, over);
    }
    ViewSheet* makePrint(const std::optional<Equipment>& item, QWidget* over) override
    {
        return PrintView::makeSheet({equipment, types, almanac, panel, work, print}, item, over);
    }
    ViewSheet* makeRestore(QWidget* over) override
    {
        return RestoreView::makeSheet(
            {generations, archive, equipment, types, settings, work, almanac}, lookedAt,
            [this](const EarlierState& state, const std::shared_ptr<WorkProgress>& progress) {
                return restore(state, progress);
            },
            over);
    }
    bool hasStateToLookAt() const override { return abissora::hasStateToLookAt(generations.list(), lookedAt); }

    /// What takes the place of the system's print dialog.
    PrintView::Print print = [](const PrintedPaper&, const QPageSize&, QWidget*, const std::function<void(bool)>&) {};
    /// What takes the place of a restoration.
    RestoreView::Restore restore = [](const EarlierState&, const std::shared_ptr<WorkProgress>&) { return ended({}); };
    LookedAtStates lookedAt{directories.windowStateFile()};
};

/// The main window, shown and active.
struct ShownWindow
{
    explicit ShownWindow(ShellFixture& f, std::optional<ContentView::Tab> tab = std::nullopt, QSize size = {})
        : window(f, f.equipment, f.directories.windowStateFile())
    {
        if (tab)
            window.content().setSelectedTab(*tab);
        if (size.isValid())
            window.resize(size);
        activate(window);
    }

    [[nodiscard]] SidebarView& sidebar() { return part<SidebarView>(window, u"sidebar"_s); }
    [[nodiscard]] EquipmentTableView& table() { return existing<EquipmentTableView>(window, u"equipmentTable"_s); }

    MainWindow window;
};

} // namespace abissora::test
