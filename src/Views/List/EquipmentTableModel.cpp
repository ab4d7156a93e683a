// SPDX-License-Identifier: MIT
#include "EquipmentTableModel.h"

#include "Labels.h"
#include "Literals.h"

namespace abissora {

void EquipmentTableModel::setEquipment(const EquipmentExcerpt& equipment, EquipmentRowMaker rows)
{
    beginResetModel();
    m_equipment = equipment;
    m_rows.emplace(std::move(rows));
    endResetModel();
}

EquipmentRow EquipmentTableModel::row(int row) const
{
    return m_rows->row(m_equipment.at(row));
}

int EquipmentTableModel::rowOf(const QUuid& id) const
{
    const auto found = std::ranges::find(m_equipment, id, &Equipment::id);
    return found == m_equipment.end() ? -1 : static_cast<int>(std::distance(m_equipment.begin(), found));
}

std::optional<Equipment> EquipmentTableModel::itemOf(const QUuid& id) const
{
    const int row = rowOf(id);
    return row < 0 ? std::nullopt : std::optional(m_equipment.at(row));
}

int EquipmentTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_equipment.size());
}

int EquipmentTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EquipmentTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const auto column = static_cast<EquipmentRow::Column>(index.column());
    if (role == Qt::DisplayRole)
        return row(index.row()).text(column);
    if (role == Qt::AccessibleTextRole && column == ActionsColumn)
        return u"%1: %2"_s.arg(EquipmentRow::title(column), m_equipment.at(index.row()).name);
    // Texts that a narrow column cuts off are read in full in the tool tip.
    if (role == Qt::ToolTipRole && column <= ModelColumn)
        return toolTipText(row(index.row()).text(column));
    return {};
}

QVariant EquipmentTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return EquipmentRow::title(static_cast<EquipmentRow::Column>(section));
    return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignLeft | Qt::AlignVCenter) : QVariant();
}

} // namespace abissora
