// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "DetailContent.h"
#include "MaintenanceRecords.h"

class QScrollArea;

namespace abissora {

class EmptyState;

/// The records of an item, each in its row.
class MaintenanceHistory : public GroupBox
{
    Q_OBJECT

public:
    /// Lies somewhere inside the area's widget.
    explicit MaintenanceHistory(QScrollArea& area, QWidget* parent = nullptr);

    /// The last row leaves the focus to the one before it when it goes; the last of all to whoever takes it.
    void setRows(const QList<MaintenanceRowContent>& rows);

Q_SIGNALS:
    /// What the person wants done with the record of this id.
    void editRequested(QUuid id);
    void deleteRequested(QUuid id);
    void openRequested(QUuid id, abissora::DocumentSlot slot);
    void replaceRequested(QUuid id, abissora::DocumentSlot slot);
    void uploadRequested(QUuid id, abissora::DocumentSlot slot);
    void attachRequested(QUuid id, abissora::DocumentSlot slot, const QString& path);

private:
    class Rows;

    Rows* m_rows;
    EmptyState* m_empty;
};

} // namespace abissora
