// SPDX-License-Identifier: MIT
#pragma once

#include "DetailContent.h"
#include "MaintenanceRecords.h"

#include <QWidget>

namespace abissora {

class DocumentControl;
class ElidedLabel;
class IconButton;
class IconTile;
class IconView;
class WrapLabel;

/// One record of the history with its documents.
class MaintenanceRow : public QWidget
{
    Q_OBJECT

public:
    explicit MaintenanceRow(QWidget* parent = nullptr);

    void setRow(const MaintenanceRowContent& row);
    /// Rows of one shape are equally high at this width, which this row need not have.
    [[nodiscard]] QString shapeOf(const MaintenanceRowContent& row, int width) const;
    /// On the first of its buttons.
    void takeFocus();

Q_SIGNALS:
    /// What the person wants done with the record of this id.
    void editRequested(QUuid id);
    void deleteRequested(QUuid id);
    void openRequested(QUuid id, abissora::DocumentSlot slot);
    void replaceRequested(QUuid id, abissora::DocumentSlot slot);
    void uploadRequested(QUuid id, abissora::DocumentSlot slot);
    /// A PDF that was dropped here.
    void attachRequested(QUuid id, abissora::DocumentSlot slot, const QString& path);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] QWidget* makeButtons();
    [[nodiscard]] DocumentControl* makeDocument(DocumentSlot slot);
    /// Where a document goes that is dropped at this place; nothing where both are taken.
    [[nodiscard]] std::optional<DocumentSlot> slotFor(QPoint place) const;
    void edit() { Q_EMIT editRequested(m_id); }
    void remove() { Q_EMIT deleteRequested(m_id); }
    void showMenu(QPoint globalPosition);

    QUuid m_id;
    bool m_hasReceipt = false;
    bool m_hasCertificate = false;
    IconTile* m_tile;
    WrapLabel* m_type;
    ElidedLabel* m_cost;
    WrapLabel* m_description;
    WrapLabel* m_dateAndPerformer;
    IconView* m_completedIcon;
    WrapLabel* m_completed;
    WrapLabel* m_notCompleted;
    IconButton* m_edit;
    DocumentControl* m_receipt;
    DocumentControl* m_certificate;
};

} // namespace abissora
