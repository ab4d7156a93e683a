// SPDX-License-Identifier: MIT
#include "EquipmentTypeFormView.h"

#include "Buttons.h"
#include "ColorChoice.h"
#include "EquipmentTypeViewModel.h"
#include "FormRow.h"
#include "GroupBox.h"
#include "IconGrid.h"
#include "IconPicker.h"
#include "IdGenerator.h"
#include "InkLabel.h"
#include "Literals.h"
#include "Metrics.h"
#include "Stepper.h"
#include "StickyColumn.h"
#include "TypePreview.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <limits>

namespace abissora {

namespace {

constexpr int preferredWidth = 820;
constexpr int preferredHeight = 600;
constexpr int previewWidth = 210;
constexpr int labelColumn = 140;
constexpr int shortestInterval = 30; // days
constexpr int longestInterval = 730;
constexpr int intervalStep = 30;

FormRow* row(const QString& label, QWidget* field)
{
    auto* row = new FormRow(label, field);
    row->setLabelColumn(labelColumn);
    return row;
}

} // namespace

EquipmentTypeFormView::EquipmentTypeFormView(EquipmentTypeViewModel& types, IdGenerator& ids,
                                             const std::optional<EquipmentTypeModel>& editingType, QWidget* parent)
    : Sheet(editingType ? u"Modifica Tipologia"_s : u"Nuova Tipologia"_s, parent)
    , m_types(types)
    , m_ids(ids)
    , m_editingType(editingType)
    , m_name(new QLineEdit)
    , m_invalidName(new InkLabel(TextStyle::Caption, &Tokens::danger, u"Inserisci un nome valido"_s))
    , m_interval(new Stepper)
    , m_color(new ColorChoice)
    , m_icons(new IconPicker)
    , m_preview(new TypePreview)
{
    setPrimaryText(u"Salva"_s);
    setPreferredSize({withText(preferredWidth, fontMetrics()), withText(preferredHeight, fontMetrics())});
    makeColumns();
    setState(editingType ? EquipmentTypeFormState::of(*editingType) : EquipmentTypeFormState());
    connectFields();
    refresh();
    setFirstField(m_name);
}

GroupBox* EquipmentTypeFormView::makeBasics()
{
    m_name->setObjectName(u"name"_s);
    m_name->setMaxLength(std::numeric_limits<int>::max()); // a form shall not shorten what is stored
    m_name->setPlaceholderText(u"Inserisci il nome"_s);
    m_invalidName->setObjectName(u"invalidName"_s);
    QSizePolicy policy = m_invalidName->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing shall jump while somebody types
    m_invalidName->setSizePolicy(policy);
    m_interval->setObjectName(u"interval"_s);
    m_interval->setRange(shortestInterval, longestInterval);
    m_interval->setSingleStep(intervalStep);
    m_interval->setSuffix(u" giorni"_s);
    m_color->setObjectName(u"color"_s);

    auto* name = row(u"Nome Tipologia*"_s, m_name);
    name->setHint(u"* Campo obbligatorio"_s);
    name->addBelow(m_invalidName);
    auto* group = new GroupBox(u"Informazioni Base"_s);
    group->content()->addWidget(name);
    group->content()->addWidget(row(u"Intervallo Tagliando"_s, m_interval));
    group->content()->addWidget(row({}, m_color));
    return group;
}

void EquipmentTypeFormView::makeColumns()
{
    auto* fields = new QVBoxLayout;
    fields->setSpacing(body()->spacing());
    fields->addWidget(makeBasics());
    fields->addWidget(m_icons);
    fields->addStretch();
    auto* columns = new QHBoxLayout;
    columns->setSpacing(metrics::spaceL);
    columns->addLayout(fields, 1);
    columns->addWidget(new StickyColumn(m_preview, *scrollArea(), withText(previewWidth, fontMetrics())));
    body()->addLayout(columns);
}

void EquipmentTypeFormView::setState(const EquipmentTypeFormState& state)
{
    m_name->setText(state.name);
    m_interval->setValue(state.serviceIntervalDays);
    m_color->setSelectedColor(state.selectedColor);
    m_icons->grid().setSelectedIcon(state.selectedIcon);
}

void EquipmentTypeFormView::connectFields()
{
    connect(m_name, &QLineEdit::textChanged, this, &EquipmentTypeFormView::refresh);
    connect(m_interval, &Stepper::edited, this, &EquipmentTypeFormView::refresh);
    connect(m_color, &ColorChoice::chosen, this, &EquipmentTypeFormView::refresh);
    connect(&m_icons->grid(), &IconGrid::chosen, this, &EquipmentTypeFormView::refresh);
    connect(&m_icons->grid(), &IconGrid::entered, scrollArea(),
            [this](QWidget* cell) { scrollArea()->ensureWidgetVisible(cell); });
    connect(this, &Sheet::primaryClicked, this, &EquipmentTypeFormView::save);
}

EquipmentTypeFormState EquipmentTypeFormView::state() const
{
    return {
        .name = m_name->text(),
        .selectedIcon = m_icons->grid().selectedIcon(),
        .selectedColor = m_color->selectedColor(),
        .serviceIntervalDays = m_interval->value(),
    };
}

void EquipmentTypeFormView::refresh()
{
    const EquipmentTypeFormState now = state();
    m_invalidName->setVisible(!now.isFormValid());
    primaryButton()->setEnabled(now.isFormValid());
    m_preview->setType(now.toType({}));
}

void EquipmentTypeFormView::save()
{
    const EquipmentTypeFormState entered = state();
    if (m_editingType)
        m_types.updateType(entered.toType(m_editingType->id));
    else
        m_types.addType(entered.toType(m_ids.next()));
    accept();
}

} // namespace abissora
