// SPDX-License-Identifier: MIT
#include "EquipmentColumns.h"

#include "EquipmentTableModel.h"
#include "Metrics.h"
#include "TypeScale.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>
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
constexpr std::array<std::array<EquipmentTableModel::Column, 2>, 3> stages{
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
    Widths columns{};
    Widths least{};
    int shares = 0;
    for (std::size_t i = 0; i < columnCount; ++i) {
        columns.at(i) = withText(widths.at(i).usual, text);
        least.at(i) = withText(widths.at(i).least, text);
        shares += widths.at(i).share;
    }
    const int spare = m_table.viewport()->width() - std::accumulate(columns.begin(), columns.end(), 0);
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
        m_table.setColumnWidth(static_cast<int>(i), columns.at(i));
}

} // namespace abissora
