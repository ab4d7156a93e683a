// SPDX-License-Identifier: MIT
#include "EquipmentTypeFormView.h"

#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "ColorChoice.h"
#include "EquipmentTypeViewModel.h"
#include "FormRow.h"
#include "IconPicker.h"
#include "IconViews.h"
#include "IdGenerator.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "OneLine.h"
#include "ScrollPane.h"
#include "Stepper.h"
#include "SymbolIcon.h"
#include "TypeAppearance.h"
#include "TypeManagement.h"

#include <QEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <limits>

namespace abissora {

namespace {

constexpr int formWidth = 820;
constexpr int formHeight = 600;
constexpr int previewWidth = 210;
constexpr int previewTileSide = 72;
constexpr int labelColumn = 140;
constexpr int shortestInterval = 30; // days
constexpr int longestInterval = 730;
constexpr int intervalStep = 30;

FormRow* row(const QString& label, QWidget* field, QChar accessKey = {})
{
    auto* row = new FormRow(label, field, accessKey);
    row->setLabelColumn(labelColumn);
    return row;
}

/// Keeps a widget in sight beside content that scrolls past it: at the top of what the scroll area shows, as long as
/// the column reaches.
class StickyColumn final : public QWidget
{
public:
    /// Takes the widget over. The column becomes part of what the area scrolls.
    StickyColumn(QWidget* content, QScrollArea& area, int width)
        : m_content(content)
        , m_area(area)
        , m_width(width)
    {
        content->setParent(this);
        QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        connect(area.verticalScrollBar(), &QScrollBar::valueChanged, this, &StickyColumn::place);
    }

    [[nodiscard]] QSize sizeHint() const override { return {m_width, heightForWidth(m_width)}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override
    {
        return m_content->hasHeightForWidth() ? m_content->heightForWidth(width) : m_content->sizeHint().height();
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry();
        const bool moves = event->type() == QEvent::Resize || event->type() == QEvent::Move;
        if (moves || event->type() == QEvent::LayoutRequest)
            place();
        return QWidget::event(event);
    }

private:
    void place()
    {
        const int tall = heightForWidth(width());
        const int passed = m_area.verticalScrollBar()->value();
        m_content->setGeometry(0, std::clamp(passed, 0, std::max(0, height() - tall)), width(), tall);
    }

    QWidget* m_content;
    QScrollArea& m_area;
    int m_width;
};

} // namespace

/// "Anteprima": a type as it will look.
class EquipmentTypeFormView::Preview final : public Card
{
public:
    Preview()
        : m_tile(named(new IconTile(previewTileSide), u"previewTile"))
        , m_name(named(new WrapLabel(TextStyle::BodyMedium, &Tokens::text), u"previewName"))
        , m_interval(named(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText), u"previewInterval"))
    {
        auto* title = new WrapLabel(TextStyle::Headline, &Tokens::text, u"Anteprima"_s);
        setAccessibleName(title->text());
        for (WrapLabel* label : {title, m_name, m_interval})
            label->setAlignment(Qt::AlignCenter);
        const Gap gap{metrics::spaceXS};
        content()->addLayout(
            inColumn(metrics::spaceXS, {title, gap, {m_tile, 0, Qt::AlignHCenter}, gap, m_name, m_interval}));
    }

    void setType(const EquipmentTypeModel& type)
    {
        const TypeAppearance look = appearanceOf(type);
        m_tile->setIcon(typeIcon(look.icon, look.color), look.color);
        m_name->setText(type.name);
        m_interval->setText(daysText(type.serviceIntervalDays));
    }

private:
    IconTile* m_tile;
    WrapLabel* m_name;
    WrapLabel* m_interval;
};

EquipmentTypeFormView::EquipmentTypeFormView(EquipmentTypeViewModel& types, IdGenerator& ids,
                                             const std::optional<EquipmentTypeModel>& editingType, QWidget* parent)
    : Sheet(editingType ? u"Modifica Tipologia"_s : u"Nuova Tipologia"_s, parent)
    , m_types(types)
    , m_ids(ids)
    , m_editingType(editingType)
    , m_name(named(new QLineEdit, u"name"))
    , m_invalidName(new InkLabel(TextStyle::Caption, &Tokens::danger, u"Inserisci un nome valido"_s))
    , m_interval(named(new Stepper, u"interval"))
    , m_color(named(new ColorChoice, u"color"))
    , m_icons(new IconPicker)
    , m_preview(new Preview)
{
    setPrimaryText(u"Salva"_s, u'S');
    setPreferredSize({withText(formWidth, fontMetrics()), withText(formHeight, fontMetrics())});
    makeColumns();
    setState(editingType ? EquipmentTypeFormState::of(*editingType) : EquipmentTypeFormState());
    connectFields();
    refresh();
    setFirstField(m_name);
}

GroupBox* EquipmentTypeFormView::makeBasics()
{
    keepOneLine(*m_name);
    m_name->setMaxLength(std::numeric_limits<int>::max()); // a form shall not shorten what is stored
    m_name->setPlaceholderText(u"Inserisci il nome"_s);
    m_invalidName->setObjectName(u"invalidName"_s);
    QSizePolicy policy = m_invalidName->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing shall jump while somebody types
    m_invalidName->setSizePolicy(policy);
    m_interval->setRange(shortestInterval, longestInterval);
    m_interval->setSingleStep(intervalStep);
    m_interval->setSuffix(u" giorni"_s);

    auto* name = row(u"Nome Tipologia*"_s, m_name, u'N');
    name->setHint(u"* Campo obbligatorio"_s);
    name->addBelow(m_invalidName);
    auto* group = new GroupBox(u"Informazioni Base"_s);
    group->content()->addWidget(name);
    group->content()->addWidget(row(u"Intervallo Tagliando"_s, m_interval, u'I'));
    group->content()->addWidget(row({}, m_color));
    return group;
}

void EquipmentTypeFormView::makeColumns()
{
    auto* fields = inColumn(body()->spacing(), {makeBasics(), m_icons, Stretch()});
    auto* preview = new StickyColumn(m_preview, *scrollArea(), withText(previewWidth, fontMetrics()));
    body()->addLayout(inRow(metrics::spaceL, {{fields, 1}, preview}));
}

void EquipmentTypeFormView::setState(const EquipmentTypeFormState& state)
{
    setStoredText(*m_name, state.name);
    m_interval->setValue(state.serviceIntervalDays);
    m_color->setSelectedColor(state.selectedColor);
    m_icons->grid().setSelectedIcon(state.selectedIcon);
}

void EquipmentTypeFormView::connectFields()
{
    connect(m_name, &QLineEdit::textChanged, &m_listener, [this] { refresh(); });
    connect(m_name, &QLineEdit::editingFinished, &m_listener, [this] {
        if (const QString trimmed = m_name->text().trimmed(); trimmed != m_name->text())
            m_name->setText(trimmed);
    });
    connect(m_interval, &Stepper::edited, this, &EquipmentTypeFormView::refresh);
    connect(m_color, &ColorChoice::chosen, this, &EquipmentTypeFormView::refresh);
    connect(&m_icons->grid(), &IconGrid::chosen, this, &EquipmentTypeFormView::refresh);
    connect(&m_icons->grid(), &IconGrid::entered, scrollArea(),
            [this](const QWidget* cell) { scrollArea()->bringIntoSight(*cell); });
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
