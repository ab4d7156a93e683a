// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceDocumentStore.h"
#include "MaintenanceRecords.h"

#include <QMap>
#include <QObject>

namespace abissora {

/// The documents of a record while a form edits it. A picked file is copied in at once, but nothing that the stored
/// record names goes before it is committed. A draft that ends otherwise takes back what was attached to it and cancels
/// what is still being copied.
class AttachmentDraft : public QObject
{
    Q_OBJECT

public:
    /// `documents` must outlive it.
    AttachmentDraft(MaintenanceDocumentStore& documents, const Maintenance& stored);
    ~AttachmentDraft() override;

    [[nodiscard]] const std::optional<QString>& name(DocumentSlot slot) const { return documentName(m_names, slot); }
    /// Where the file lies that the slot names.
    [[nodiscard]] std::optional<QString> path(DocumentSlot slot) const;

    /// Lets the person pick a PDF, or takes the file that she chose already. False when none came of it and the slot
    /// stayed as it was. Does nothing while one is being copied for the slot.
    QCoro::Task<bool> attach(DocumentSlot slot, std::optional<QString> path = std::nullopt);
    /// Cancels a copy for the slot, too.
    void remove(DocumentSlot slot);
    [[nodiscard]] bool isCopying(DocumentSlot slot) const;
    /// For any slot.
    [[nodiscard]] bool isCopying() const;
    /// `record` with the names of the draft.
    [[nodiscard]] Maintenance appliedTo(Maintenance record) const;

    /// Once the register has the record: deletes the files that it names no more and those that it never came to name.
    void commit();
    /// Deletes what was attached; the stored names stand again.
    void discard();

Q_SIGNALS:
    /// A slot may hold another document.
    void changed();

private:
    void cancelCopies();

    MaintenanceDocumentStore& m_documents;
    Maintenance m_stored;
    Maintenance m_names;
    QStringList m_attached;
    QMap<DocumentSlot, std::shared_ptr<WorkProgress>> m_copies; ///< those under way
};

} // namespace abissora
