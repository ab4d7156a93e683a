// SPDX-License-Identifier: MIT
#include "CardGrid.h"

#include "Metrics.h"
#include "StatCard.h"

#include <QStyle>
#include <QWidget>

namespace abissora {

namespace {

constexpr int gap = metrics::spaceL;

} // namespace

CardGrid::CardGrid(int columns)
    : m_columns(columns)
{
    setContentsMargins(0, 0, 0, 0);
}

CardGrid::~CardGrid()
{
    qDeleteAll(m_items);
}

void CardGrid::addItem(QLayoutItem* item)
{
    m_items.append(item);
}

int CardGrid::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* CardGrid::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem* CardGrid::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

QSize CardGrid::itemSize() const
{
    QSize size;
    for (const QLayoutItem* item : m_items)
        size = size.expandedTo(item->minimumSize()).expandedTo(QSize(0, item->sizeHint().height()));
    return size;
}

int CardGrid::columnsIn(int width) const
{
    for (int columns = m_columns; columns > 1; --columns) {
        if (count() % columns == 0 && sizeWith(columns).width() <= width)
            return columns;
    }
    return 1;
}

QSize CardGrid::sizeWith(int columns) const
{
    const QSize item = itemSize();
    const int rows = (count() + columns - 1) / columns;
    return {columns * item.width() + (columns - 1) * gap, rows * item.height() + std::max(0, rows - 1) * gap};
}

int CardGrid::heightForWidth(int width) const
{
    return sizeWith(columnsIn(width)).height();
}

QSize CardGrid::sizeHint() const
{
    return sizeWith(m_columns);
}

QSize CardGrid::minimumSize() const
{
    return itemSize();
}

void CardGrid::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const Qt::LayoutDirection direction =
        parentWidget() != nullptr ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    const int columns = columnsIn(rect.width());
    const int height = itemSize().height();
    const int room = rect.width() - (columns - 1) * gap;
    for (int i = 0; i < count(); ++i) {
        // From edge to edge, so that what does not divide evenly is spread instead of missing at the right.
        const int column = i % columns;
        const int left = room * column / columns + column * gap;
        const int right = room * (column + 1) / columns + column * gap;
        const QRect place(rect.left() + left, rect.top() + i / columns * (height + gap), right - left, height);
        m_items.at(i)->setGeometry(QStyle::visualRect(direction, rect, place));
    }
}

FigureGrid::FigureGrid(const QList<RegisterFigure>& figures, int columns)
    : CardGrid(columns)
{
    for (const RegisterFigure& figure : figures) {
        m_cards.append(new StatCard(figure.title, figure.symbol, figure.color));
        addWidget(m_cards.last());
    }
}

void FigureGrid::setValues(const QList<RegisterFigure>& figures)
{
    for (qsizetype i = 0; i < m_cards.size(); ++i)
        m_cards.at(i)->setValue(QString::number(figures.at(i).value));
}

} // namespace abissora
