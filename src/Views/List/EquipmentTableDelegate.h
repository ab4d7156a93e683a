// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTableModel.h"
#include "TableColumns.h"

#include <QStyledItemDelegate>

namespace abissora {

/// Paints the register's cells: two-line texts, type picture, state dot, action button.
class EquipmentTableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit EquipmentTableDelegate(const EquipmentTableModel& model, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// Where the action button of a cell stands.
    [[nodiscard]] static QRect actionButton(const QRect& cell);

    /// In which form dates are shown and how many lines names have.
    void setLayout(const TableColumns::Layout& layout);
    /// The row under the pointer and the action button under it; -1 for none.
    void setHover(int row, bool onActionButton);
    /// Every row is as high as the lines of a name and its type with their air.
    [[nodiscard]] int rowHeight() const;

private:
    void paintBackground(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    const EquipmentTableModel& m_model;
    TableColumns::Layout m_layout;
    int m_hoveredRow = -1;
    bool m_actionButtonHovered = false;
};

} // namespace abissora
