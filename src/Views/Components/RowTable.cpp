// SPDX-License-Identifier: MIT
#include "RowTable.h"

#include "Metrics.h"
#include "Painting.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

namespace abissora {

namespace {

/// Tells a screen reader where the keyboard stands, which it only hears by itself when the place changes.
void tellPlace(QTableView& table)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&table);
    const QModelIndex place = table.currentIndex();
    if (QAccessibleInterface* const cell = reader->tableInterface()->cellAt(place.row(), place.column())) {
        QAccessibleEvent event(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace

RowTable::RowTable(QWidget* parent)
    : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
}

void RowTable::goToFirstRow()
{
    setFocus(Qt::OtherFocusReason);
    goToRow(0);
}

void RowTable::goToRow(int row)
{
    const QModelIndex index = model()->index(row, std::max(0, currentIndex().column()));
    if (!index.isValid())
        return;
    const bool isThere = index == currentIndex();
    setCurrentIndex(index);
    if (isThere) {
        selectRow(row);
        tellPlace(*this);
    }
}

void RowTable::placeKeyboard(const QModelIndex& index)
{
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void RowTable::setHasKeyboard(bool has)
{
    m_hasKeyboard = has;
    viewport()->update();
    Q_EMIT placeChanged();
}

void RowTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // The table's own tells screen readers that the cell has the focus, whoever has it; a list's does not.
    if (hasFocus())
        QTableView::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
    // The ring goes round whole rows.
    viewport()->update();
    Q_EMIT placeChanged();
}

void RowTable::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    // The keyboard needs a place to start from; the selection is the person's own choice.
    if (!currentIndex().isValid() && model()->rowCount() > 0)
        placeKeyboard(model()->index(0, 0));
    setHasKeyboard(true);
}

void RowTable::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    switch (event->reason()) {
    case Qt::MenuBarFocusReason:
    case Qt::PopupFocusReason:
    case Qt::ActiveWindowFocusReason:
        viewport()->update();
        return;
    default:
        setHasKeyboard(false);
    }
}

void RowTable::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool moves = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (plain && event->key() == Qt::Key_Home)
        goToRow(0);
    else if (plain && event->key() == Qt::Key_End)
        goToRow(model()->rowCount() - 1);
    else if (plain && moves && current.isValid() && !selectionModel()->hasSelection())
        goToRow(current.row()); // where the keyboard stands, not past it
    else if (event->key() == Qt::Key_Escape)
        event->ignore();
    else
        QTableView::keyPressEvent(event);
}

void RowTable::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        QTableView::mousePressEvent(event);
        return;
    }
    if (const QModelIndex index = indexAt(event->position().toPoint()); index.isValid())
        placeKeyboard(index.siblingAtColumn(0));
    event->accept();
}

void RowTable::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    const QModelIndex current = currentIndex();
    const bool shown = m_hasKeyboard && isActiveWindow() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    if (!shown || !current.isValid() || current.column() != 0)
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect row(0, rowViewportPosition(current.row()), viewport()->width(), rowHeight(current.row()));
    drawFocusRing(painter, row.adjusted(1, 1, -1, -1), metrics::spaceXS, palette());
}

} // namespace abissora
