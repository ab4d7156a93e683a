// SPDX-License-Identifier: MIT
#pragma once

#include "CoalescedUpdate.h"
#include "Console.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "SidebarDelegate.h"
#include "SidebarModel.h"

#include <QListView>

namespace abissora {

/// The sidebar drives the catalogue's filters and follows them.
class SidebarView : public QListView
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it.
    SidebarView(EquipmentViewModel& equipment, EquipmentTypeViewModel& types, Console& console,
                QWidget* parent = nullptr);

    /// The tag of the selected row; nothing before a row was ever selected.
    [[nodiscard]] const std::optional<QString>& selectedSidebarItem() const { return m_selectedSidebarItem; }
    /// Selecting another item than the selected one acts on tabs and filters.
    void setSelectedSidebarItem(const std::optional<QString>& tag);

    /// Wide enough for the fixed rows with a badge, and for a scroll bar beside them.
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void selectedSidebarItemChanged();
    /// The selection asks for a tab of the main window.
    void tabRequested(int tab);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void actOnSelection();
    void followFilter();
    void redraw();
    void showSelection();

    EquipmentViewModel& m_equipment;
    EquipmentTypeViewModel& m_types;
    Console& m_console;
    SidebarModel m_model;
    SidebarDelegate m_delegate;
    CoalescedUpdate m_update;
    std::optional<QString> m_selectedSidebarItem = sidebar::all;
    std::optional<QString> m_lastFilterTypeName;
    bool m_silent = false;
};

} // namespace abissora
