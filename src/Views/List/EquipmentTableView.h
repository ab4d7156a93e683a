// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTableDelegate.h"
#include "RowTable.h"

namespace abissora {

/// The register's table. The actions of a row open from its button, by right click, by
/// the Menu key or Shift+F10, and by Return or Space on its last cell.
///
/// Its columns together are as wide as its viewport, see TableColumns. The border of a column can be dragged; a double
/// click on it makes the column's width automatic again.
class EquipmentTableView : public RowTable
{
    Q_OBJECT

public:
    explicit EquipmentTableView(QWidget* parent = nullptr);

    [[nodiscard]] EquipmentTableModel& equipmentModel() { return m_model; }

    /// Replaces the rows, keeping the scroll position and the current row. The row of `selected` stays selected, and in
    /// sight where it was; one that is new or holds something else comes into sight. Emits nothing about it.
    void showEquipment(const EquipmentExcerpt& equipment, const EquipmentRowMaker& rows,
                       const std::optional<QUuid>& selected);
    /// Selects the item's row, or none; emits nothing.
    void showSelected(const std::optional<QUuid>& id);

    /// Of the columns that were dragged; 0 for the others, also for those that the list leaves out.
    [[nodiscard]] QList<int> ownColumnWidths() const;
    void setOwnColumnWidths(const QList<int>& widths);

Q_SIGNALS:
    /// The person selected another row, or none (-1).
    void rowSelected(int row);
    /// The person asked for the actions of a row, to be shown at this place on the screen.
    void actionsRequested(int row, QPoint globalPosition);
    /// The Delete key on a row.
    void deleteRequested(int row);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] bool isOnActionButton(const QModelIndex& index, QPoint position) const;
    [[nodiscard]] bool isInSight(int row) const;
    void requestActions(const QModelIndex& index);
    /// The keyboard goes on from the item, or from its row once it is gone.
    void keepPlace(const QUuid& id, int rowBefore, int column);
    void setHover(const QModelIndex& index, bool onActionButton);
    void adjustToText();
    void layOutColumns();
    void dragColumn(int column, int width);
    void showLayout(const TableColumns::Layout& layout);

    EquipmentTableModel m_model;
    EquipmentTableDelegate m_delegate;
    ColumnTexts m_columnTexts;
    TableColumns m_columns;
    QPersistentModelIndex m_hovered;
    bool m_silent = false;
    bool m_isLayingOut = false;
};

} // namespace abissora
