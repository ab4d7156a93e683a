// SPDX-License-Identifier: MIT
#include "TypeList.h"

#include "GridFocus.h"
#include "Separator.h"
#include "TypeRow.h"
#include "TypesAccessibility.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace abissora {

TypeList::TypeList(QWidget* parent)
    : Card(parent)
    , m_scroll(new QScrollArea)
    , m_rows(new QVBoxLayout)
    , m_focus(new GridFocus(GridFocus::TabStop::Row, this))
{
    provideTypesAccessibility();
    auto* rows = new QWidget;
    auto* layout = new QVBoxLayout(rows);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(m_rows);
    layout->addStretch();
    m_rows->setSpacing(0);
    m_scroll->setWidget(rows);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->viewport()->setAutoFillBackground(false);
    rows->setAutoFillBackground(false);
    content()->setContentsMargins(1, 1, 1, 1);
    content()->addWidget(m_scroll);
    connect(m_focus, &GridFocus::entered, this,
            [this](QAbstractButton* button) { m_scroll->ensureWidgetVisible(button->parentWidget()); });
}

void TypeList::setTypes(const QList<EquipmentTypeModel>& types)
{
    const QWidget* const focused = window()->focusWidget();
    qsizetype row = 0;
    qsizetype column = -1;
    for (; row < m_entries.size(); ++row) {
        column = m_entries.at(row).row->buttons().indexOf(focused);
        if (column >= 0)
            break;
    }
    if (column >= 0) {
        const QUuid id = m_entries.at(row).row->type().id;
        const auto same = std::find_if(types.begin(), types.end(), [&id](const auto& type) { return type.id == id; });
        row = same != types.end() ? same - types.begin() : std::min(row, types.size() - 1);
    }

    while (m_entries.size() < types.size())
        addRow();
    QList<GridFocus::Row> rows;
    for (qsizetype i = 0; i < types.size(); ++i) {
        m_entries.at(i).row->setType(types.at(i));
        rows.append(m_entries.at(i).row->buttons());
    }
    m_focus->setRows(rows);
    if (column >= 0 && row >= 0)
        takeFocus(row, column);
    while (m_entries.size() > types.size())
        removeRow();
}

void TypeList::takeFocus(qsizetype row, qsizetype column)
{
    TypeRow* const widget = m_entries.at(row).row;
    widget->buttons().at(column)->setFocus(Qt::OtherFocusReason);
    m_scroll->widget()->layout()->activate();
    m_scroll->ensureWidgetVisible(widget);
}

void TypeList::addRow()
{
    const Entry entry{new Separator(Separator::Weight::Divider), new TypeRow};
    TypeRow* const row = entry.row;
    connect(row, &TypeRow::editRequested, this, [this, row] { Q_EMIT editRequested(row->type()); });
    connect(row, &TypeRow::deleteRequested, this, [this, row] { Q_EMIT deleteRequested(row->type()); });
    m_rows->addWidget(entry.divider);
    m_rows->addWidget(row);
    entry.divider->setVisible(!m_entries.isEmpty());
    QWidget* before = m_entries.isEmpty() ? m_scroll->widget() : m_entries.last().row->buttons().last();
    for (QAbstractButton* button : row->buttons()) {
        setTabOrder(before, button);
        before = button;
    }
    m_entries.append(entry);
}

void TypeList::removeRow()
{
    const Entry entry = m_entries.takeLast();
    for (QWidget* part : {static_cast<QWidget*>(entry.divider), static_cast<QWidget*>(entry.row)}) {
        part->hide();
        part->deleteLater(); // not now: the change may come from a button of the very row
    }
}

} // namespace abissora
