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

namespace abissora {

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
    QHeaderView* const header = horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setMinimumSectionSize(1); // the style's own is wider than some columns' least
    connect(header, &QHeaderView::sectionResized, this, [this](int column, int /*before*/, int width) {
        if (!m_isLayingOut)
            dragColumn(column, width);
    });
    connect(header, &QHeaderView::sectionHandleDoubleClicked, this, [this](int column) {
        m_columns.setOwnWidth(column, std::nullopt);
        layOutColumns();
    });
    adjustToText();
}

void EquipmentTableView::showEquipment(const EquipmentExcerpt& equipment, const EquipmentRowMaker& rows,
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
        m_columnTexts = ColumnTexts::of(equipment, rows);
        m_columns.measure(m_columnTexts);
        layOutColumns();
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
    const QFont heading = abissora::font(TextStyle::CaptionSemibold);
    horizontalHeader()->setFont(heading);
    horizontalHeader()->setMinimumHeight(2 * QFontMetrics(heading).height() + metrics::spaceXS);
    m_columns.measure(m_columnTexts);
    layOutColumns();
}

QList<int> EquipmentTableView::ownColumnWidths() const
{
    QList<int> widths;
    for (int column = 0; column < EquipmentTableModel::ColumnCount; ++column)
        widths.append(m_columns.ownWidth(column).value_or(0));
    return widths;
}

void EquipmentTableView::setOwnColumnWidths(const QList<int>& widths)
{
    for (int column = 0; column < EquipmentTableModel::ColumnCount; ++column) {
        const int width = widths.value(column);
        m_columns.setOwnWidth(column, width > 0 ? std::optional(width) : std::nullopt);
    }
    layOutColumns();
}

void EquipmentTableView::dragColumn(int column, int width)
{
    m_columns.setOwnWidth(column, width);
    // What stands before it keeps its place under the pointer.
    TableColumns kept = m_columns;
    for (int before = 0; before < column; ++before)
        kept.setOwnWidth(before, columnWidth(before));
    showLayout(kept.layOut(viewport()->width()));
}

void EquipmentTableView::layOutColumns()
{
    showLayout(m_columns.layOut(viewport()->width()));
}

void EquipmentTableView::showLayout(const TableColumns::Layout& layout)
{
    const QScopedValueRollback layingOut(m_isLayingOut, true);
    for (int column = 0; column < EquipmentTableModel::ColumnCount; ++column)
        setColumnWidth(column, layout.widths.at(static_cast<std::size_t>(column)));
    m_delegate.setLayout(layout);
    // One height for all rows: nothing measures ten thousand of them.
    const int before = verticalHeader()->defaultSectionSize();
    const int height = m_delegate.rowHeight();
    if (height != before) {
        const int scrolled = verticalScrollBar()->value();
        verticalHeader()->setMinimumSectionSize(height);
        verticalHeader()->setDefaultSectionSize(height);
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        verticalScrollBar()->setValue(before > 0 ? scrolled / before * height + scrolled % before : 0);
    }
    viewport()->update();
}

} // namespace abissora
