// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "Cards.h"

namespace abissora {

class EmptyState;
class MaintenanceRow;

/// The records of an item, newest first.
class MaintenanceHistory : public GroupBox
{
    Q_OBJECT

public:
    explicit MaintenanceHistory(const AppContext& context, QWidget* parent = nullptr);

    /// A row that goes leaves the focus to the last one that stays; the last of all leaves it to whoever takes it.
    void setHistory(const QList<Maintenance>& history);

Q_SIGNALS:
    /// The record as the person changed it in its row.
    void updated(const abissora::Maintenance& maintenance);
    void editRequested(const QUuid& id);
    void deleteRequested(const QUuid& id);

private:
    void addRow();
    void keepFocusAbove(qsizetype staying);

    struct Entry
    {
        QWidget* divider;
        MaintenanceRow* row;
    };

    AppContext m_context;
    QList<Entry> m_entries;
    EmptyState* m_empty;
};

} // namespace abissora
