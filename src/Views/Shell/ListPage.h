// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"

#include <QSplitter>

namespace abissora {

class EquipmentDetailView;
class EquipmentListView;
class ScreenFactory;

/// The register's list and, at its right, the selected item in detail. A search or a filter that hides the selected
/// item's row hides the item too, until the row is back.
class ListPage : public QSplitter
{
    Q_OBJECT

public:
    /// Both must outlive it.
    ListPage(ScreenFactory& factory, EquipmentViewModel& equipment, QWidget* parent = nullptr);

    [[nodiscard]] EquipmentListView& list() { return *m_list; }

    [[nodiscard]] const std::optional<Equipment>& selectedEquipment() const { return m_selectedEquipment; }
    /// Shows the item beside the list, though it may have no row there.
    void setSelectedEquipment(const std::optional<Equipment>& equipment);

    /// What commands act on: the item in detail, else the one at whose row the keyboard stands; as the register has it.
    [[nodiscard]] std::optional<Equipment> item() const;

    // Commands; without an item they do nothing.
    void showDetails();
    void addMaintenance();
    void toggleActive();
    void confirmDeletion();

Q_SIGNALS:
    void selectedEquipmentChanged();
    /// The commands act on another item, or on the same one that has changed.
    void itemChanged();

protected:
    /// Escape closes the detail.
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void boundWidths();
    void followRegister();
    void setFilteredOut(bool filteredOut);
    void showDetail();
    void placeDetail();

    ScreenFactory& m_factory;
    EquipmentViewModel& m_equipment;
    std::optional<Equipment> m_selectedEquipment;
    bool m_isFilteredOut = false; ///< the selected item
    EquipmentListView* m_list;
    QWidget* m_detailPane;
    EquipmentDetailView* m_detail = nullptr;
};

} // namespace abissora
