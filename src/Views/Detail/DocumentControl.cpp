// SPDX-License-Identifier: MIT
#include "DocumentControl.h"

#include "AccessKeys.h"
#include "Assembly.h"
#include "Buttons.h"
#include "IconViews.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"
#include "TypeScale.h"

#include <QHBoxLayout>

namespace abissora {

DocumentControl::DocumentControl(DocumentSlot slot, Place place, QWidget* parent)
    : QWidget(parent)
    , m_label(documentLabel(slot))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (place == Place::Form)
        lookLikeAForm(slot);
    else
        lookLikeLinks(slot);
    for (LookButton* button : {m_open, m_takeAway, m_takeIn})
        layout->addWidget(button);
    if (place == Place::Form)
        layout->addStretch();
    connect(m_open, &QAbstractButton::clicked, this, &DocumentControl::openClicked);
    connect(m_takeAway, &QAbstractButton::clicked, this, &DocumentControl::takeAwayClicked);
    connect(m_takeIn, &QAbstractButton::clicked, this, &DocumentControl::takeInClicked);
    setPresent(false);
}

void DocumentControl::lookLikeAForm(DocumentSlot slot)
{
    const QString label = documentLabel(slot);
    auto* file = named(new IconLabel(symbolIcon(u"doc.fill"_s, NamedColor::blue)), u"file"_s + label);
    file->setText(label + u" (PDF)"_s);
    m_file = file;
    layout()->setSpacing(metrics::spaceS);
    layout()->addWidget(file);

    m_open = named(new PlainButton(u"Apri"_s), u"open"_s + label);
    m_takeAway = named(new DestructiveButton(u"Rimuovi"_s), u"remove"_s + label);
    const QString attach = slot == DocumentSlot::Receipt ? u"Carica scontrino (PDF)"_s : u"Carica certificato (PDF)"_s;
    m_takeIn = named(new PlainButton(attach, u"doc.badge.plus"_s), u"attach"_s + label);
    // Both documents have buttons of the same text.
    for (LookButton* button : {m_open, m_takeAway})
        button->setAccessibleName(button->text() + u' ' + label);
    const bool isReceipt = slot == DocumentSlot::Receipt;
    setAccessKey(*m_open, isReceipt ? u'P' : u'I');
    setAccessKey(*m_takeAway, isReceipt ? u'R' : u'V');
    setAccessKey(*m_takeIn, isReceipt ? u'O' : u'F');
}

void DocumentControl::lookLikeLinks(DocumentSlot slot)
{
    const QString label = documentLabel(slot);
    const QString name = slot == DocumentSlot::Receipt ? u"Receipt"_s : u"Certificate"_s;
    layout()->setSpacing(0);
    m_open = named(new LinkButton(label, u"doc.text.fill"_s), u"open"_s + name);
    m_takeAway = named(new LookButton(ButtonLook::DestructiveLink, u"Sostituisci"_s, u"arrow.triangle.2.circlepath"_s),
                       u"replace"_s + name);
    m_takeAway->setToolTip(u"Sostituisci il documento allegato"_s);
    m_takeIn = named(new LinkButton(u"Carica "_s + label, u"doc.badge.plus"_s), u"upload"_s + name);
    for (LookButton* button : {m_open, m_takeAway, m_takeIn})
        button->setFont(abissora::font(TextStyle::Caption));
}

void DocumentControl::setRecord(const QString& which)
{
    for (LookButton* button : {m_open, m_takeAway, m_takeIn})
        button->setAccessibleDescription(button == m_takeAway ? m_label + u", "_s + which : which);
}

void DocumentControl::setPresent(bool present)
{
    // Also while another window is in front, as a sheet that is about to close.
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    const bool changes = m_takeIn->isHidden() != present;
    if (changes && hadFocus) {
        // Before the focused button is hidden, which would send the focus elsewhere.
        LookButton* const next = present ? m_open : m_takeIn;
        next->show();
        next->setFocus();
    }
    if (m_file != nullptr)
        m_file->setVisible(present);
    m_open->setVisible(present);
    m_takeAway->setVisible(present);
    m_takeIn->setVisible(!present);
}

} // namespace abissora
