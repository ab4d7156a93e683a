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

/// Shares of the width that the texts may take, what each column needs to be read whole as a rule, and the least that
/// it is squeezed to.
struct ColumnWidth
{
    int share;
    int usual;
    int least;
};

constexpr std::array<ColumnWidth, EquipmentTableModel::ColumnCount> widths{
    ColumnWidth{30, 170, 86}, ColumnWidth{14, 74, 50}, ColumnWidth{14, 74, 50},
    ColumnWidth{20, 146, 74}, ColumnWidth{0, 86, 72},  ColumnWidth{0, 66, 44}};

} // namespace

EquipmentColumns::EquipmentColumns(QTableView& table)
    : QObject(&table)
    , m_table(table)
{
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setMinimumSectionSize(1); // the style's own is wider than some columns' least
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
    int usual = 0;
    int least = 0;
    int shares = 0;
    for (const ColumnWidth& column : widths) {
        usual += withText(column.usual, text);
        least += withText(column.least, text);
        shares += column.share;
    }
    const int width = m_table.viewport()->width();
    const int spare = std::max(0, width - usual);
    const int squeezed = std::clamp(width - least, 0, usual - least); // of what lies between least and usual
    int given = 0;
    for (int column = EquipmentTableModel::ColumnCount - 1; column > 0; --column) {
        const ColumnWidth& own = widths.at(static_cast<std::size_t>(column));
        const int most = withText(own.usual, text) - withText(own.least, text);
        const int columnWidth =
            withText(own.least, text) + most * squeezed / (usual - least) + spare * own.share / shares;
        m_table.setColumnWidth(column, columnWidth);
        given += columnWidth;
    }
    m_table.setColumnWidth(0, std::max(width, least) - given);
}

} // namespace abissora
