// SPDX-License-Identifier: MIT
#include "DocumentField.h"

#include "Buttons.h"
#include "IconViews.h"
#include "Literals.h"
#include "Metrics.h"
#include "Opening.h"
#include "SymbolIcon.h"

#include <QHBoxLayout>
#include <QPointer>

namespace abissora {

DocumentField::DocumentField(DocumentSlot slot, MaintenanceDocumentStore& documents, Opener& opener, QWidget* parent)
    : QWidget(parent)
    , m_documents(documents)
    , m_opener(opener)
    , m_file(new IconLabel(symbolIcon(u"doc.fill"_s, NamedColor::blue)))
    , m_open(new PlainButton(u"Apri"_s))
    , m_remove(new DestructiveButton(u"Rimuovi"_s))
    , m_attach(
          new PlainButton(slot == DocumentSlot::Receipt ? u"Carica scontrino (PDF)"_s : u"Carica certificato (PDF)"_s))
{
    const QString label = documentLabel(slot);
    m_file->setObjectName(u"file"_s + label);
    m_file->setText(label + u" (PDF)"_s);
    m_open->setObjectName(u"open"_s + label);
    m_open->setAccessibleDescription(label);
    m_remove->setObjectName(u"remove"_s + label);
    m_remove->setAccessibleDescription(label);
    m_attach->setObjectName(u"attach"_s + label);
    m_attach->setSymbol(u"doc.badge.plus"_s);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::spaceS);
    for (QWidget* part : std::initializer_list<QWidget*>{m_file, m_open, m_remove, m_attach})
        layout->addWidget(part);
    layout->addStretch();
    connect(m_open, &QAbstractButton::clicked, this, &DocumentField::open);
    connect(m_remove, &QAbstractButton::clicked, this, &DocumentField::remove);
    connect(m_attach, &QAbstractButton::clicked, this, &DocumentField::attach);
    refresh();
}

void DocumentField::setFileName(const std::optional<QString>& name)
{
    m_name = name;
    refresh();
}

void DocumentField::discardAttached()
{
    if (m_attached)
        m_documents.deleteDocument(*m_attached);
    m_attached.reset();
}

void DocumentField::refresh()
{
    const bool present = m_name && m_documents.url(*m_name);
    const bool hadFocus = m_open->hasFocus() || m_remove->hasFocus() || m_attach->hasFocus();
    const bool changes = m_attach->isHidden() != present;
    if (changes && hadFocus) {
        // Before the focused button is hidden, which would send the focus elsewhere.
        LookButton* const next = present ? m_open : m_attach;
        next->show();
        next->setFocus();
    }
    for (QWidget* part : std::initializer_list<QWidget*>{m_file, m_open, m_remove})
        part->setVisible(present);
    m_attach->setVisible(!present);
}

void DocumentField::open()
{
    if (const std::optional<QString> path = m_documents.url(m_name.value_or(QString())))
        openDocument(*path, m_opener, *this);
    else
        refresh();
}

void DocumentField::remove()
{
    if (m_name)
        m_documents.deleteDocument(*m_name);
    if (m_attached == m_name)
        m_attached.reset();
    setFileName(std::nullopt);
}

void DocumentField::attach()
{
    const QPointer<DocumentField> alive(this);
    const std::optional<QString> stored = m_documents.pickPDFAndStore(m_name);
    if (!alive || !stored)
        return;
    m_attached = stored;
    setFileName(stored);
}

} // namespace abissora
