// SPDX-License-Identifier: MIT
#include "ActionRows.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <numeric>

namespace abissora {

ActionRows::ActionRows(int gap)
    : m_gap(gap)
{
    setContentsMargins(0, 0, 0, 0);
}

ActionRows::~ActionRows()
{
    qDeleteAll(m_items);
}

void ActionRows::addItem(QLayoutItem* item)
{
    m_items.append(item);
}

int ActionRows::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* ActionRows::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem* ActionRows::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

QList<int> ActionRows::columnWidths(int columns) const
{
    QList<int> widths(columns, 0);
    for (int i = 0; i < count(); ++i)
        widths[i % columns] = std::max(widths.at(i % columns), m_items.at(i)->sizeHint().width());
    return widths;
}

int ActionRows::widthOf(int columns) const
{
    const QList<int> widths = columnWidths(columns);
    return std::accumulate(widths.begin(), widths.end(), (columns - 1) * m_gap);
}

int ActionRows::columnsIn(int width) const
{
    for (const int columns : {count(), (count() + 1) / 2}) {
        if (columns > 1 && widthOf(columns) <= width)
            return columns;
    }
    return 1;
}

int ActionRows::rowHeight() const
{
    int height = 0;
    for (const QLayoutItem* item : m_items)
        height = std::max(height, item->sizeHint().height());
    return height;
}

int ActionRows::heightForWidth(int width) const
{
    const int columns = columnsIn(width);
    const int rows = (count() + columns - 1) / columns;
    return rows * rowHeight() + (rows - 1) * m_gap;
}

QSize ActionRows::sizeHint() const
{
    return {widthOf(count()), rowHeight()};
}

QSize ActionRows::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void ActionRows::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const int columns = columnsIn(rect.width());
    QList<int> widths = columnWidths(columns);
    if (columns < count()) { // rows fill the width
        const int spare = rect.width() - widthOf(columns);
        for (int i = 0; i < columns; ++i)
            widths[i] += spare * (i + 1) / columns - spare * i / columns;
    }
    const int height = rowHeight();
    QPoint place = rect.topLeft();
    for (int i = 0; i < count(); ++i) {
        const QRect item(place, QSize(widths.at(i % columns), height));
        m_items.at(i)->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), rect, item));
        const bool isLast = i % columns == columns - 1;
        place = isLast ? QPoint(rect.left(), place.y() + height + m_gap) : QPoint(item.right() + 1 + m_gap, place.y());
    }
}

} // namespace abissora
