// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentExcerpt.h"
#include "EquipmentRow.h"

#include <QAbstractTableModel>

namespace abissora {

/// What the catalogue gave, in its order. Rows are made when they are asked for.
class EquipmentTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using enum EquipmentRow::Column;

    using QAbstractTableModel::QAbstractTableModel;

    /// Replaces the whole content in one reset.
    void setEquipment(const EquipmentExcerpt& equipment, EquipmentRowMaker rows);

    [[nodiscard]] const EquipmentExcerpt& equipment() const { return m_equipment; }
    [[nodiscard]] EquipmentRow row(int row) const;
    /// -1 when no row shows the item.
    [[nodiscard]] int rowOf(const QUuid& id) const;
    /// As its row shows it; nothing when no row does.
    [[nodiscard]] std::optional<Equipment> itemOf(const QUuid& id) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    /// DisplayRole holds every line that the cell shows, one below the other.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    EquipmentExcerpt m_equipment;
    std::optional<EquipmentRowMaker> m_rows;
};

} // namespace abissora
