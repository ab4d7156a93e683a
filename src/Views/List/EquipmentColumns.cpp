// SPDX-License-Identifier: MIT
#include "EquipmentColumns.h"

#include "EquipmentTableModel.h"
#include "Metrics.h"
#include "TypeScale.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>

namespace abissora {

namespace {

/// Shares of the width that the texts may take, and the least that each column needs.
struct ColumnWidth
{
    int share;
    int least;
};

constexpr std::array<ColumnWidth, EquipmentTableModel::ColumnCount> widths{ColumnWidth{30, 170}, ColumnWidth{14, 74},
                                                                           ColumnWidth{14, 74},  ColumnWidth{20, 146},
                                                                           ColumnWidth{0, 86},   ColumnWidth{0, 66}};

} // namespace

EquipmentColumns::EquipmentColumns(QTableView& table)
    : QObject(&table)
    , m_table(table)
{
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.viewport()->installEventFilter(this);
    layOut();
}

bool EquipmentColumns::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        layOut();
    return QObject::eventFilter(watched, event);
}

void EquipmentColumns::layOut()
{
    const QFontMetrics text(font(TextStyle::Body));
    int least = 0;
    int shares = 0;
    for (const ColumnWidth& column : widths) {
        least += withText(column.least, text);
        shares += column.share;
    }
    const int spare = std::max(0, m_table.viewport()->width() - least);
    int given = 0;
    for (int column = EquipmentTableModel::ColumnCount - 1; column >= 0; --column) {
        const ColumnWidth& width = widths.at(static_cast<std::size_t>(column));
        const int extra = column == 0 ? spare - given : spare * width.share / shares;
        given += extra;
        m_table.setColumnWidth(column, withText(width.least, text) + extra);
    }
}

} // namespace abissora
