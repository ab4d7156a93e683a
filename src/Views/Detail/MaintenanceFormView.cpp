// SPDX-License-Identifier: MIT
#include "MaintenanceFormView.h"

#include "Buttons.h"
#include "Cards.h"
#include "CostField.h"
#include "DateField.h"
#include "DocumentField.h"
#include "FormRow.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "NotesField.h"
#include "SymbolIcon.h"
#include "ToggleSwitch.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <limits>

namespace abissora {

namespace {

constexpr int costWidth = 170;
constexpr int notesHeight = 96;
constexpr std::int64_t usualInterval = 365;
constexpr std::int64_t computerInterval = 730;

Maintenance newRecord(const AppContext& context)
{
    Maintenance record;
    record.date = context.clock.now();
    record.nextServiceDate = record.date;
    record.isCompleted = true;
    return record;
}

} // namespace

MaintenanceFormView::MaintenanceFormView(const AppContext& context, const QUuid& equipmentId,
                                         const std::optional<Maintenance>& editingMaintenance, QWidget* parent)
    : Sheet(editingMaintenance ? u"Modifica Manutenzione"_s : u"Nuova Manutenzione"_s, parent)
    , m_context(context)
    , m_equipmentId(equipmentId)
    , m_isEditing(editingMaintenance.has_value())
    , m_original(editingMaintenance ? *editingMaintenance : newRecord(context))
    , m_date(new DateField(context.calendar))
    , m_type(new QComboBox)
    , m_description(new QLineEdit)
    , m_performedBy(new QLineEdit)
    , m_cost(new CostField)
    , m_completed(new ToggleSwitch(u"Manutenzione avvenuta"_s))
    , m_receipt(new DocumentField(DocumentSlot::Receipt, context.documents, context.opener))
    , m_certificate(new DocumentField(DocumentSlot::Certificate, context.documents, context.opener))
    , m_next(new DateField(context.calendar))
    , m_notes(new NotesField(notesHeight))
{
    setObjectName(u"maintenanceForm"_s);
    setPrimaryText(u"Salva"_s);
    buildBody();
    showRecord();
    connectFields();
    if (!m_isEditing)
        updateNextServiceDate();
}

void MaintenanceFormView::buildBody()
{
    for (QWidget* group : {makeDetails(), makeAdditional(), makeOutcome(), makeNextService(), makeNotes()})
        body()->addWidget(group);
    body()->addWidget(new InkLabel(TextStyle::Caption, &Tokens::secondaryText, u"* Campi obbligatori"_s));
    setFirstField(m_description);
}

QWidget* MaintenanceFormView::makeDetails()
{
    m_date->setObjectName(u"date"_s);
    m_date->setAccessibleName(u"Data"_s);
    m_date->setFixedWidth(withText(FormRow::labelColumn, fontMetrics())); // the type stands above the other fields
    m_type->setObjectName(u"type"_s);
    m_type->setAccessibleName(u"Tipo"_s);
    for (const MaintenanceType type : allCases<MaintenanceType>()) {
        const TypeAppearance look = appearanceOf(type);
        m_type->addItem(symbolIcon(look.icon, look.color), rawValue(type), static_cast<int>(type));
    }
    m_type->setFocusPolicy(Qt::StrongFocus);
    for (QLineEdit* field : {m_description, m_performedBy})
        field->setMaxLength(std::numeric_limits<int>::max()); // a form shall not shorten what is stored
    m_description->setObjectName(u"description"_s);
    m_description->setPlaceholderText(u"Inserisci la descrizione"_s);

    auto* group = new GroupBox(u"Dettagli Manutenzione"_s);
    auto* row = new QHBoxLayout;
    row->setSpacing(metrics::spaceM);
    row->addWidget(m_date);
    row->addWidget(m_type, 1);
    auto* error = new WrapLabel(TextStyle::Caption, &Tokens::danger);
    error->setObjectName(u"dateError"_s);
    error->hide();
    connect(m_date, &CheckedField::errorChanged, error, [error](const QString& text) {
        error->setText(text);
        error->setVisible(!text.isEmpty());
    });
    group->content()->addLayout(row);
    group->content()->addWidget(error);
    group->content()->addWidget(new FormRow(u"Descrizione*"_s, m_description));
    return group;
}

QWidget* MaintenanceFormView::makeAdditional()
{
    m_performedBy->setObjectName(u"performedBy"_s);
    m_performedBy->setPlaceholderText(u"Nome del tecnico"_s);
    m_cost->setObjectName(u"cost"_s);
    m_cost->setMaximumWidth(withText(costWidth, fontMetrics()));
    auto* group = new GroupBox(u"Informazioni Aggiuntive"_s);
    group->content()->addWidget(new FormRow(u"Eseguito da"_s, m_performedBy));
    group->content()->addWidget(new FormRow(u"Costo"_s, m_cost));
    return group;
}

QWidget* MaintenanceFormView::makeOutcome()
{
    m_completed->setObjectName(u"isCompleted"_s);
    auto* group = new GroupBox(u"Esito e Documenti"_s);
    group->content()->addWidget(m_completed);
    group->content()->addWidget(new FormRow(documentLabel(DocumentSlot::Receipt), m_receipt));
    group->content()->addWidget(new FormRow(documentLabel(DocumentSlot::Certificate), m_certificate));
    return group;
}

QWidget* MaintenanceFormView::makeNextService()
{
    m_next->setObjectName(u"nextServiceDate"_s);
    m_next->setAccessibleName(u"Data Prossimo Tagliando"_s);
    auto* explanation =
        new WrapLabel(TextStyle::Body, &Tokens::secondaryText,
                      u"Calcolata automaticamente: %1 giorni dall'intervallo configurato per la tipologia"_s.arg(
                          equipmentIntervalDays()));
    explanation->setObjectName(u"intervalExplanation"_s);
    auto* line = new QHBoxLayout;
    line->setSpacing(metrics::spaceS);
    line->addWidget(new IconView(symbolIcon(u"wand.and.stars"_s, NamedColor::blue)), 0, Qt::AlignTop);
    line->addWidget(explanation, 1);
    auto* group = new GroupBox(u"Prossimo Tagliando"_s);
    group->content()->addLayout(line);
    group->content()->addWidget(new FormRow(u"Data Prossimo Tagliando"_s, m_next));
    return group;
}

QWidget* MaintenanceFormView::makeNotes()
{
    m_notes->setObjectName(u"notes"_s);
    auto* group = new GroupBox(u"Note"_s);
    group->content()->addWidget(m_notes);
    return group;
}

void MaintenanceFormView::showRecord()
{
    m_date->setInstant(m_original.date);
    m_type->setCurrentIndex(m_type->findData(static_cast<int>(m_original.type)));
    m_description->setText(m_original.description);
    m_performedBy->setText(m_original.performedBy);
    m_cost->setCost(m_original.cost);
    m_completed->setChecked(m_original.isCompleted.value_or(true));
    m_receipt->setFileName(m_original.receiptFileName);
    m_certificate->setFileName(m_original.certificateFileName);
    m_next->setInstant(m_original.nextServiceDate);
    m_notes->setNotes(m_original.notes);
    primaryButton()->setEnabled(!m_original.description.isEmpty());
}

void MaintenanceFormView::connectFields()
{
    connect(m_date, &DateField::edited, this, [this] {
        // What stands unfinished in the other field is the person's own.
        if (m_autoUpdateNextDate && m_next->error().isEmpty())
            updateNextServiceDate();
    });
    connect(m_next, &DateField::edited, this, [this] { m_autoUpdateNextDate = false; });
    connect(m_description, &QLineEdit::textChanged, this,
            [this](const QString& text) { primaryButton()->setEnabled(!text.isEmpty()); });
    connect(this, &Sheet::primaryClicked, this, &MaintenanceFormView::save);
}

std::int64_t MaintenanceFormView::equipmentIntervalDays() const
{
    const QList<Equipment>& items = m_context.equipment.equipment();
    const auto item =
        std::find_if(items.begin(), items.end(), [this](const Equipment& e) { return e.id == m_equipmentId; });
    if (item == items.end())
        return usualInterval;
    if (const auto type = m_context.types.getTypeByName(item->typeName()))
        return std::max<std::int64_t>(type->serviceIntervalDays, 1);
    return item->type == EquipmentType::computer ? computerInterval : usualInterval;
}

void MaintenanceFormView::updateNextServiceDate()
{
    const Instant date = m_date->instant();
    m_next->setInstant(m_context.calendar.addDays(date, equipmentIntervalDays()).value_or(date));
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

Maintenance MaintenanceFormView::record()
{
    Maintenance record = m_original;
    if (!m_isEditing)
        record.id = m_context.ids.next();
    record.date = m_date->instant();
    record.type = static_cast<MaintenanceType>(m_type->currentData().toInt());
    record.description = m_description->text();
    record.performedBy = m_performedBy->text();
    record.cost = m_cost->cost().value_or(m_original.cost);
    record.isCompleted = m_completed->isChecked();
    record.receiptFileName = m_receipt->fileName();
    record.certificateFileName = m_certificate->fileName();
    record.nextServiceDate = m_next->instant();
    record.notes = m_notes->notes();
    return record;
}

void MaintenanceFormView::save()
{
    if (m_description->text().isEmpty())
        return;
    if (CheckedField* const field = firstInvalidField()) {
        goTo(field);
        return;
    }
    if (m_isEditing)
        m_context.equipment.updateMaintenance(m_equipmentId, record());
    else
        m_context.equipment.addMaintenance(m_equipmentId, record());
    accept();
}

void MaintenanceFormView::reject()
{
    m_receipt->discardAttached();
    m_certificate->discardAttached();
    Sheet::reject();
}

} // namespace abissora
