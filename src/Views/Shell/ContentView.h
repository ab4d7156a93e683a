// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"
#include "ListPage.h"
#include "ScreenFactory.h"

#include <QPointer>
#include <QWidget>

class QStackedWidget;

namespace abissora {

class SegmentedControl;
class SheetWindow;

/// The main window's content: the sidebar, and beside it the three tabs or the settings. Screens are created when they
/// are first shown.
class ContentView : public QWidget
{
    Q_OBJECT

public:
    enum Tab { ListTab, MaintenanceTab, StatisticsTab, TabCount };

    /// Both must outlive it.
    ContentView(ScreenFactory& factory, EquipmentViewModel& equipment, QWidget* parent = nullptr);

    [[nodiscard]] int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab);
    /// From the settings too, keeping the filter by type.
    void showTab(int tab);
    /// The tab so many places further on, round from the last one to the first.
    void stepTab(int places);
    void showSettings();
    [[nodiscard]] bool isShowingSettings() const;

    [[nodiscard]] ListPage& listPage() { return *m_listPage; }
    [[nodiscard]] EquipmentListView& list() { return m_listPage->list(); }
    [[nodiscard]] const std::optional<Equipment>& selectedEquipment() const { return m_listPage->selectedEquipment(); }
    void setSelectedEquipment(const std::optional<Equipment>& equipment)
    {
        m_listPage->setSelectedEquipment(equipment);
    }
    /// What commands on an item act on: ListPage::item() while the list is shown.
    [[nodiscard]] std::optional<Equipment> item() const;
    [[nodiscard]] QList<QSplitter*> splitters() const { return {m_splitter, m_listPage}; }

    /// Shows the list and puts the cursor into its search field.
    void findInList();

    /// Opens the form for a new item over the window; does nothing while a form is open, as editEquipment().
    void addEquipment();
    [[nodiscard]] bool showingAddSheet() const;
    /// Opens the form for a new item, filled from this one.
    void duplicateEquipment(const Equipment& equipment);
    /// Selects the item and opens the form for it.
    void editEquipment(const Equipment& equipment);
    /// Opens the way to paper over the window, with the selected item; does nothing while a form is open.
    void openPrint();
    /// Opens the way back to an earlier state over the window; does nothing while a form is open.
    void openRestore();

Q_SIGNALS:
    void selectedTabChanged();
    /// Another tab, or the settings, or back.
    void pageChanged();
    void itemChanged();

private:
    [[nodiscard]] QWidget* makeTabArea();
    void leaveSettings(int tab);
    void showPage();
    void showScreen();
    void openFormForNew(const std::optional<Equipment>& like);
    [[nodiscard]] bool isFormOpen() const;
    void openForm(SheetWindow* form);

    ScreenFactory& m_factory;
    EquipmentViewModel& m_equipment;
    int m_selectedTab = ListTab;

    QSplitter* m_splitter;
    SidebarView* m_sidebar;
    QStackedWidget* m_pages;
    SegmentedControl* m_tabs;
    QStackedWidget* m_screens;
    ListPage* m_listPage;
    QWidget* m_tabArea;
    QWidget* m_settings = nullptr;
    QPointer<SheetWindow> m_form;
};

} // namespace abissora
