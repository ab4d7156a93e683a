// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"
#include "ScreenFactory.h"

#include <QPointer>
#include <QWidget>

class QSplitter;
class QStackedWidget;

namespace abissora {

class SegmentedControl;
class SheetWindow;

/// The main window's content: the sidebar, and beside it the three tabs or the settings; the selected item stands in
/// detail at the right of the list. Screens are created when they are first shown.
class ContentView : public QWidget
{
    Q_OBJECT

public:
    enum Tab { ListTab, MaintenanceTab, StatisticsTab, TabCount };

    /// Both must outlive it.
    ContentView(ScreenFactory& factory, EquipmentViewModel& equipment, QWidget* parent = nullptr);

    [[nodiscard]] int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab);
    [[nodiscard]] const std::optional<Equipment>& selectedEquipment() const { return m_selectedEquipment; }
    void setSelectedEquipment(const std::optional<Equipment>& equipment);

    [[nodiscard]] EquipmentListView& list() { return *m_list; }
    [[nodiscard]] QList<QSplitter*> splitters() const { return {m_splitter, m_listSplitter}; }

    /// Shows the list and puts the cursor into its search field.
    void findInList();

    /// Opens the form for a new item over the window; does nothing while a form is open, as editEquipment().
    void addEquipment();
    [[nodiscard]] bool showingAddSheet() const;
    /// Selects the item and opens the form for it.
    void editEquipment(const Equipment& equipment);
    /// Opens the way back to an earlier state over the window; does nothing while a form is open.
    void openRestore();

Q_SIGNALS:
    void selectedTabChanged();
    void selectedEquipmentChanged();

private:
    [[nodiscard]] QWidget* makeTabArea();
    [[nodiscard]] QWidget* makeListArea();
    void showPage();
    void showDetail();
    void forgetDeletedSelection();
    [[nodiscard]] bool isFormOpen() const;
    void openForm(SheetWindow* form);

    ScreenFactory& m_factory;
    EquipmentViewModel& m_equipment;
    int m_selectedTab = ListTab;
    std::optional<Equipment> m_selectedEquipment;

    QSplitter* m_splitter;
    QSplitter* m_listSplitter;
    SidebarView* m_sidebar;
    QStackedWidget* m_pages;
    SegmentedControl* m_tabs;
    QStackedWidget* m_screens;
    EquipmentListView* m_list;
    QWidget* m_detailPane;
    EquipmentDetailView* m_detail = nullptr;
    QWidget* m_tabArea;
    QWidget* m_settings = nullptr;
    QPointer<SheetWindow> m_form;
};

} // namespace abissora
