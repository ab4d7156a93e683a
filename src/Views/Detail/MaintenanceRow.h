// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "MaintenanceRecords.h"

#include <QWidget>

namespace abissora {

class DocumentLink;
class IconButton;
class IconTile;
class IconView;
class InkLabel;
class WrapLabel;

/// One record of the history with its documents.
class MaintenanceRow : public QWidget
{
    Q_OBJECT

public:
    explicit MaintenanceRow(const AppContext& context, QWidget* parent = nullptr);

    void setMaintenance(const Maintenance& maintenance);
    [[nodiscard]] const Maintenance& maintenance() const { return m_maintenance; }
    /// On the first of its buttons.
    void takeFocus();

Q_SIGNALS:
    /// The person changed the record here; maintenance() has the change.
    void updated();
    void editRequested();
    void deleteRequested();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void build();
    [[nodiscard]] QWidget* makeButtons();
    [[nodiscard]] DocumentLink* makeLink(DocumentSlot slot);
    void showMenu(QPoint globalPosition);

    AppContext m_context;
    Maintenance m_maintenance;
    IconTile* m_tile;
    WrapLabel* m_type;
    InkLabel* m_cost;
    WrapLabel* m_description;
    WrapLabel* m_dateAndPerformer;
    IconView* m_completedIcon;
    WrapLabel* m_completed;
    WrapLabel* m_notCompleted;
    IconButton* m_edit;
    DocumentLink* m_receipt;
    DocumentLink* m_certificate;
};

} // namespace abissora
