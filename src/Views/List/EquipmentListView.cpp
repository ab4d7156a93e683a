// SPDX-License-Identifier: MIT
#include "EquipmentListView.h"

#include "Accessibility.h"
#include "Alert.h"
#include "EmptyState.h"
#include "EquipmentTableView.h"
#include "FileDrop.h"
#include "FilterMenu.h"
#include "FlowLayout.h"
#include "Labels.h"
#include "ListHeader.h"
#include "Literals.h"
#include "Metrics.h"
#include "SearchField.h"
#include "SymbolIcon.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int usualSideMargin = metrics::spaceL + metrics::spaceXS;
constexpr int narrow = 560; // in less, the table needs the margin

} // namespace

EquipmentListView::EquipmentListView(EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                                     Almanac almanac, Console& console, IdGenerator& ids, QWidget* parent)
    : QWidget(parent)
    , m_equipment(equipment)
    , m_types(types)
    , m_almanac(std::move(almanac))
    , m_console(console)
    , m_ids(ids)
    , m_update(*this, [this] { redraw(); })
    , m_refreshID(ids.next())
    , m_header(new ListHeader)
    , m_search(new SearchField(u"Cerca attrezzatura..."_s))
    , m_filterMenu(new FilterMenu(this))
    , m_filterButton(new FilterButton(*m_filterMenu))
    , m_content(new QStackedWidget)
    , m_table(new EquipmentTableView)
    , m_empty(new EmptyState)
    , m_shownCount(new InkLabel(TextStyle::Caption, &Tokens::secondaryText))
    , m_dueCount(new InkLabel(TextStyle::Caption, &Tokens::danger))
    , m_activeCount(new InkLabel(TextStyle::Caption, &Tokens::ok))
    , m_rowActions(new QMenu(this))
{
    setObjectName(u"equipmentList"_s);
    buildLayout();
    buildRowActions();
    connectControls();
    connectTable();
}

void EquipmentListView::buildLayout()
{
    m_search->setObjectName(u"search"_s);
    m_empty->setObjectName(u"emptyRegister"_s);
    m_empty->setSymbol(u"tray"_s);
    m_empty->setTitle(u"Nessuna attrezzatura trovata"_s);
    m_filterButton->setObjectName(u"filterButton"_s);
    m_shownCount->setObjectName(u"shownCount"_s);
    m_dueCount->setObjectName(u"dueCount"_s);
    m_activeCount->setObjectName(u"activeCount"_s);

    m_content->addWidget(m_table);
    m_content->addWidget(m_empty);

    auto* searchRow = new QHBoxLayout;
    searchRow->setSpacing(metrics::spaceS);
    searchRow->addWidget(m_search, 1);
    searchRow->addWidget(m_filterButton);

    auto* counts = new FlowLayout(metrics::spaceL + metrics::spaceXS, 0);
    for (InkLabel* count : {m_shownCount, m_dueCount, m_activeCount})
        counts->addWidget(count);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(usualSideMargin, 0, usualSideMargin, metrics::spaceM);
    layout->setSpacing(metrics::spaceM);
    layout->addWidget(m_header);
    layout->addLayout(searchRow);
    layout->addWidget(m_content, 1);
    layout->addLayout(counts);
}

void EquipmentListView::buildRowActions()
{
    m_rowActions->setObjectName(u"rowActions"_s);
    const auto add = [this](const QString& symbol, const QString& text, const auto& action) {
        connect(m_rowActions->addAction(symbolIcon(symbol), text), &QAction::triggered, this,
                [this, action] { std::invoke(action, this, m_equipmentOfActions); });
    };
    add(u"info.circle"_s, u"Visualizza dettagli"_s, &EquipmentListView::select);
    add(u"pencil"_s, u"Modifica attrezzatura"_s, &EquipmentListView::edit);
    m_rowActions->addSeparator();
    add(u"trash.circle.fill"_s, u"Elimina attrezzatura"_s, &EquipmentListView::confirmDeletion);
}

void EquipmentListView::connectControls()
{
    auto* const drop = new FileDrop(
        *this, [](const QString& path, QPoint /*place*/) { return path.endsWith(".csv"_L1, Qt::CaseInsensitive); });
    connect(drop, &FileDrop::dropped, this, [this](const QString& path) { Q_EMIT tableDropped(path); });
    connect(&m_equipment, &EquipmentViewModel::changed, &m_update, &VisibleUpdate::schedule);
    connect(&m_types, &EquipmentTypeViewModel::changed, &m_update, &VisibleUpdate::schedule);

    const auto showAllTypes = [this] { m_equipment.setFilterTypeName(std::nullopt); };
    connect(m_header, &ListHeader::addClicked, this, &EquipmentListView::addRequested);
    connect(m_header, &ListHeader::refreshClicked, this, &EquipmentListView::refresh);
    connect(m_header, &ListHeader::clearFilterClicked, this, showAllTypes);
    // Not textEdited, which leaves out what a screen reader or a dictation puts in.
    connect(m_search, &SearchField::textChanged, this, [this](const QString& text) {
        if (text != m_equipment.searchText())
            m_equipment.setSearchText(text);
    });

    connect(m_search, &SearchField::resultsRequested, this, [this] {
        if (m_content->currentWidget() == m_table)
            m_table->goToFirstRow();
        else
            focusContent();
    });

    connect(m_filterMenu, &QMenu::aboutToShow, this, [this] {
        m_filterMenu->setEntries(m_types.filteredTypes(), m_equipment.filterTypeName(),
                                 ListContent::isNarrowed(m_equipment));
    });
    connect(m_filterMenu, &FilterMenu::allChosen, this, showAllTypes);
    connect(m_filterMenu, &FilterMenu::clearChosen, this, &EquipmentListView::clearFilters);
    connect(m_filterMenu, &FilterMenu::typeChosen, this, [this](const QString& name) {
        m_console.print(u"🖱️ Menu filtro cliccato: "_s + name);
        m_equipment.filterByTypeName(name);
        refresh();
    });
    connect(m_empty, &EmptyState::buttonClicked, this, [this] {
        if (ListContent::isNarrowed(m_equipment))
            clearFilters();
        else
            Q_EMIT addRequested();
    });
}

void EquipmentListView::connectTable()
{
    const auto itemOf = [this](int row) { return m_table->equipmentModel().equipment().at(row); };
    connect(m_table, &EquipmentTableView::rowSelected, this,
            [this, itemOf](int row) { select(row < 0 ? std::nullopt : std::optional(itemOf(row))); });
    connect(m_table, &EquipmentTableView::actionsRequested, this, [this, itemOf](int row, QPoint position) {
        m_equipmentOfActions = itemOf(row);
        m_rowActions->popup(position);
    });
    connect(m_table, &EquipmentTableView::deleteRequested, this,
            [this, itemOf](int row) { confirmDeletion(itemOf(row)); });
    connect(m_table, &RowTable::placeChanged, this, &EquipmentListView::placeChanged);
}

void EquipmentListView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int side = width() < narrow ? metrics::spaceS : usualSideMargin;
    layout()->setContentsMargins(side, 0, side, metrics::spaceM);
}

void EquipmentListView::setSelectedEquipment(const std::optional<Equipment>& equipment)
{
    m_selectedEquipment = equipment;
    m_table->showSelected(equipment ? std::optional(equipment->id) : std::nullopt);
}

std::optional<Equipment> EquipmentListView::equipmentAtKeyboard() const
{
    const QModelIndex place = m_table->currentIndex();
    if (!m_table->hasKeyboard() || !place.isValid())
        return std::nullopt;
    return m_table->equipmentModel().equipment().at(place.row());
}

void EquipmentListView::confirmDeletion(const Equipment& equipment)
{
    m_equipmentToDelete = equipment;
    const auto* alert = Alert::ask(this, u"Conferma Eliminazione"_s,
                                   u"Sei sicuro di voler eliminare l'attrezzatura '%1'?"_s.arg(equipment.name),
                                   [this] { deleteConfirmed(); });
    connect(alert, &QDialog::rejected, this, [this] { m_equipmentToDelete.reset(); });
}

void EquipmentListView::deleteConfirmed()
{
    if (!m_equipmentToDelete)
        return;
    m_equipment.deleteEquipment(*m_equipmentToDelete);
    refresh();
    m_equipmentToDelete.reset();
}

void EquipmentListView::refresh()
{
    m_refreshID = m_ids.next();
    m_update.schedule();
}

void EquipmentListView::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void EquipmentListView::focusContent()
{
    m_content->currentWidget()->setFocus(Qt::OtherFocusReason);
}

void EquipmentListView::redraw()
{
    const ListContent content = ListContent::of(m_equipment, m_types);
    m_table->showEquipment(content.items, EquipmentRowMaker(m_types, m_almanac),
                           m_selectedEquipment ? std::optional(m_selectedEquipment->id) : std::nullopt);
    if (m_search->text() != m_equipment.searchText())
        m_search->setText(m_equipment.searchText());
    m_header->setFilter(content.filter);
    m_filterButton->setActiveFilter(content.filter ? content.filter->text : QString());
    m_empty->setButtonText(content.offer);
    showContent(*(content.items.isEmpty() ? static_cast<QWidget*>(m_empty) : m_table));
    m_shownCount->setText(content.shownCount);
    m_dueCount->setText(content.dueCount);
    m_dueCount->setVisible(!content.dueCount.isEmpty());
    m_activeCount->setText(content.activeCount);
    tellOfNarrowing();
}

void EquipmentListView::showContent(QWidget& content)
{
    if (&content == m_content->currentWidget())
        return;
    const bool focusGoes = m_content->isAncestorOf(window()->focusWidget());
    m_content->setCurrentWidget(&content);
    if (focusGoes)
        focusContent();
}

void EquipmentListView::tellOfNarrowing()
{
    const auto before = std::exchange(m_narrowing, ListContent::narrowingOf(m_equipment));
    const bool narrowedAnew = before != m_narrowing;
    if (narrowedAnew)
        announce(*this, m_shownCount->text());
    if (!m_selectedEquipment)
        return;
    const bool listed = m_table->equipmentModel().rowOf(m_selectedEquipment->id) >= 0;
    if (listed || narrowedAnew)
        Q_EMIT selectionListed(listed);
}

void EquipmentListView::select(const std::optional<Equipment>& equipment)
{
    setSelectedEquipment(equipment);
    Q_EMIT equipmentSelected(equipment);
}

void EquipmentListView::edit(const Equipment& equipment)
{
    select(equipment);
    Q_EMIT editRequested(equipment);
}

void EquipmentListView::clearFilters()
{
    m_equipment.setSearchText({});
    m_equipment.setFilterTypeName(std::nullopt);
}

} // namespace abissora
