// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentDetail.h"

#include <QBoxLayout>
#include <QWidget>

namespace abissora {

class DetailActions;
class DetailHeader;
class MaintenanceHistory;
class Opener;
class ScrollPane;
class SelectableText;
class TechnicalDetails;
class ViewSheet;

/// One item in full, with what can be done with it.
class EquipmentDetailView : public QWidget
{
    Q_OBJECT

public:
    /// `opener` must outlive it.
    EquipmentDetailView(std::unique_ptr<EquipmentDetail> detail, Opener& opener, QWidget* parent = nullptr);
    /// Over another screen.
    [[nodiscard]] static ViewSheet* makeSheet(std::unique_ptr<EquipmentDetail> detail, Opener& opener, QWidget* parent);

    /// What its texts need at their present size.
    [[nodiscard]] static int leastWidth();

    [[nodiscard]] const Equipment& equipment() const { return m_detail->equipment(); }
    /// Shows an item, another one from its top.
    void setEquipment(const Equipment& equipment);

    void openEditForm();
    /// For a new record.
    void openMaintenanceForm();
    void startEditingMaintenance(const QUuid& id);
    void confirmDeleteMaintenance(const QUuid& id);
    void confirmDeletion();

Q_SIGNALS:
    /// The person closed the screen or deleted the item.
    void closed();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QWidget* makeTitleBar();
    void fillBody();
    void keepMargins();
    void connectParts();
    void redraw();
    void openForm(std::unique_ptr<MaintenanceDraft> draft);
    void openDocument(const QUuid& recordId, DocumentSlot slot);

    std::unique_ptr<EquipmentDetail> m_detail;
    Opener& m_opener;

    DetailHeader* m_header;
    TechnicalDetails* m_technical;
    SelectableText* m_notes;
    DetailActions* m_actions;
    ScrollPane* m_body;
    MaintenanceHistory* m_history;
    QHBoxLayout* m_titleLine = nullptr;
    QVBoxLayout* m_cards = nullptr;
};

} // namespace abissora
