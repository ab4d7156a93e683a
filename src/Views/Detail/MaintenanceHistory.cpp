// SPDX-License-Identifier: MIT
#include "MaintenanceHistory.h"

#include "Cards.h"
#include "EmptyState.h"
#include "Literals.h"
#include "MaintenanceRow.h"

#include <QVBoxLayout>

namespace abissora {

MaintenanceHistory::MaintenanceHistory(QWidget* parent)
    : GroupBox(u"Cronologia Manutenzione"_s, u"clock.arrow.circlepath"_s, parent)
    , m_empty(new EmptyState(u"checkmark.circle"_s, u"Nessuna manutenzione registrata"_s))
{
    m_empty->setObjectName(u"emptyHistory"_s);
    content()->addWidget(m_empty);
}

void MaintenanceHistory::setRows(const QList<MaintenanceRowContent>& rows)
{
    while (m_entries.size() < rows.size())
        addRow();
    if (!rows.isEmpty())
        keepFocusAbove(rows.size());
    while (m_entries.size() > rows.size()) {
        // Later, not now: the change may come from a button of the very row.
        const Entry entry = m_entries.takeLast();
        for (QWidget* part : {entry.divider, static_cast<QWidget*>(entry.row)}) {
            part->hide();
            part->deleteLater();
        }
    }
    for (qsizetype i = 0; i < rows.size(); ++i)
        m_entries.at(i).row->setRow(rows.at(i));
    m_empty->setVisible(rows.isEmpty());
}

void MaintenanceHistory::keepFocusAbove(qsizetype staying)
{
    const QWidget* const focused = window()->focusWidget();
    const bool focusGoes = std::any_of(m_entries.cbegin() + staying, m_entries.cend(),
                                       [focused](const Entry& entry) { return entry.row->isAncestorOf(focused); });
    if (focusGoes)
        m_entries.at(staying - 1).row->takeFocus();
}

void MaintenanceHistory::addRow()
{
    const Entry entry{new Separator(Separator::Weight::Divider), new MaintenanceRow};
    MaintenanceRow* const row = entry.row;
    row->setObjectName(u"maintenance%1"_s.arg(m_entries.size()));
    connect(row, &MaintenanceRow::editRequested, this, &MaintenanceHistory::editRequested);
    connect(row, &MaintenanceRow::deleteRequested, this, &MaintenanceHistory::deleteRequested);
    connect(row, &MaintenanceRow::openRequested, this, &MaintenanceHistory::openRequested);
    connect(row, &MaintenanceRow::replaceRequested, this, &MaintenanceHistory::replaceRequested);
    connect(row, &MaintenanceRow::uploadRequested, this, &MaintenanceHistory::uploadRequested);
    content()->addWidget(entry.divider);
    content()->addWidget(row);
    entry.divider->setVisible(!m_entries.isEmpty());
    m_entries.append(entry);
}

} // namespace abissora
