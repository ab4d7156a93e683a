// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "VisibleUpdate.h"

#include <QDialog>
#include <QPointer>

namespace abissora {

class DueList;
class EmptyState;
class FigureGrid;
class ScreenPage;

/// How the register stands, and every item that needs service. Reads the register only while it is shown.
class MaintenanceOverviewView : public QWidget
{
    Q_OBJECT

public:
    /// Makes the detail screen of an item, to lie over the window of `parent`.
    using MakeDetail = std::function<QDialog*(const Equipment& equipment, QWidget* parent)>;

    /// Both catalogues must outlive it.
    MaintenanceOverviewView(const EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                            MakeDetail makeDetail, QWidget* parent = nullptr);

    /// The screen's own selection: the item whose detail screen lies over the window.
    [[nodiscard]] const std::optional<Equipment>& selectedEquipment() const { return m_selectedEquipment; }
    /// Opens the detail screen for the item; with nothing, or once the register has lost the item, closes it.
    void setSelectedEquipment(const std::optional<Equipment>& equipment);

private:
    void buildLayout();
    void redraw();
    void takeFocusFromList();
    void forgetDeletedSelection();

    const EquipmentViewModel& m_equipment;
    const EquipmentTypeViewModel& m_types;
    MakeDetail m_makeDetail;
    VisibleUpdate m_update;
    std::optional<Equipment> m_selectedEquipment;
    QPointer<QDialog> m_sheet;

    ScreenPage* m_page;
    FigureGrid* m_figures;
    QWidget* m_dueTitle;
    DueList* m_dueList;
    EmptyState* m_allInOrder;
};

} // namespace abissora
