// SPDX-License-Identifier: MIT
#include "AttachmentDraft.h"

#include <QPointer>

namespace abissora {

AttachmentDraft::AttachmentDraft(MaintenanceDocumentStore& documents, const Maintenance& stored)
    : m_documents(documents)
    , m_stored(stored)
    , m_names(stored)
{}

AttachmentDraft::~AttachmentDraft()
{
    discard();
}

std::optional<QString> AttachmentDraft::path(DocumentSlot slot) const
{
    return m_documents.url(name(slot).value_or(QString()));
}

void AttachmentDraft::attach(DocumentSlot slot)
{
    // The panel runs the event loop: the form may be gone when it closes.
    MaintenanceDocumentStore& documents = m_documents;
    const QPointer<AttachmentDraft> alive(this);
    const std::optional<QString> picked = documents.pickPDFAndStore(std::nullopt);
    if (!picked)
        return;
    if (!alive) {
        documents.deleteDocument(*picked);
        return;
    }
    m_attached.append(*picked);
    documentName(m_names, slot) = picked;
}

void AttachmentDraft::remove(DocumentSlot slot)
{
    documentName(m_names, slot).reset();
}

Maintenance AttachmentDraft::appliedTo(Maintenance record) const
{
    record.receiptFileName = m_names.receiptFileName;
    record.certificateFileName = m_names.certificateFileName;
    return record;
}

void AttachmentDraft::commit()
{
    for (const auto& name : {m_stored.receiptFileName, m_stored.certificateFileName}) {
        if (name)
            m_attached.append(*name);
    }
    for (const QString& name : std::exchange(m_attached, {})) {
        if (name != m_names.receiptFileName && name != m_names.certificateFileName)
            m_documents.deleteDocument(name);
    }
    m_stored = m_names;
}

void AttachmentDraft::discard()
{
    for (const QString& name : std::exchange(m_attached, {}))
        m_documents.deleteDocument(name);
    m_names = m_stored;
}

} // namespace abissora
