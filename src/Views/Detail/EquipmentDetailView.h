// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"

#include <QWidget>

class QScrollArea;

namespace abissora {

class DetailActions;
class DetailHeader;
class MaintenanceHistory;
class SelectableText;
class TechnicalDetails;
class ViewSheet;

/// One item in full, with what can be done with it. Works on a copy of the item, writes every change through the
/// register and takes over whatever the register makes of the item. An item that the register no longer has stays on
/// show as it was.
class EquipmentDetailView : public QWidget
{
    Q_OBJECT

public:
    EquipmentDetailView(const AppContext& context, const Equipment& equipment, QWidget* parent = nullptr);

    /// The screen in a sheet over another one.
    [[nodiscard]] static ViewSheet* makeSheet(const AppContext& context, const Equipment& equipment, QWidget* parent);

    [[nodiscard]] const Equipment& equipment() const { return m_equipment; }
    /// Shows an item, another one from its top.
    void setEquipment(const Equipment& equipment);

    void openEditForm();
    /// For a new record.
    void openMaintenanceForm();
    void startEditingMaintenance(const QUuid& id);
    void confirmDeleteMaintenance(const QUuid& id);
    void confirmDeletion();
    [[nodiscard]] QString maintenanceDeleteAlertMessage() const;

Q_SIGNALS:
    /// The person closed the screen or deleted the item.
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QWidget* makeTitleBar();
    [[nodiscard]] QScrollArea* makeBody();
    void connectParts();
    void syncFromModel();
    void redraw();
    void toggleActive();
    void storeMaintenance(const Maintenance& maintenance);
    void deleteSelectedMaintenance();
    void openMaintenanceForm(const std::optional<Maintenance>& editing);

    AppContext m_context;
    Equipment m_equipment;
    std::optional<Maintenance> m_maintenanceToDelete;

    DetailHeader* m_header;
    TechnicalDetails* m_technical;
    SelectableText* m_notes;
    DetailActions* m_actions;
    MaintenanceHistory* m_history;
    QScrollArea* m_body;
};

} // namespace abissora
