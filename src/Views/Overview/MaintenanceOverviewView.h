// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "VisibleUpdate.h"

#include <QPointer>
#include <QWidget>

namespace abissora {

class DueList;
class EmptyState;
class EquipmentDetailSheet;
class ScreenPage;
class StatCard;

/// How the register stands, and every item that needs service. Reads the register only while it is shown.
class MaintenanceOverviewView : public QWidget
{
    Q_OBJECT

public:
    explicit MaintenanceOverviewView(const AppContext& context, QWidget* parent = nullptr);

    /// The screen's own selection: the item whose detail screen lies over the window.
    [[nodiscard]] const std::optional<Equipment>& selectedEquipment() const { return m_selectedEquipment; }
    /// Opens the detail screen for the item; with nothing, or once the register has lost the item, closes it.
    void setSelectedEquipment(const std::optional<Equipment>& equipment);

private:
    void buildLayout();
    void redraw();
    void forgetDeletedSelection();

    AppContext m_context;
    VisibleUpdate m_update;
    std::optional<Equipment> m_selectedEquipment;
    QPointer<EquipmentDetailSheet> m_sheet;

    ScreenPage* m_page;
    StatCard* m_total;
    StatCard* m_due;
    StatCard* m_expiring;
    StatCard* m_inOrder;
    QWidget* m_dueTitle;
    DueList* m_dueList;
    EmptyState* m_allInOrder;
};

} // namespace abissora
