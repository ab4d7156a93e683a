// SPDX-License-Identifier: MIT
#include "DueList.h"

#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QPaintEvent>
#include <QPainter>

namespace abissora {

DueList::DueList(QScrollArea& area)
    : RowList(area, {.keys = Keys::WalkRows, .gap = 1, .border = 1})
{}

void DueList::setItems(const QList<RegisterSummary::DueItem>& items, Appearance appearance)
{
    m_items = items;
    m_appearance = std::move(appearance);
    QList<QUuid> ids;
    ids.reserve(items.size());
    for (const auto& item : items)
        ids.append(item.equipment.id);
    showItems(ids);
}

QWidget* DueList::makeRow()
{
    auto* row = new DueRow(this);
    connect(row, &DueRow::chosen, this, [this, row] { Q_EMIT chosen(row->equipment()); });
    return row;
}

void DueList::fillRow(QWidget& row, qsizetype index)
{
    const RegisterSummary::DueItem& item = m_items.at(index);
    static_cast<DueRow&>(row).setItem(item, m_appearance(item.equipment));
}

void DueList::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    // Only what is exposed, and a little more: the whole may be hundreds of thousands of pixels high.
    constexpr int around = 4 * metrics::cardRadius;
    const QRect exposed = event->rect().adjusted(-width(), -around, width(), around);
    drawPanel(painter, rect() & exposed, metrics::cardRadius, tokens.surface, tokens.border);
    RowList::paintEvent(event);
}

} // namespace abissora
