// SPDX-License-Identifier: MIT
#include "GridFocus.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

namespace abissora {

GridFocus::GridFocus(TabStop stop, QObject* parent)
    : QObject(parent)
    , m_stop(stop)
{}

void GridFocus::setRows(const QList<Row>& rows)
{
    for (const auto& row : std::as_const(m_rows)) {
        for (const auto& button : row) {
            if (button)
                button->removeEventFilter(this);
        }
    }
    m_rows.clear();
    for (const Row& row : rows) {
        m_rows.emplaceBack(row.begin(), row.end());
        for (QAbstractButton* button : row) {
            button->installEventFilter(this);
            takeTabStop(button, false);
        }
    }
    setCurrent(m_current);
}

void GridFocus::setCurrent(QAbstractButton* button)
{
    const Place old = placeOf(m_current);
    Place place = placeOf(button);
    if (place.row < 0 && !m_rows.isEmpty())
        place = {0, 0};
    if (m_stop == TabStop::Cell)
        takeTabStop(m_current, false);
    else if (old.row >= 0 && old.row != place.row)
        for (const auto& cell : m_rows.at(old.row))
            takeTabStop(cell, false);
    m_current = place.row < 0 ? nullptr : m_rows.at(place.row).at(place.column).data();
    if (!m_movingAcross)
        m_column = std::max<qsizetype>(place.column, 0);
    if (m_stop == TabStop::Cell)
        takeTabStop(m_current, true);
    else if (place.row >= 0)
        for (const auto& cell : m_rows.at(place.row))
            takeTabStop(cell, true);
}

void GridFocus::takeTabStop(QAbstractButton* button, bool take) const
{
    if (button != nullptr)
        button->setFocusPolicy(take ? Qt::StrongFocus : Qt::ClickFocus);
}

GridFocus::Place GridFocus::placeOf(const QAbstractButton* button) const
{
    if (button == nullptr)
        return {};
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        if (const qsizetype column = m_rows.at(row).indexOf(button); column >= 0)
            return {row, column};
    }
    return {};
}

GridFocus::Place GridFocus::beside(Place from, int step) const
{
    const qsizetype column = from.column + step;
    if (column >= 0 && column < m_rows.at(from.row).size())
        return {from.row, column};
    const qsizetype row = from.row + step;
    if (row < 0 || row >= m_rows.size())
        return from;
    return {row, step > 0 ? 0 : m_rows.at(row).size() - 1};
}

GridFocus::Place GridFocus::across(Place from, int step) const
{
    const qsizetype row = from.row + step;
    return row < 0 || row >= m_rows.size() ? from : Place{row, std::min(m_column, m_rows.at(row).size() - 1)};
}

GridFocus::Place GridFocus::target(const QKeyEvent& key, Place from) const
{
    const int forward = m_current->layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (key.key()) {
    case Qt::Key_Left:
        return beside(from, -forward);
    case Qt::Key_Right:
        return beside(from, forward);
    case Qt::Key_Up:
        return across(from, -1);
    case Qt::Key_Down:
        return across(from, 1);
    case Qt::Key_Home:
        return {0, 0};
    case Qt::Key_End:
        return {m_rows.size() - 1, m_rows.last().size() - 1};
    default:
        return {};
    }
}

bool GridFocus::press(QAbstractButton* button, const QKeyEvent& key)
{
    if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        button->click();
        return true;
    }
    const Place place = target(key, placeOf(button));
    if (place.row < 0)
        return false;
    const QScopedValueRollback across(m_movingAcross, key.key() == Qt::Key_Up || key.key() == Qt::Key_Down);
    button->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    m_rows.at(place.row).at(place.column)->setFocus(Qt::TabFocusReason);
    return true;
}

bool GridFocus::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        auto* const button = static_cast<QAbstractButton*>(watched);
        setCurrent(button);
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            Q_EMIT entered(button);
    } else if (event->type() == QEvent::KeyPress && watched == m_current) {
        return press(m_current, static_cast<const QKeyEvent&>(*event));
    }
    return false;
}

} // namespace abissora
