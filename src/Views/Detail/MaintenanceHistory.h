// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "DetailContent.h"
#include "MaintenanceRecords.h"

namespace abissora {

class EmptyState;
class MaintenanceRow;

/// The records of an item, each in its row.
class MaintenanceHistory : public GroupBox
{
    Q_OBJECT

public:
    explicit MaintenanceHistory(QWidget* parent = nullptr);

    /// A row that goes leaves the focus to the last one that stays; the last of all leaves it to whoever takes it.
    void setRows(const QList<MaintenanceRowContent>& rows);

Q_SIGNALS:
    /// What the person wants done with the record of this id.
    void editRequested(QUuid id);
    void deleteRequested(QUuid id);
    void openRequested(QUuid id, abissora::DocumentSlot slot);
    void replaceRequested(QUuid id, abissora::DocumentSlot slot);
    void uploadRequested(QUuid id, abissora::DocumentSlot slot);

private:
    void addRow();
    void keepFocusAbove(qsizetype staying);

    struct Entry
    {
        QWidget* divider;
        MaintenanceRow* row;
    };

    QList<Entry> m_entries;
    EmptyState* m_empty;
};

} // namespace abissora
