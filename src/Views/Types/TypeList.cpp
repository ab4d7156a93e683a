// SPDX-License-Identifier: MIT
#include "TypeList.h"

#include "ScrollPane.h"

namespace abissora {

TypeList::TypeList()
    : TypeList(*new ScrollPane)
{}

TypeList::TypeList(QScrollArea& area)
    : RowList(area, {.reserve = 12})
    , m_area(area)
{
    area.setWidget(this);
    setAutoFillBackground(false); // setWidget() makes it fill
    connect(&m_focus, &GridFocus::entered, this,
            [&area](QAbstractButton* button) { area.ensureWidgetVisible(button->parentWidget()); });
}

void TypeList::setTypes(const QList<EquipmentTypeModel>& types)
{
    m_types = types;
    QList<QUuid> ids;
    for (const EquipmentTypeModel& type : types)
        ids.append(type.id);
    showItems(ids);
    if (isAncestorOf(window()->focusWidget()))
        m_area.ensureWidgetVisible(window()->focusWidget()->parentWidget());
}

QWidget* TypeList::makeRow()
{
    auto* row = new TypeRow(this);
    connect(row, &TypeRow::editRequested, this, [this, row] { Q_EMIT editRequested(row->type()); });
    connect(row, &TypeRow::deleteRequested, this, [this, row] { Q_EMIT deleteRequested(row->type()); });
    return row;
}

void TypeList::fillRow(QWidget& row, qsizetype index)
{
    static_cast<TypeRow&>(row).setType(m_types.at(index));
}

QString TypeList::shapeOf(const QWidget& ruler, qsizetype index) const
{
    const QString& name = m_types.at(index).name;
    return static_cast<const TypeRow&>(ruler).showsInOneLine(name, width()) ? QString() : name;
}

void TypeList::rowsChanged()
{
    QList<GridFocus::Row> rows;
    for (const TypeRow* row : this->rows())
        rows.append(row->buttons());
    m_focus.setRows(rows);
}

} // namespace abissora
