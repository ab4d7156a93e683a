// SPDX-License-Identifier: MIT
#include "MaintenanceHistory.h"

#include "Cards.h"
#include "EmptyState.h"
#include "Literals.h"
#include "MaintenanceRow.h"
#include "Metrics.h"
#include "RowList.h"

#include <QVBoxLayout>

namespace abissora {

class MaintenanceHistory::Rows final : public RowList
{
public:
    Rows(QScrollArea& area, MaintenanceHistory& history)
        : RowList(area, {.gap = 2 * metrics::spaceS + 1})
        , m_history(history)
    {}

    void setRows(const QList<MaintenanceRowContent>& rows)
    {
        if (rows == m_content)
            return; // the register changed elsewhere
        const bool focusGoes = !rows.isEmpty() && focusedIndex() >= rows.size();
        m_content = rows;
        QList<QUuid> ids;
        for (const MaintenanceRowContent& row : rows)
            ids.append(row.id);
        showItems(ids);
        if (focusGoes)
            rowsAs<MaintenanceRow>().constLast()->takeFocus();
    }

private:
    QWidget* makeRow() override
    {
        auto* row = new MaintenanceRow(this);
        connect(row, &MaintenanceRow::editRequested, &m_history, &MaintenanceHistory::editRequested);
        connect(row, &MaintenanceRow::deleteRequested, &m_history, &MaintenanceHistory::deleteRequested);
        connect(row, &MaintenanceRow::openRequested, &m_history, &MaintenanceHistory::openRequested);
        connect(row, &MaintenanceRow::replaceRequested, &m_history, &MaintenanceHistory::replaceRequested);
        connect(row, &MaintenanceRow::uploadRequested, &m_history, &MaintenanceHistory::uploadRequested);
        connect(row, &MaintenanceRow::attachRequested, &m_history, &MaintenanceHistory::attachRequested);
        return row;
    }
    void fillRow(QWidget& row, qsizetype index) override
    {
        row.setObjectName(u"maintenance%1"_s.arg(index));
        static_cast<MaintenanceRow&>(row).setRow(m_content.at(index));
    }
    [[nodiscard]] QString shapeOf(const QWidget& ruler, qsizetype index) const override
    {
        return static_cast<const MaintenanceRow&>(ruler).shapeOf(m_content.at(index), width());
    }

    MaintenanceHistory& m_history;
    QList<MaintenanceRowContent> m_content;
};

MaintenanceHistory::MaintenanceHistory(QScrollArea& area, QWidget* parent)
    : GroupBox(u"Cronologia Manutenzione"_s, u"clock.arrow.circlepath"_s, parent)
    , m_rows(new Rows(area, *this))
    , m_empty(new EmptyState(u"checkmark.circle"_s, u"Nessuna manutenzione registrata"_s))
{
    m_empty->setObjectName(u"emptyHistory"_s);
    m_rows->setAccessibleName(title());
    content()->addWidget(m_empty);
    content()->addWidget(m_rows);
}

void MaintenanceHistory::setRows(const QList<MaintenanceRowContent>& rows)
{
    m_empty->setVisible(rows.isEmpty());
    m_rows->setVisible(!rows.isEmpty());
    m_rows->setRows(rows);
}

} // namespace abissora
