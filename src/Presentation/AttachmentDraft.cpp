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

QCoro::Task<bool> AttachmentDraft::attach(DocumentSlot slot, std::optional<QString> path)
{
    if (isCopying(slot))
        co_return false;
    const auto copy = std::make_shared<WorkProgress>();
    m_copies.insert(slot, copy);
    // The form may be gone by then: the copy was cancelled and nothing is left of it.
    const QPointer<AttachmentDraft> alive(this);
    std::optional<QString> stored;
    if (path)
        stored = co_await m_documents.store(*path, copy);
    else
        stored = co_await m_documents.pickPDFAndStore(std::nullopt, copy);
    // One that was cancelled may end after its successor.
    if (!alive || m_copies.value(slot) != copy)
        co_return false;
    m_copies.remove(slot);
    if (stored) {
        m_attached.append(*stored);
        documentName(m_names, slot) = stored;
    }
    Q_EMIT changed();
    co_return stored.has_value();
}

void AttachmentDraft::remove(DocumentSlot slot)
{
    if (const auto copy = m_copies.value(slot))
        copy->cancel();
    documentName(m_names, slot).reset();
    Q_EMIT changed();
}

bool AttachmentDraft::isCopying(DocumentSlot slot) const
{
    const auto copy = m_copies.value(slot);
    return copy && !copy->isCancelled();
}

bool AttachmentDraft::isCopying() const
{
    return std::ranges::any_of(documentSlots, [this](DocumentSlot slot) { return isCopying(slot); });
}

Maintenance AttachmentDraft::appliedTo(Maintenance record) const
{
    record.receiptFileName = m_names.receiptFileName;
    record.certificateFileName = m_names.certificateFileName;
    return record;
}

void AttachmentDraft::commit()
{
    cancelCopies();
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
    cancelCopies();
    for (const QString& name : std::exchange(m_attached, {}))
        m_documents.deleteDocument(name);
    m_names = m_stored;
}

void AttachmentDraft::cancelCopies()
{
    for (const auto& copy : std::as_const(m_copies))
        copy->cancel();
}

} // namespace abissora
