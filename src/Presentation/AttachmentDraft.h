// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceDocumentStore.h"
#include "MaintenanceRecords.h"

#include <QObject>

namespace abissora {

/// The documents of a record while a form edits it. A picked file is copied in at once, but nothing that the stored
/// record names goes before it is committed. A draft that ends otherwise takes back what was attached to it.
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

    /// Lets the person pick a PDF. The slot stays as it is when none came of it.
    void attach(DocumentSlot slot);
    void remove(DocumentSlot slot);
    /// `record` with the names of the draft.
    [[nodiscard]] Maintenance appliedTo(Maintenance record) const;

    /// Once the register has the record: deletes the files that it names no more and those that it never came to name.
    void commit();
    /// Deletes what was attached; the stored names stand again.
    void discard();

private:
    MaintenanceDocumentStore& m_documents;
    Maintenance m_stored;
    Maintenance m_names;
    QStringList m_attached;
};

} // namespace abissora
