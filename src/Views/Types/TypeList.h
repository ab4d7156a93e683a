// SPDX-License-Identifier: MIT
#pragma once

#include "GridFocus.h"
#include "RowList.h"
#include "TypeRow.h"

namespace abissora {

/// The types below one another, in a scroll area of their own.
class TypeList : public RowList
{
    Q_OBJECT

public:
    TypeList();

    [[nodiscard]] QScrollArea& area() const { return m_area; }

    /// The row with the focus comes in sight, wherever its type is now.
    void setTypes(const QList<EquipmentTypeModel>& types);

    [[nodiscard]] QList<TypeRow*> rows() const { return rowsAs<TypeRow>(); }

Q_SIGNALS:
    void editRequested(const abissora::EquipmentTypeModel& type);
    void deleteRequested(const abissora::EquipmentTypeModel& type);

private:
    explicit TypeList(QScrollArea& area);

    QWidget* makeRow() override;
    void fillRow(QWidget& row, qsizetype index) override;
    [[nodiscard]] QString shapeOf(const QWidget& ruler, qsizetype index) const override;
    void rowsChanged() override;

    QScrollArea& m_area;
    QList<EquipmentTypeModel> m_types;
    GridFocus m_focus{GridFocus::TabStop::Row};
};

} // namespace abissora
