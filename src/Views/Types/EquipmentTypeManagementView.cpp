// SPDX-License-Identifier: MIT
#include "EquipmentTypeManagementView.h"

#include "AccessKeys.h"
#include "Alert.h"
#include "Buttons.h"
#include "Cards.h"
#include "EmptyState.h"
#include "EquipmentTypeFormView.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SearchField.h"
#include "TypeList.h"
#include "TypeManagement.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QStackedWidget>

namespace abissora {

namespace {

constexpr int preferredWidth = 700;
constexpr int preferredHeight = 600;
constexpr int sideMargin = 18;
constexpr int searchWidth = 220;

} // namespace

EquipmentTypeManagementView::EquipmentTypeManagementView(EquipmentTypeViewModel& types, IdGenerator& ids,
                                                         QWidget* parent)
    : Sheet(u"Gestione Tipologie"_s, parent)
    , m_types(types)
    , m_ids(ids)
    , m_update([this] { redraw(); })
    , m_search(new SearchField(u"Cerca..."_s))
    , m_add(new PrimaryButton(u"Nuova Tipologia"_s, u"plus"_s))
    , m_list(new TypeList)
    , m_empty(new EmptyState(u"magnifyingglass"_s, u"Nessuna tipologia trovata"_s))
    , m_pages(new QStackedWidget)
    , m_count(new InkLabel(TextStyle::Body, &Tokens::secondaryText))
    , m_reset(new PlainButton(u"Ripristina Default"_s))
{
    cancelButton()->setText(u"Chiudi"_s);
    setAccessKey(*cancelButton(), u'C');
    setAccessKey(*m_add, u'N');
    setAccessKey(*m_reset, u'R');
    setPreferredSize({withText(preferredWidth, fontMetrics()), withText(preferredHeight, fontMetrics())});
    setContent(makeContent());
    setFirstField(m_search);
    connectControls();
    redraw();
}

QWidget* EquipmentTypeManagementView::makeContent()
{
    m_search->setObjectName(u"typeSearch"_s);
    m_search->setFixedWidth(withText(searchWidth, fontMetrics()));
    m_add->setObjectName(u"addType"_s);
    m_count->setObjectName(u"typeCount"_s);
    m_reset->setObjectName(u"resetTypes"_s);
    m_list->setAccessibleName(u"Tipologie Attrezzatura"_s);
    auto* card = new Card;
    card->content()->setContentsMargins(1, 1, 1, 1);
    card->content()->addWidget(&m_list->area());
    m_pages->addWidget(card);
    m_pages->addWidget(m_empty);

    auto* header = new QHBoxLayout;
    header->setSpacing(metrics::spaceM);
    header->addWidget(new InkLabel(TextStyle::Headline, &Tokens::text, u"Tipologie Attrezzatura"_s), 1);
    header->addWidget(m_search);
    header->addWidget(m_add);
    auto* footer = new QHBoxLayout;
    footer->addWidget(m_count, 1);
    footer->addWidget(m_reset);

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(sideMargin, metrics::spaceL, sideMargin, metrics::spaceL);
    layout->setSpacing(metrics::spaceM);
    layout->addLayout(header);
    layout->addWidget(m_pages, 1);
    layout->addLayout(footer);
    return content;
}

void EquipmentTypeManagementView::connectControls()
{
    connect(&m_types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
    // A screen reader or a dictation sets the text, which is no edit to the field.
    connect(m_search, &SearchField::textChanged, this, &EquipmentTypeManagementView::redraw);
    connect(m_add, &QAbstractButton::clicked, this, [this] { openForm(std::nullopt); });
    connect(m_list, &TypeList::editRequested, this, &EquipmentTypeManagementView::openForm);
    connect(m_list, &TypeList::deleteRequested, this, &EquipmentTypeManagementView::confirmDeletion);
    connect(m_empty, &EmptyState::buttonClicked, this, [this] {
        m_search->setFocus(Qt::OtherFocusReason);
        m_search->clear();
    });
    connect(m_reset, &QAbstractButton::clicked, &m_types, &EquipmentTypeViewModel::resetToDefaults);
}

void EquipmentTypeManagementView::redraw()
{
    const QList<EquipmentTypeModel> shown = typesNamed(m_search->text(), m_types.filteredTypes());
    const bool focusWasInTheList = m_list->isAncestorOf(focusWidget());
    m_list->setTypes(shown);
    m_empty->setButtonText(m_search->text().isEmpty() ? QString() : u"Cancella ricerca"_s);
    m_pages->setCurrentIndex(shown.isEmpty() ? 1 : 0);
    if (shown.isEmpty() && focusWasInTheList)
        m_search->setFocus(Qt::OtherFocusReason);

    m_count->setText(activeTypesText(activeTypes(m_types.types())));
}

void EquipmentTypeManagementView::openForm(const std::optional<EquipmentTypeModel>& selectedType)
{
    auto* form = new EquipmentTypeFormView(m_types, m_ids, selectedType, this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->open();
}

void EquipmentTypeManagementView::confirmDeletion(const EquipmentTypeModel& typeToDelete)
{
    Alert::ask(this, u"Conferma Eliminazione"_s, deletionQuestion(typeToDelete),
               [this, typeToDelete] { m_types.deleteType(typeToDelete); });
}

} // namespace abissora
