// SPDX-License-Identifier: MIT
#include "MaintenanceHistory.h"

#include "Cards.h"
#include "EmptyState.h"
#include "Literals.h"
#include "MaintenanceRecords.h"
#include "MaintenanceRow.h"

#include <QVBoxLayout>

namespace abissora {

MaintenanceHistory::MaintenanceHistory(const AppContext& context, QWidget* parent)
    : GroupBox(u"Cronologia Manutenzione"_s, u"clock.arrow.circlepath"_s, parent)
    , m_context(context)
    , m_empty(new EmptyState(u"checkmark.circle"_s, u"Nessuna manutenzione registrata"_s))
{
    m_empty->setObjectName(u"emptyHistory"_s);
    content()->addWidget(m_empty);
}

void MaintenanceHistory::setHistory(const QList<Maintenance>& history)
{
    const QList<Maintenance> records = newestFirst(history);
    while (m_entries.size() < records.size())
        addRow();
    if (!records.isEmpty())
        keepFocusAbove(records.size());
    while (m_entries.size() > records.size()) {
        // Later, not now: the change may come from a button of the very row.
        const Entry entry = m_entries.takeLast();
        for (QWidget* part : {entry.divider, static_cast<QWidget*>(entry.row)}) {
            part->hide();
            part->deleteLater();
        }
    }
    for (qsizetype i = 0; i < records.size(); ++i)
        m_entries.at(i).row->setMaintenance(records.at(i));
    m_empty->setVisible(records.isEmpty());
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
    const Entry entry{new Separator(Separator::Weight::Divider), new MaintenanceRow(m_context)};
    MaintenanceRow* const row = entry.row;
    row->setObjectName(u"maintenance%1"_s.arg(m_entries.size()));
    connect(row, &MaintenanceRow::updated, this, [this, row] { Q_EMIT updated(row->maintenance()); });
    connect(row, &MaintenanceRow::editRequested, this, [this, row] { Q_EMIT editRequested(row->maintenance().id); });
    connect(row, &MaintenanceRow::deleteRequested, this,
            [this, row] { Q_EMIT deleteRequested(row->maintenance().id); });
    content()->addWidget(entry.divider);
    content()->addWidget(row);
    entry.divider->setVisible(!m_entries.isEmpty());
    m_entries.append(entry);
}

} // namespace abissora
