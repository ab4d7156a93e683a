// SPDX-License-Identifier: MIT
#include "DocumentLink.h"

#include "Buttons.h"
#include "Literals.h"
#include "Opening.h"
#include "TypeScale.h"

#include <QHBoxLayout>
#include <QPointer>

namespace abissora {

DocumentLink::DocumentLink(DocumentSlot slot, MaintenanceDocumentStore& documents, Opener& opener, QWidget* parent)
    : QWidget(parent)
    , m_documents(documents)
    , m_opener(opener)
    , m_open(new LinkButton(documentLabel(slot)))
    , m_replace(new LookButton(ButtonLook::DestructiveLink, u"Sostituisci"_s))
    , m_upload(new LinkButton(u"Carica "_s + documentLabel(slot)))
{
    const bool isReceipt = slot == DocumentSlot::Receipt;
    m_open->setObjectName(isReceipt ? u"openReceipt"_s : u"openCertificate"_s);
    m_replace->setObjectName(isReceipt ? u"replaceReceipt"_s : u"replaceCertificate"_s);
    m_upload->setObjectName(isReceipt ? u"uploadReceipt"_s : u"uploadCertificate"_s);
    m_open->setSymbol(u"doc.text.fill"_s);
    m_replace->setSymbol(u"arrow.triangle.2.circlepath"_s);
    m_replace->setToolTip(u"Sostituisci il documento allegato"_s);
    m_upload->setSymbol(u"doc.badge.plus"_s);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (LookButton* button : {m_open, m_replace, m_upload}) {
        button->setFont(abissora::font(TextStyle::Caption));
        layout->addWidget(button);
    }
    connect(m_open, &QAbstractButton::clicked, this, &DocumentLink::open);
    connect(m_replace, &QAbstractButton::clicked, this, &DocumentLink::replace);
    connect(m_upload, &QAbstractButton::clicked, this, &DocumentLink::upload);
    refresh();
}

void DocumentLink::setFileName(const std::optional<QString>& name)
{
    m_name = name;
    refresh();
}

void DocumentLink::refresh()
{
    const bool present = m_name && m_documents.url(*m_name);
    const bool hadFocus = m_open->hasFocus() || m_replace->hasFocus() || m_upload->hasFocus();
    const bool changes = m_upload->isHidden() != present;
    if (changes && hadFocus) {
        // Before the focused button is hidden, which would send the focus elsewhere.
        LookButton* const next = present ? m_open : m_upload;
        next->show();
        next->setFocus();
    }
    m_open->setVisible(present);
    m_replace->setVisible(present);
    m_upload->setVisible(!present);
}

void DocumentLink::open()
{
    if (const std::optional<QString> path = m_documents.url(m_name.value_or(QString())))
        openDocument(*path, m_opener, *this);
    else
        refresh();
}

void DocumentLink::replace()
{
    if (!m_name)
        return;
    const QString name = *m_name;
    m_documents.deleteDocument(name);
    Q_EMIT removed(name);
}

void DocumentLink::upload()
{
    const QPointer<DocumentLink> alive(this);
    const std::optional<QString> name = m_documents.pickPDFAndStore(m_name);
    if (alive)
        Q_EMIT picked(name);
}

} // namespace abissora
