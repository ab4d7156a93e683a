// SPDX-License-Identifier: MIT
#include "ImportTable.h"

#include "Literals.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <numeric>

namespace abissora {

namespace {

constexpr int leastWidth = 90;
constexpr int mostWidth = 280;
constexpr int leastOfWide = 140;  ///< to which wide columns give way before the table scrolls
constexpr int measuredRows = 100; ///< the first ones; what is wider ends in dots

} // namespace

ImportTable::ImportTable(ImportPlan& plan, const EquipmentTypeViewModel& types, QWidget& pane)
    : RowTable(&pane)
    , m_plan(plan)
    , m_model(plan, types)
    , m_delegate(m_model)
    , m_header(new ColumnHeader(this))
    , m_bar(new ColumnBar(*m_header, &pane))
{
    setObjectName(u"importTable"_s);
    setAccessibleName(u"Righe da importare"_s);
    setHorizontalHeader(m_header);
    setModel(&m_model);
    setItemDelegate(&m_delegate);
    setShowGrid(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    verticalHeader()->hide();
    connect(m_bar, &ColumnBar::allChosen, &m_model, &ImportTableModel::setNewChosen);
    connect(m_bar, &ColumnBar::fieldChosen, this, &ImportTable::fieldChosen);
    connect(m_bar, &ColumnBar::reached, this, [this](int section) {
        if (m_model.rowCount() > 0)
            scrollTo(m_model.index(std::max(0, rowAt(0)), section));
    });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, m_bar, &ColumnBar::place);
    connect(&m_model, &ImportTableModel::choiceChanged, this, &ImportTable::showChoices);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &ImportTable::showColumns);
    showColumns();
    showChoices();
}

void ImportTable::showColumns()
{
    m_header->showColumns(m_plan);
    m_bar->showColumns(m_plan);
    measureColumns();
    layOutColumns();
}

void ImportTable::showChoices()
{
    m_bar->showAllChosen(m_plan.areNewChosen(), m_plan.count(ImportRow::Standing::New) > 0);
}

void ImportTable::measureColumns()
{
    verticalHeader()->setDefaultSectionSize(ImportDelegate::rowHeight());
    m_widths.clear();
    const QStyleOptionViewItem option;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        Width width{column == 0 ? 0 : m_header->columnWidth(column), leastWidth};
        for (int row = 0; row < std::min(m_model.rowCount(), measuredRows); ++row) {
            const QModelIndex index = m_model.index(row, column);
            const int hint = m_delegate.sizeHint(option, index).width();
            width.wanted = std::max(width.wanted, hint);
            if (column > 0 && !m_model.cell(index).problem.isEmpty())
                width.least = std::max(width.least, std::min(hint, mostWidth));
        }
        m_widths.append(column == 0 ? Width{width.wanted, width.wanted} : width);
    }
}

int ImportTable::widestThatFits() const
{
    for (int most = mostWidth; most >= leastOfWide; --most) {
        const auto add = [most](int sum, const Width& width) { return sum + width.within(most); };
        if (std::accumulate(m_widths.cbegin(), m_widths.cend(), 0, add) <= viewport()->width())
            return most;
    }
    return mostWidth;
}

void ImportTable::layOutColumns()
{
    const int most = widestThatFits();
    const auto widthOf = [&](int column) { return m_widths.at(column).within(most); };
    int wanted = 0;
    for (int column = 0; column < m_widths.size(); ++column)
        wanted += widthOf(column);
    const int spare = std::max(0, viewport()->width() - wanted);
    const int columns = std::max<int>(1, static_cast<int>(m_widths.size()) - 1);
    int left = spare;
    for (int column = 0; column < m_widths.size(); ++column) {
        const bool isLast = column == m_widths.size() - 1;
        const int more = column == 0 ? 0 : isLast ? left : spare / columns;
        left -= more;
        setColumnWidth(column, widthOf(column) + more);
    }
}

void ImportTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && currentIndex().isValid())
        m_model.toggle(currentIndex().row());
    else
        RowTable::keyPressEvent(event);
}

void ImportTable::mouseReleaseEvent(QMouseEvent* event)
{
    RowTable::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid() && index.column() == ImportTableModel::ChoiceColumn)
        m_model.toggle(index.row());
}

void ImportTable::resizeEvent(QResizeEvent* event)
{
    RowTable::resizeEvent(event);
    layOutColumns();
}

void ImportTable::changeEvent(QEvent* event)
{
    RowTable::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        measureColumns();
        layOutColumns();
    }
}

} // namespace abissora
