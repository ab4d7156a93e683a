// SPDX-License-Identifier: MIT
#include "MaintenanceFormView.h"

#include "AccessKeys.h"
#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "CostField.h"
#include "DateField.h"
#include "DocumentControl.h"
#include "FileDrop.h"
#include "FormFields.h"
#include "FormRow.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "OneLine.h"
#include "Opening.h"
#include "PdfDocument.h"
#include "SymbolIcon.h"
#include "ToggleSwitch.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>

namespace abissora {

namespace {

constexpr int costWidth = 170;
constexpr int notesHeight = 96;

} // namespace

MaintenanceFormView::MaintenanceFormView(std::unique_ptr<MaintenanceDraft> draft, Opener& opener, QWidget* parent)
    : Sheet(draft->isNew() ? u"Nuova Manutenzione"_s : u"Modifica Manutenzione"_s, parent)
    , m_draft(std::move(draft))
    , m_opener(opener)
    , m_initial(m_draft->initial())
    , m_autoUpdateNextDate(m_draft->nextDateFollows())
    , m_date(named(new DateField(m_draft->calendar()), "date"))
    , m_type(named(new QComboBox, "type"))
    , m_description(makeTextField(u"description"_s, u"Inserisci la descrizione"_s))
    , m_performedBy(makeTextField(u"performedBy"_s, u"Nome del tecnico"_s))
    , m_cost(named(new CostField, "cost"))
    , m_completed(named(new ToggleSwitch(u"Manutenzione avvenuta"_s), "isCompleted"))
    , m_next(named(new DateField(m_draft->calendar()), "nextServiceDate"))
    , m_notes(named(new NotesField(notesHeight), "notes"))
    , m_noCost(
          named(new InkLabel(TextStyle::Caption, &Tokens::danger, u"Il costo non è un importo valido"_s), "noCost"))
{
    setObjectName(u"maintenanceForm"_s);
    setPrimaryText(u"Salva"_s, u'S');
    buildBody();
    showState();
    connectFields();
}

void MaintenanceFormView::buildBody()
{
    m_cost->setMaximumWidth(withText(costWidth, fontMetrics()));
    m_next->setAccessibleName(u"Data Prossimo Tagliando"_s);
    setAccessKey(*m_completed, u'M');
    GroupBox* const notes = makeGroup(u"Note"_s, {m_notes});
    notes->setAccessKey(u'T', m_notes);
    for (QWidget* group : std::initializer_list<QWidget*>{
             makeDetails(),
             makeGroup(u"Informazioni Aggiuntive"_s,
                       {new FormRow(u"Eseguito da"_s, m_performedBy, u'E'), new FormRow(u"Costo"_s, m_cost, u'C')}),
             makeGroup(u"Esito e Documenti"_s,
                       {m_completed, makeDocument(DocumentSlot::Receipt), makeDocument(DocumentSlot::Certificate)}),
             makeNextService(),
             notes,
         })
        body()->addWidget(group);
    body()->addStretch();
    addToFoot(new InkLabel(TextStyle::Caption, &Tokens::secondaryText, u"* Campi obbligatori"_s));
    QSizePolicy policy = m_noCost->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing shall move while somebody types
    m_noCost->setSizePolicy(policy);
    addToFoot(m_noCost);
    setFirstField(m_description);
}

QWidget* MaintenanceFormView::makeDetails()
{
    m_date->setAccessibleName(u"Data"_s);
    m_date->setFixedWidth(withText(FormRow::labelColumn, fontMetrics())); // the type stands above the other fields
    setAccessiblePicker(*m_type);
    m_type->setAccessibleName(u"Tipo"_s);
    for (const MaintenanceType type : allCases<MaintenanceType>()) {
        const TypeAppearance look = appearanceOf(type);
        m_type->addItem(symbolIcon(look.icon, look.color), rawValue(type), static_cast<int>(type));
    }
    m_type->setFocusPolicy(Qt::StrongFocus);

    auto* error = named(new WrapLabel(TextStyle::Caption, &Tokens::danger), "dateError");
    error->hide();
    connect(m_date, &CheckedField::errorChanged, error, [error](const QString& text) {
        error->setText(text);
        error->setVisible(!text.isEmpty());
    });
    auto* group = new GroupBox(u"Dettagli Manutenzione"_s);
    group->content()->addLayout(inRow(metrics::spaceM, {m_date, {m_type, 1}}));
    group->content()->addWidget(error);
    group->content()->addWidget(new FormRow(u"Descrizione*"_s, m_description, u'D'));
    return group;
}

QWidget* MaintenanceFormView::makeDocument(DocumentSlot slot)
{
    auto* document = new DocumentControl(slot, DocumentControl::Place::Form);
    AttachmentDraft& attachments = m_draft->attachments();
    const auto refresh = [document, slot, &attachments] { document->setPresent(attachments.path(slot).has_value()); };
    connect(document, &DocumentControl::openClicked, this, [this, slot, refresh] {
        if (const auto path = m_draft->attachments().path(slot))
            openDocument(*path, m_opener, *this);
        else
            refresh();
    });
    connect(document, &DocumentControl::takeAwayClicked, this, [this, slot] { m_draft->attachments().remove(slot); });
    connect(document, &DocumentControl::takeInClicked, this, [this, slot] { attach(slot); });
    connect(&attachments, &AttachmentDraft::changed, document, refresh);
    refresh();
    auto* row = new FormRow(documentLabel(slot), document);
    auto* drop = new FileDrop(*row, [](const QString& path, QPoint /*place*/) { return isPdf(path); });
    connect(drop, &FileDrop::dropped, this, [this, slot](const QString& path) { attach(slot, path); });
    return row;
}

QCoro::Task<> MaintenanceFormView::attach(DocumentSlot slot, std::optional<QString> path)
{
    AttachmentDraft& attachments = m_draft->attachments();
    if (attachments.isCopying(slot))
        co_return;
    m_savesOnceCopied = false;
    const QPointer<MaintenanceFormView> alive(this);
    const bool attached = co_await attachments.attach(slot, path);
    if (!alive)
        co_return;
    const bool saves = std::exchange(m_savesOnceCopied, false);
    if (saves && attached)
        save();
}

QWidget* MaintenanceFormView::makeNextService()
{
    auto* explanation =
        named(new WrapLabel(TextStyle::Body, &Tokens::secondaryText,
                            u"Calcolata automaticamente: %1 giorni dall'intervallo configurato per la tipologia"_s.arg(
                                m_draft->intervalDays())),
              "intervalExplanation");
    auto* wand = new IconView(symbolIcon(u"wand.and.stars"_s, NamedColor::blue));
    auto* group = new GroupBox(u"Prossimo Tagliando"_s);
    group->content()->addLayout(inRow(metrics::spaceS, {{wand, 0, Qt::AlignTop}, {explanation, 1}}));
    group->content()->addWidget(new FormRow(u"Data Prossimo Tagliando"_s, m_next, u'G'));
    return group;
}

void MaintenanceFormView::showState()
{
    m_date->setInstant(m_initial.date);
    m_type->setCurrentIndex(m_type->findData(static_cast<int>(m_initial.type)));
    setStoredText(*m_description, m_initial.description);
    setStoredText(*m_performedBy, m_initial.performedBy);
    m_cost->setCurrencySymbol(m_draft->currencySymbol());
    m_cost->setCost(m_initial.cost);
    m_completed->setChecked(m_initial.isCompleted);
    m_next->setInstant(m_initial.nextServiceDate);
    m_notes->setNotes(m_initial.notes);
    refresh();
}

void MaintenanceFormView::refresh()
{
    const bool hasCost = m_cost->cost().has_value();
    m_noCost->setVisible(!hasCost);
    primaryButton()->setEnabled(hasCost && !m_description->text().isEmpty());
}

MaintenanceFormState MaintenanceFormView::state() const
{
    return {
        .date = m_date->instant(),
        .type = static_cast<MaintenanceType>(m_type->currentData().toInt()),
        .description = m_description->text(),
        .performedBy = m_performedBy->text(),
        .cost = m_cost->cost().value_or(m_initial.cost),
        .isCompleted = m_completed->isChecked(),
        .nextServiceDate = m_next->instant(),
        .notes = m_notes->notes(),
    };
}

void MaintenanceFormView::connectFields()
{
    connect(m_date, &DateField::instantChanged, &m_listener, [this] {
        // What stands unfinished in the other field is the person's own.
        if (m_autoUpdateNextDate && m_next->error().isEmpty())
            m_next->setInstant(m_draft->nextServiceDate(m_date->instant()));
    });
    connect(m_next, &DateField::edited, &m_listener, [this] { m_autoUpdateNextDate = false; });
    for (const QLineEdit* field : std::initializer_list<QLineEdit*>{m_description, m_cost})
        connect(field, &QLineEdit::textChanged, &m_listener, [this] { refresh(); });
    connect(this, &Sheet::primaryClicked, this, &MaintenanceFormView::save);
}

CheckedField* MaintenanceFormView::firstInvalidField() const
{
    // The date first: the next one may follow it.
    CheckedField* first = nullptr;
    for (CheckedField* field : std::initializer_list<CheckedField*>{m_date, m_cost, m_next}) {
        if (!field->commit() && first == nullptr)
            first = field;
    }
    return first;
}

void MaintenanceFormView::save()
{
    if (!primaryButton()->isEnabled())
        return;
    if (CheckedField* const field = firstInvalidField()) {
        goTo(field);
        return;
    }
    if (m_draft->attachments().isCopying()) {
        m_savesOnceCopied = true;
        return;
    }
    m_draft->save(state());
    accept();
}

void MaintenanceFormView::reject()
{
    m_draft->attachments().discard();
    Sheet::reject();
}

} // namespace abissora
