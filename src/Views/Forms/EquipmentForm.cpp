// SPDX-License-Identifier: MIT
#include "EquipmentForm.h"

#include "Alert.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "DateField.h"
#include "FormRow.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "NotesField.h"
#include "ToggleSwitch.h"
#include "TypeChoice.h"
#include "TypePicker.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <limits>

namespace abissora {

namespace {

constexpr int notesHeight = 110;

QLineEdit* makeTextField(const char* objectName, const QString& placeholder = {})
{
    auto* field = named(new QLineEdit, objectName);
    field->setMaxLength(std::numeric_limits<int>::max()); // a form shall not shorten what is stored
    field->setPlaceholderText(placeholder);
    return field;
}

} // namespace

EquipmentForm::EquipmentForm(Purpose purpose, const QString& title, const AppContext& context,
                             const EquipmentFormState& initial, QWidget* parent)
    : Sheet(title, parent)
    , m_context(context)
    , m_purpose(purpose)
    , m_name(makeTextField("name", u"Inserisci il nome"_s))
    , m_type(named(new TypePicker, "type"))
    , m_interval(named(new InkLabel(TextStyle::Body, &Tokens::secondaryText), "interval"))
    , m_intervalRow(nullptr)
    , m_brand(makeTextField("brand", u"Inserisci la marca"_s))
    , m_model(makeTextField("model", u"Inserisci il modello"_s))
    , m_serialNumber(makeTextField("serialNumber", u"Inserisci il numero seriale"_s))
    , m_purchaseDate(named(new DateField(context.calendar), "purchaseDate"))
    , m_lastServiceDate(named(new DateField(context.calendar), "lastServiceDate"))
    , m_nextServiceDate(named(new InkLabel(TextStyle::Body, &Tokens::text), "nextServiceDate"))
    , m_isActive(named(new ToggleSwitch(u"Attivo"_s), "isActive"))
    , m_notes(named(new NotesField(notesHeight), "notes"))
    , m_incomplete(named(new InkLabel(TextStyle::Caption, &Tokens::danger), "incomplete"))
{
    setPrimaryText(u"Salva"_s);
    for (GroupBox* group :
         {makeGeneralGroup(), makeDetailsGroup(), makeDatesGroup(), makeStateGroup(), makeNotesGroup()})
        body()->addWidget(group);
    addFootnotes();
    setState(initial);
    connectFields();
    followTypes();
    setFirstField(firstEmptyRequiredField());
}

GroupBox* EquipmentForm::makeGeneralGroup()
{
    m_intervalRow = new FormRow(u"Intervallo tagliando"_s, m_interval);
    auto* group = new GroupBox(u"Informazioni Generali"_s);
    group->content()->addWidget(new FormRow(u"Nome*"_s, m_name));
    group->content()->addWidget(new FormRow(u"Tipo*"_s, m_type));
    group->content()->addWidget(m_intervalRow);
    return group;
}

GroupBox* EquipmentForm::makeDetailsGroup()
{
    auto* group = new GroupBox(u"Dettagli Tecnici"_s);
    group->content()->addWidget(new FormRow(u"Marca*"_s, m_brand));
    group->content()->addWidget(new FormRow(u"Modello"_s, m_model));
    group->content()->addWidget(new FormRow(u"Numero Seriale"_s, m_serialNumber));
    return group;
}

GroupBox* EquipmentForm::makeDatesGroup()
{
    auto* group = new GroupBox(u"Date"_s);
    group->content()->addWidget(new FormRow(u"Data Acquisto"_s, m_purchaseDate));
    group->content()->addWidget(new FormRow(u"Ultimo Tagliando"_s, m_lastServiceDate));
    group->content()->addWidget(new FormRow(u"Prossimo Tagliando"_s, m_nextServiceDate));
    return group;
}

GroupBox* EquipmentForm::makeStateGroup()
{
    auto* group = new GroupBox(u"Stato"_s);
    group->content()->addWidget(m_isActive);
    group->setVisible(m_purpose == Purpose::Edit);
    return group;
}

GroupBox* EquipmentForm::makeNotesGroup()
{
    auto* group = new GroupBox(u"Note"_s);
    group->content()->addWidget(m_notes);
    return group;
}

void EquipmentForm::addFootnotes()
{
    m_incomplete->setText(u"Compila tutti i campi obbligatori"_s);
    QSizePolicy policy = m_incomplete->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the sheet shall not jump while somebody types
    m_incomplete->setSizePolicy(policy);
    auto* footnotes = new QVBoxLayout;
    footnotes->setSpacing(metrics::spaceXS);
    footnotes->addWidget(
        named(new InkLabel(TextStyle::Caption, &Tokens::secondaryText, u"* Campi obbligatori"_s), "required"));
    footnotes->addWidget(m_incomplete);
    body()->addLayout(footnotes);
    body()->addStretch();
}

void EquipmentForm::setState(const EquipmentFormState& state)
{
    m_selectedTypeName = state.selectedTypeName;
    m_name->setText(state.name);
    m_brand->setText(state.brand);
    m_model->setText(state.model);
    m_serialNumber->setText(state.serialNumber);
    m_purchaseDate->setInstant(state.purchaseDate);
    m_lastServiceDate->setInstant(state.lastServiceDate);
    m_isActive->setChecked(state.isActive);
    m_notes->setNotes(state.notes);
}

void EquipmentForm::connectFields()
{
    for (const QLineEdit* field : {m_name, m_brand})
        connect(field, &QLineEdit::textChanged, this, &EquipmentForm::refresh);
    connect(m_lastServiceDate, &DateField::edited, this, &EquipmentForm::refresh);
    connect(m_type, &TypePicker::chosen, this, [this](const QString& typeName) {
        m_selectedTypeName = typeName;
        followTypes();
    });
    connect(&m_context.types, &EquipmentTypeViewModel::changed, this, &EquipmentForm::followTypes);
    connect(this, &Sheet::primaryClicked, this, &EquipmentForm::saveEquipment);
}

EquipmentFormState EquipmentForm::state() const
{
    return {
        .name = m_name->text(),
        .selectedTypeName = m_selectedTypeName,
        .brand = m_brand->text(),
        .model = m_model->text(),
        .serialNumber = m_serialNumber->text(),
        .purchaseDate = m_purchaseDate->instant(),
        .lastServiceDate = m_lastServiceDate->instant(),
        .notes = m_notes->notes(),
        .isActive = m_isActive->isChecked(),
    };
}

QLineEdit* EquipmentForm::firstEmptyRequiredField() const
{
    for (QLineEdit* field : {m_name, m_brand}) {
        if (field->text().trimmed().isEmpty())
            return field;
    }
    return nullptr;
}

DateField* EquipmentForm::firstInvalidDate() const
{
    DateField* first = nullptr;
    for (DateField* field : {m_lastServiceDate, m_purchaseDate}) {
        if (!field->commit())
            first = field;
    }
    return first;
}

void EquipmentForm::followTypes()
{
    const QList<EquipmentTypeModel> offered = m_context.types.filteredTypes();
    if (m_purpose == Purpose::Add && !offers(offered, m_selectedTypeName))
        m_selectedTypeName = defaultTypeName(offered);
    m_type->setTypes(m_purpose == Purpose::Edit ? availableTypes(offered, m_selectedTypeName) : offered,
                     m_selectedTypeName);
    refresh();
}

void EquipmentForm::refresh()
{
    const EquipmentFormState now = state();
    m_nextServiceDate->setText(m_context.dates.abbreviatedDate(
        now.calculateNextServiceDate(m_context.types, m_context.calendar, m_context.clock.now())));
    const auto type = m_context.types.getTypeByName(m_selectedTypeName);
    m_intervalRow->setVisible(m_purpose == Purpose::Edit && type);
    if (type)
        m_interval->setText(u"%1 giorni"_s.arg(type->serviceIntervalDays));
    m_incomplete->setVisible(!now.isFormValid());
}

void EquipmentForm::saveEquipment()
{
    DateField* const invalidDate = firstInvalidDate();
    const EquipmentFormState entered = state();
    if (!entered.isFormValid()) {
        showAlert(u"Per favore, compila tutti i campi obbligatori."_s);
        return;
    }
    if (invalidDate != nullptr) {
        goTo(invalidDate);
        return;
    }
    save(entered, entered.calculateNextServiceDate(m_context.types, m_context.calendar, m_context.clock.now()));
    accept();
}

void EquipmentForm::showAlert(const QString& message)
{
    connect(Alert::notice(this, u"Errore"_s, message), &QDialog::finished, this, [this] {
        if (QLineEdit* const field = firstEmptyRequiredField())
            goTo(field);
    });
}

} // namespace abissora
