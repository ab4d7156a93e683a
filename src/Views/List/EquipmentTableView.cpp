// SPDX-License-Identifier: MIT
#include "EquipmentTableView.h"

#include "Literals.h"
#include "Metrics.h"
#include "TypeScale.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <numeric>

namespace abissora {

namespace {

constexpr std::size_t columnCount = EquipmentTableModel::ColumnCount;

/// Share of the spare width, what the column needs to be read whole as a rule, and the least that it is squeezed to.
struct ColumnWidth
{
    int share;
    int usual;
    int least;
};

constexpr std::array<ColumnWidth, columnCount> widths{ColumnWidth{30, 170, 95}, ColumnWidth{14, 74, 42},
                                                      ColumnWidth{14, 74, 42},  ColumnWidth{20, 146, 94},
                                                      ColumnWidth{0, 86, 70},   ColumnWidth{0, 66, 50}};

/// Which columns give way together, the first ones first.
constexpr std::array<std::array<EquipmentRow::Column, 2>, 3> stages{
    {{EquipmentTableModel::BrandColumn, EquipmentTableModel::ModelColumn},
     {EquipmentTableModel::StateColumn, EquipmentTableModel::ActionsColumn},
     {EquipmentTableModel::NameColumn, EquipmentTableModel::NextServiceColumn}}};

using Widths = std::array<int, columnCount>;

/// Takes from the columns what the viewport lacks.
void squeeze(Widths& columns, const Widths& least, int lack)
{
    for (const auto& stage : stages) {
        int room = 0;
        for (const std::size_t column : stage)
            room += columns.at(column) - least.at(column);
        int taken = std::min(lack, room);
        lack -= taken;
        for (const std::size_t column : stage) {
            const int own = columns.at(column) - least.at(column);
            const int loss = room > 0 ? taken * own / room : 0;
            columns.at(column) -= loss;
            taken -= loss;
            room -= own;
        }
    }
}

} // namespace

EquipmentTableView::EquipmentTableView(QWidget* parent)
    : RowTable(parent)
    , m_delegate(m_model)
{
    setObjectName(u"equipmentTable"_s);
    setAccessibleName(u"Attrezzatura Subacquea"_s);
    setModel(&m_model);
    setItemDelegate(&m_delegate);
    setShowGrid(false);
    setMouseTracking(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1); // the style's own is wider than some columns' least
    adjustToText();
}

void EquipmentTableView::showEquipment(const QList<Equipment>& equipment, const EquipmentRowMaker& rows,
                                       const std::optional<QUuid>& selected)
{
    const int scrolled = verticalScrollBar()->value();
    const auto shownBefore = selected ? m_model.itemOf(*selected) : std::nullopt;
    const bool wasInSight = shownBefore && isInSight(m_model.rowOf(*selected));
    const QModelIndex before = currentIndex();
    const std::optional<QUuid> current =
        before.isValid() ? std::optional(m_model.equipment().at(before.row()).id) : std::nullopt;
    const int rowBefore = before.row();
    const int column = std::max(0, before.column());
    {
        const QScopedValueRollback silent(m_silent, true);
        m_model.setEquipment(equipment, rows);
        if (const int row = selected ? m_model.rowOf(*selected) : -1; row >= 0)
            setCurrentIndex(m_model.index(row, column));
        else if (current)
            keepPlace(*current, rowBefore, column);
    }
    verticalScrollBar()->setValue(scrolled);
    const int row = selected ? m_model.rowOf(*selected) : -1;
    if (row >= 0 && (wasInSight || shownBefore != m_model.equipment().at(row)))
        scrollTo(m_model.index(row, column));
}

bool EquipmentTableView::isInSight(int row) const
{
    return row >= 0 && viewport()->rect().contains(QPoint(0, rowViewportPosition(row)));
}

void EquipmentTableView::keepPlace(const QUuid& id, int rowBefore, int column)
{
    const int row = m_model.rowOf(id);
    const int place = row >= 0 ? row : std::min(rowBefore, m_model.rowCount() - 1);
    if (place >= 0)
        selectionModel()->setCurrentIndex(m_model.index(place, column), QItemSelectionModel::NoUpdate);
}

void EquipmentTableView::showSelected(const std::optional<QUuid>& id)
{
    const QScopedValueRollback silent(m_silent, true);
    const int row = id ? m_model.rowOf(*id) : -1;
    if (row < 0)
        clearSelection();
    else if (!selectionModel()->isRowSelected(row))
        setCurrentIndex(m_model.index(row, 0));
}

void EquipmentTableView::contextMenuEvent(QContextMenuEvent* event)
{
    const QModelIndex index = event->reason() == QContextMenuEvent::Mouse ? indexAt(event->pos()) : currentIndex();
    if (!index.isValid())
        return;
    if (event->reason() == QContextMenuEvent::Mouse)
        Q_EMIT actionsRequested(index.row(), event->globalPos());
    else
        requestActions(index);
}

void EquipmentTableView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (current.isValid() && opens) {
        if (current.column() == EquipmentTableModel::ActionsColumn)
            requestActions(current);
        else
            selectRow(current.row());
        return;
    }
    if (current.isValid() && event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        requestActions(current);
        return;
    }
    if (current.isValid() && event->key() == Qt::Key_Delete) {
        Q_EMIT deleteRequested(current.row());
        return;
    }
    RowTable::keyPressEvent(event);
}

void EquipmentTableView::leaveEvent(QEvent* event)
{
    RowTable::leaveEvent(event);
    setHover({}, false);
}

void EquipmentTableView::mouseMoveEvent(QMouseEvent* event)
{
    RowTable::mouseMoveEvent(event);
    const QModelIndex index = indexAt(event->pos());
    setHover(index, isOnActionButton(index, event->pos()));
}

void EquipmentTableView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && isOnActionButton(index, event->pos())) {
        requestActions(index);
        return;
    }
    RowTable::mousePressEvent(event);
}

void EquipmentTableView::resizeEvent(QResizeEvent* event)
{
    layOutColumns();
    RowTable::resizeEvent(event);
}

void EquipmentTableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    RowTable::selectionChanged(selected, deselected);
    if (m_silent)
        return;
    const QModelIndexList rows = selectionModel()->selectedRows();
    Q_EMIT rowSelected(rows.isEmpty() ? -1 : rows.first().row());
}

void EquipmentTableView::changeEvent(QEvent* event)
{
    RowTable::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        adjustToText();
}

bool EquipmentTableView::isOnActionButton(const QModelIndex& index, QPoint position) const
{
    return index.column() == EquipmentTableModel::ActionsColumn &&
           EquipmentTableDelegate::actionButton(visualRect(index)).contains(position);
}

void EquipmentTableView::requestActions(const QModelIndex& index)
{
    scrollTo(index);
    const QRect cell = visualRect(index.siblingAtColumn(EquipmentTableModel::ActionsColumn));
    Q_EMIT actionsRequested(index.row(),
                            viewport()->mapToGlobal(EquipmentTableDelegate::actionButton(cell).bottomLeft()));
}

void EquipmentTableView::setHover(const QModelIndex& index, bool onActionButton)
{
    const auto repaintRow = [this](const QModelIndex& row) {
        if (row.isValid())
            viewport()->update(0, rowViewportPosition(row.row()), viewport()->width(), rowHeight(row.row()));
    };
    repaintRow(m_hovered);
    m_hovered = index;
    m_delegate.setHover(index.row(), onActionButton);
    repaintRow(m_hovered);
}

void EquipmentTableView::adjustToText()
{
    // One height for all rows: nothing measures ten thousand of them.
    verticalHeader()->setMinimumSectionSize(m_delegate.rowHeight());
    verticalHeader()->setDefaultSectionSize(m_delegate.rowHeight());
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    layOutColumns();
}

void EquipmentTableView::layOutColumns()
{
    const QFontMetrics text(abissora::font(TextStyle::Body));
    Widths columns{};
    Widths least{};
    int shares = 0;
    for (std::size_t i = 0; i < columnCount; ++i) {
        columns.at(i) = withText(widths.at(i).usual, text);
        least.at(i) = withText(widths.at(i).least, text);
        shares += widths.at(i).share;
    }
    const int spare = viewport()->width() - std::accumulate(columns.begin(), columns.end(), 0);
    if (spare < 0)
        squeeze(columns, least, -spare);
    int given = 0;
    for (std::size_t i = columnCount - 1; i > 0; --i) {
        const int extra = std::max(0, spare) * widths.at(i).share / shares;
        given += extra;
        columns.at(i) += extra;
    }
    columns.front() += std::max(0, spare) - given; // with what the divisions left over
    for (std::size_t i = 0; i < columnCount; ++i)
        setColumnWidth(static_cast<int>(i), columns.at(i));
}

} // namespace abissora
