// SPDX-License-Identifier: MIT
#include "EquipmentTableModel.h"

#include "Literals.h"
#include "ToolTipText.h"

namespace abissora {

void EquipmentTableModel::setEquipment(const QList<Equipment>& equipment, EquipmentRowMaker rows)
{
    beginResetModel();
    m_equipment = equipment;
    m_rows = std::move(rows);
    endResetModel();
}

EquipmentRow EquipmentTableModel::row(int row) const
{
    return m_rows->row(m_equipment.at(row));
}

int EquipmentTableModel::rowOf(const QUuid& id) const
{
    const auto found =
        std::find_if(m_equipment.begin(), m_equipment.end(), [&id](const Equipment& item) { return item.id == id; });
    return found == m_equipment.end() ? -1 : static_cast<int>(found - m_equipment.begin());
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
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    // Texts that a narrow column cuts off are read in full in the tool tip.
    if (role == Qt::ToolTipRole)
        return index.column() <= ModelColumn ? QVariant(toolTipText(data(index, Qt::DisplayRole).toString()))
                                             : QVariant();
    const EquipmentRow item = row(index.row());
    switch (index.column()) {
    case NameColumn:
        return QString(item.name + u'\n' + item.typeName);
    case BrandColumn:
        return item.brand;
    case ModelColumn:
        return item.model;
    case NextServiceColumn:
        return QString(item.nextServiceDate + u'\n' + item.remaining);
    case StateColumn:
        return item.state;
    default:
        return headerData(index.column(), Qt::Horizontal, role);
    }
}

QVariant EquipmentTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const std::array<QString, ColumnCount> titles{u"Nome"_s,  u"Marca"_s, u"Modello"_s, u"Prossimo Tagliando"_s,
                                                         u"Stato"_s, u"Azioni"_s};
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 && section < ColumnCount)
        return titles.at(static_cast<std::size_t>(section));
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

} // namespace abissora
