// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"

#include <QWidget>

class QSplitter;
class QStackedWidget;

namespace abissora {

class EquipmentListView;
class SegmentedControl;
class SidebarView;

/// The main window's content: the sidebar, and beside it the three tabs or the settings. Screens are created when they
/// are first shown.
class ContentView : public QWidget
{
    Q_OBJECT

public:
    enum Tab { ListTab, MaintenanceTab, StatisticsTab, TabCount };

    explicit ContentView(const AppContext& context, QWidget* parent = nullptr);

    [[nodiscard]] int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab);
    [[nodiscard]] const std::optional<Equipment>& selectedEquipment() const { return m_selectedEquipment; }
    void setSelectedEquipment(const std::optional<Equipment>& equipment);

    [[nodiscard]] EquipmentListView& list() { return *m_list; }
    [[nodiscard]] QSplitter& splitter() { return *m_splitter; }

    /// Shows the list and puts the cursor into its search field.
    void findInList();

Q_SIGNALS:
    void selectedTabChanged();
    void selectedEquipmentChanged();

private:
    [[nodiscard]] QWidget* makeTabArea();
    [[nodiscard]] QWidget* makeScreen(int tab);
    void showPage();
    void forgetDeletedSelection();

    AppContext m_context;
    int m_selectedTab = ListTab;
    std::optional<Equipment> m_selectedEquipment;

    QSplitter* m_splitter;
    SidebarView* m_sidebar;
    QStackedWidget* m_pages;
    SegmentedControl* m_tabs;
    QStackedWidget* m_screens;
    EquipmentListView* m_list;
    QWidget* m_tabArea;
    QWidget* m_settings = nullptr;
};

} // namespace abissora
