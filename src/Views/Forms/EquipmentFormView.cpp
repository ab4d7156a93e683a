// SPDX-License-Identifier: MIT
#include "EquipmentFormView.h"

#include "AccessKeys.h"
#include "Alert.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "DateField.h"
#include "FormFields.h"
#include "FormRow.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "OneLine.h"
#include "ToggleSwitch.h"
#include "TypeChoice.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int notesHeight = 74;

} // namespace

EquipmentForm::EquipmentForm(Purpose purpose, const QString& title, const EquipmentTypeViewModel& types,
                             const Almanac& almanac, const EquipmentFormState& initial, QWidget* parent)
    : Sheet(title, parent)
    , m_types(types)
    , m_almanac(almanac)
    , m_purpose(purpose)
    , m_name(makeTextField(u"name"_s, u"Inserisci il nome"_s))
    , m_type(named(new TypePicker, "type"))
    , m_interval(named(new InkLabel(TextStyle::Body, &Tokens::secondaryText), "interval"))
    , m_intervalRow(new FormRow(u"Intervallo tagliando"_s, m_interval))
    , m_brand(makeTextField(u"brand"_s, u"Inserisci la marca"_s))
    , m_model(makeTextField(u"model"_s, u"Inserisci il modello"_s))
    , m_serialNumber(makeTextField(u"serialNumber"_s, u"Inserisci il numero seriale"_s))
    , m_purchaseDate(named(new DateField(almanac.calendar), "purchaseDate"))
    , m_lastServiceDate(named(new DateField(almanac.calendar), "lastServiceDate"))
    , m_nextServiceDate(named(new InkLabel(TextStyle::Body, &Tokens::text), "nextServiceDate"))
    , m_isActive(named(new ToggleSwitch(u"Attivo"_s), "isActive"))
    , m_notes(named(new NotesField(notesHeight), "notes"))
    , m_incomplete(named(new InkLabel(TextStyle::Caption, &Tokens::danger), "incomplete"))
{
    setPrimaryText(u"Salva"_s, u'S');
    addGroups();
    addFootnotes();
    setState(initial);
    connectFields();
    followTypes();
    setFirstField(firstEmptyRequiredField());
}

void EquipmentForm::addGroups()
{
    GroupBox* const state = makeGroup(u"Stato"_s, {m_isActive});
    setAccessKey(*m_isActive, u'V');
    GroupBox* const notes = makeGroup(u"Note"_s, {m_notes});
    notes->setAccessKey(u'E', m_notes);
    if (m_purpose != Purpose::Edit)
        state->hide();
    for (GroupBox* group : {
             makeGroup(u"Informazioni Generali"_s,
                       {new FormRow(u"Nome*"_s, m_name, u'N'), new FormRow(u"Tipo*"_s, m_type, u'T'), m_intervalRow}),
             makeGroup(u"Dettagli Tecnici"_s,
                       {new FormRow(u"Marca*"_s, m_brand, u'M'), new FormRow(u"Modello"_s, m_model, u'D'),
                        new FormRow(u"Numero Seriale"_s, m_serialNumber, u'U')}),
             makeGroup(u"Date"_s, {new FormRow(u"Data Acquisto"_s, m_purchaseDate, u'Q'),
                                   new FormRow(u"Ultimo Tagliando"_s, m_lastServiceDate, u'L'),
                                   new FormRow(u"Prossimo Tagliando"_s, m_nextServiceDate)}),
             state,
             notes,
         })
        body()->addWidget(group);
}

void EquipmentForm::addFootnotes()
{
    m_incomplete->setText(u"Compila tutti i campi obbligatori"_s);
    QSizePolicy policy = m_incomplete->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the sheet shall not jump while somebody types
    m_incomplete->setSizePolicy(policy);
    auto* required =
        named(new InkLabel(TextStyle::Caption, &Tokens::secondaryText, u"* Campi obbligatori"_s), "required");
    body()->addStretch();
    addToFoot(required);
    addToFoot(m_incomplete);
}

void EquipmentForm::setState(const EquipmentFormState& state)
{
    m_selectedTypeName = state.selectedTypeName;
    setStoredText(*m_name, state.name);
    setStoredText(*m_brand, state.brand);
    setStoredText(*m_model, state.model);
    setStoredText(*m_serialNumber, state.serialNumber);
    m_purchaseDate->setInstant(state.purchaseDate);
    m_lastServiceDate->setInstant(state.lastServiceDate);
    m_isActive->setChecked(state.isActive);
    m_notes->setNotes(state.notes);
}

void EquipmentForm::connectFields()
{
    for (const QLineEdit* field : {m_name, m_brand})
        connect(field, &QLineEdit::textChanged, &m_listener, [this] { refresh(); });
    connect(m_lastServiceDate, &DateField::instantChanged, &m_listener, [this] { refresh(); });
    connect(m_type, &TypePicker::chosen, this, [this](const QString& typeName) {
        m_selectedTypeName = typeName;
        followTypes();
    });
    connect(&m_types, &EquipmentTypeViewModel::changed, this, &EquipmentForm::followTypes);
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
    const QList<EquipmentTypeModel> offered = m_types.filteredTypes();
    if (m_purpose == Purpose::Add && !offers(offered, m_selectedTypeName))
        m_selectedTypeName = defaultTypeName(offered);
    m_type->setTypes(m_purpose == Purpose::Edit ? availableTypes(offered, m_selectedTypeName) : offered,
                     m_selectedTypeName);
    refresh();
}

void EquipmentForm::refresh()
{
    const EquipmentFormState now = state();
    m_nextServiceDate->setText(m_almanac.dates.abbreviatedDate(nextServiceDate(now)));
    const auto type = m_types.getTypeByName(m_selectedTypeName);
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
        const auto* notice = Alert::notice(this, u"Errore"_s, u"Per favore, compila tutti i campi obbligatori."_s);
        connect(notice, &QDialog::finished, this, [this] {
            if (QLineEdit* const field = firstEmptyRequiredField())
                goTo(field);
        });
        return;
    }
    if (invalidDate != nullptr) {
        goTo(invalidDate);
        return;
    }
    save(entered, nextServiceDate(entered));
    accept();
}

Instant EquipmentForm::nextServiceDate(const EquipmentFormState& entered) const
{
    return entered.calculateNextServiceDate(m_types, m_almanac);
}

EquipmentFormView::EquipmentFormView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                                     const Almanac& almanac, IdGenerator& ids, const std::optional<Equipment>& like,
                                     QWidget* parent)
    : EquipmentForm(Purpose::Add, u"Nuova Attrezzatura"_s, types, almanac,
                    like ? EquipmentFormState::ofAnotherLike(*like) : EquipmentFormState::ofNewItem(almanac.now()),
                    parent)
    , m_equipment(equipment)
    , m_ids(ids)
{}

void EquipmentFormView::save(const EquipmentFormState& state, Instant nextServiceDate)
{
    Equipment item;
    item.id = m_ids.next();
    item = state.appliedTo(item, nextServiceDate);
    m_equipment.addEquipment(item);
    Q_EMIT saved(item);
}

EditEquipmentView::EditEquipmentView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                                     const Almanac& almanac, const Equipment& item, QWidget* parent)
    : EquipmentForm(Purpose::Edit, u"Modifica Attrezzatura"_s, types, almanac, EquipmentFormState::of(item), parent)
    , m_equipment(equipment)
    , m_item(item)
{}

void EditEquipmentView::save(const EquipmentFormState& state, Instant nextServiceDate)
{
    m_item = state.appliedTo(m_item, nextServiceDate);
    m_equipment.updateEquipment(m_item);
    Q_EMIT saved(m_item);
}

} // namespace abissora
