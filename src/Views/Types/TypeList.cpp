// SPDX-License-Identifier: MIT
#include "TypeList.h"

#include "Accessibility.h"
#include "GridFocus.h"
#include "ScrollPane.h"
#include "TypeRow.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace abissora {

namespace {

constexpr qsizetype rowsAhead = 12; ///< before and behind those in sight: what the arrow keys reach exists already

bool isMade(const TypeRow* row)
{
    return row != nullptr;
}

} // namespace

TypeList::TypeList(QWidget* parent)
    : Card(parent)
    , m_scroll(new ScrollPane)
    , m_canvas(m_scroll->widget())
    , m_ruler(new TypeRow(this))
    , m_focus(new GridFocus(GridFocus::TabStop::Row, this))
    , m_tops{0}
    , m_rows{nullptr}
{
    setAccessibleRole(*this, QAccessible::List);
    m_ruler->hide();
    m_canvas->installEventFilter(this);
    content()->setContentsMargins(1, 1, 1, 1);
    content()->addWidget(m_scroll);
    makeRow(0); // holds the place of all others in the tab order
    connect(m_scroll->verticalScrollBar(), &QScrollBar::valueChanged, this, &TypeList::makeRowsInSight);
    connect(m_focus, &GridFocus::entered, this,
            [this](QAbstractButton* button) { m_scroll->ensureWidgetVisible(button->parentWidget()); });
}

void TypeList::setTypes(const QList<EquipmentTypeModel>& types)
{
    Place place = focused();
    if (place.row >= 0) {
        const QUuid id = m_types.at(place.row).id;
        const auto same = std::find_if(types.begin(), types.end(), [&id](const auto& type) { return type.id == id; });
        place.row = same != types.end() ? same - types.begin() : std::min(place.row, types.size() - 1);
    }

    m_types = types;
    m_rows.resize(std::max(m_rows.size(), types.size()));
    for (qsizetype i = 0; i < types.size(); ++i) {
        if (m_rows.at(i) != nullptr)
            m_rows.at(i)->setType(types.at(i));
    }
    measure();
    if (place.row >= 0)
        takeFocus(place);
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i) != nullptr)
            m_rows.at(i)->setVisible(i < types.size());
    }
}

TypeList::Place TypeList::focused() const
{
    const QWidget* const widget = window()->focusWidget();
    for (qsizetype row = 0; row < m_types.size(); ++row) {
        const qsizetype column = m_rows.at(row) != nullptr ? m_rows.at(row)->buttons().indexOf(widget) : -1;
        if (column >= 0)
            return {row, column};
    }
    return {};
}

void TypeList::takeFocus(Place place)
{
    makeRow(place.row);
    placeRow(place.row);
    m_rows.at(place.row)->buttons().at(place.column)->setFocus(Qt::OtherFocusReason);
    m_scroll->ensureWidgetVisible(m_rows.at(place.row));
}

void TypeList::measure()
{
    const int width = m_canvas->width();
    const auto heightOf = [this, width](const EquipmentTypeModel& type) {
        m_ruler->setType(type);
        m_ruler->layout()->activate(); // what is hidden keeps its old measures otherwise
        return m_ruler->heightForWidth(width);
    };
    const int usual = heightOf({});
    m_tops.resize(m_types.size() + 1);
    for (qsizetype i = 0; i < m_types.size(); ++i) {
        const EquipmentTypeModel& type = m_types.at(i);
        const bool isUsual = m_ruler->showsInOneLine(type.name, width);
        m_tops[i + 1] = m_tops.at(i) + (isUsual ? usual : heightOf(type));
    }
    m_canvas->setMinimumHeight(m_tops.last());
    for (qsizetype i = 0; i < m_types.size(); ++i)
        placeRow(i);
    makeRowsInSight();
}

void TypeList::makeRowsInSight()
{
    if (!m_types.isEmpty()) {
        const auto indexAt = [this](int y) {
            const auto below = std::upper_bound(m_tops.begin() + 1, m_tops.end(), y);
            return std::min(below - m_tops.begin() - 1, m_types.size() - 1);
        };
        const int top = m_scroll->verticalScrollBar()->value();
        const qsizetype first = std::max<qsizetype>(indexAt(top) - rowsAhead, 0);
        const qsizetype last = std::min(indexAt(top + m_scroll->viewport()->height()) + rowsAhead, m_types.size() - 1);
        makeRow(0);
        makeRow(m_types.size() - 1);
        for (qsizetype i = first; i <= last; ++i)
            makeRow(i);
    }
    handOverToKeyboard();
}

void TypeList::makeRow(qsizetype index)
{
    if (m_rows.at(index) != nullptr)
        return;
    auto* row = new TypeRow(m_canvas);
    row->setFirst(index == 0);
    connect(row, &TypeRow::editRequested, this, [this, row] { Q_EMIT editRequested(row->type()); });
    connect(row, &TypeRow::deleteRequested, this, [this, row] { Q_EMIT deleteRequested(row->type()); });
    // Tab and screen readers go by the order of the rows, not by that in which they were made.
    if (const auto before = std::find_if(m_rows.rend() - index, m_rows.rend(), isMade); before != m_rows.rend()) {
        setTabOrder((*before)->buttons().last(), row->buttons().first());
        setTabOrder(row->buttons().first(), row->buttons().last());
    }
    if (const auto next = std::find_if(m_rows.begin() + index, m_rows.end(), isMade); next != m_rows.end())
        row->stackUnder(*next);
    m_rows[index] = row;
    if (index < m_types.size()) {
        row->setType(m_types.at(index));
        placeRow(index);
        row->show();
    }
}

void TypeList::placeRow(qsizetype index)
{
    if (m_rows.at(index) != nullptr)
        m_rows.at(index)->setGeometry(0, m_tops.at(index), m_canvas->width(), m_tops.at(index + 1) - m_tops.at(index));
}

void TypeList::handOverToKeyboard()
{
    QList<GridFocus::Row> rows;
    for (qsizetype i = 0; i < m_types.size(); ++i) {
        if (m_rows.at(i) != nullptr)
            rows.append(m_rows.at(i)->buttons());
    }
    m_focus->setRows(rows);
}

bool TypeList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_canvas && event->type() == QEvent::Resize)
        measure();
    return Card::eventFilter(watched, event);
}

void TypeList::changeEvent(QEvent* event)
{
    Card::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

} // namespace abissora
