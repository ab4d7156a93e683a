// SPDX-License-Identifier: MIT
#pragma once

#include "Card.h"
#include "EquipmentTypeModel.h"

class QScrollArea;

namespace abissora {

class GridFocus;
class Separator;
class TypeRow;

/// The types below one another. The focus stays with its type when the types change, or near it when it is gone.
class TypeList : public Card
{
    Q_OBJECT

public:
    explicit TypeList(QWidget* parent = nullptr);

    void setTypes(const QList<EquipmentTypeModel>& types);

Q_SIGNALS:
    void editRequested(const abissora::EquipmentTypeModel& type);
    void deleteRequested(const abissora::EquipmentTypeModel& type);

private:
    struct Entry
    {
        Separator* divider;
        TypeRow* row;
    };

    void addRow();
    void removeRow();
    void takeFocus(qsizetype row, qsizetype column);

    QScrollArea* m_scroll;
    QVBoxLayout* m_rows;
    GridFocus* m_focus;
    QList<Entry> m_entries;
};

} // namespace abissora
