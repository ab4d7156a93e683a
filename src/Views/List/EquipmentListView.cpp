// SPDX-License-Identifier: MIT
#include "EquipmentListView.h"

#include "Alert.h"
#include "EmptyState.h"
#include "EquipmentColumns.h"
#include "EquipmentTableView.h"
#include "FilterButton.h"
#include "FilterMenu.h"
#include "ListFooter.h"
#include "ListHeader.h"
#include "Literals.h"
#include "Metrics.h"
#include "RowActionsMenu.h"
#include "SearchField.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace abissora {

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
    , m_footer(new ListFooter)
    , m_rowActions(new RowActionsMenu(this))
{
    setObjectName(u"equipmentList"_s);
    buildLayout();
    connectControls();
}

void EquipmentListView::buildLayout()
{
    m_search->setObjectName(u"search"_s);
    m_empty->setObjectName(u"emptyRegister"_s);
    m_empty->setSymbol(u"tray"_s);
    m_empty->setTitle(u"Nessuna attrezzatura trovata"_s);
    m_filterButton->setObjectName(u"filterButton"_s);

    new EquipmentColumns(*m_table);
    m_content->addWidget(m_table);
    m_content->addWidget(m_empty);

    auto* searchRow = new QHBoxLayout;
    searchRow->setSpacing(metrics::spaceS);
    searchRow->addWidget(m_search, 1);
    searchRow->addWidget(m_filterButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceL + metrics::spaceXS, 0, metrics::spaceL + metrics::spaceXS,
                               metrics::spaceM);
    layout->setSpacing(metrics::spaceM);
    layout->addWidget(m_header);
    layout->addLayout(searchRow);
    layout->addWidget(m_content, 1);
    layout->addWidget(m_footer);
}

void EquipmentListView::connectControls()
{
    EquipmentViewModel& equipment = m_equipment;
    connect(&equipment, &EquipmentViewModel::changed, &m_update, &VisibleUpdate::schedule);
    connect(&m_types, &EquipmentTypeViewModel::changed, &m_update, &VisibleUpdate::schedule);

    connect(m_header, &ListHeader::addClicked, this, &EquipmentListView::addRequested);
    connect(m_header, &ListHeader::refreshClicked, this, &EquipmentListView::refresh);
    connect(m_header, &ListHeader::clearFilterClicked, this,
            [&equipment] { equipment.setFilterTypeName(std::nullopt); });
    // Not textEdited, which leaves out what a screen reader or a dictation puts in.
    connect(m_search, &SearchField::textChanged, &equipment, [&equipment](const QString& text) {
        if (text != equipment.searchText())
            equipment.setSearchText(text);
    });

    connect(m_filterMenu, &QMenu::aboutToShow, this,
            [this] { m_filterMenu->setEntries(m_types.filteredTypes(), isNarrowed()); });
    connect(m_filterMenu, &FilterMenu::allChosen, this, [&equipment] { equipment.setFilterTypeName(std::nullopt); });
    connect(m_filterMenu, &FilterMenu::clearChosen, this, &EquipmentListView::clearFilters);
    connect(m_filterMenu, &FilterMenu::typeChosen, this, [this](const QString& name) {
        m_console.print(u"🖱️ Menu filtro cliccato: "_s + name);
        m_equipment.filterByTypeName(name);
        refresh();
    });

    connect(m_table, &EquipmentTableView::rowSelected, this, [this](int row) {
        select(row < 0 ? std::nullopt : std::optional(m_table->equipmentModel().equipment().at(row)));
    });
    connect(m_table, &EquipmentTableView::actionsRequested, this, [this](int row, QPoint position) {
        m_rowActions->setEquipment(m_table->equipmentModel().equipment().at(row));
        m_rowActions->popup(position);
    });
    connect(m_table, &EquipmentTableView::deleteRequested, this,
            [this](int row) { confirmDeletion(m_table->equipmentModel().equipment().at(row)); });
    connect(m_rowActions, &RowActionsMenu::showRequested, this, &EquipmentListView::select);
    connect(m_rowActions, &RowActionsMenu::editRequested, this, [this](const Equipment& item) {
        select(item);
        Q_EMIT editRequested(item);
    });
    connect(m_rowActions, &RowActionsMenu::deleteRequested, this, &EquipmentListView::confirmDeletion);

    connect(m_empty, &EmptyState::buttonClicked, this, [this] {
        if (isNarrowed())
            clearFilters();
        else
            Q_EMIT addRequested();
    });
}

void EquipmentListView::setSelectedEquipment(const std::optional<Equipment>& equipment)
{
    m_selectedEquipment = equipment;
    m_table->showSelected(equipment ? std::optional(equipment->id) : std::nullopt);
}

void EquipmentListView::confirmDeletion(const Equipment& equipment)
{
    m_equipmentToDelete = equipment;
    auto* alert = new Alert(window());
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setTitle(u"Conferma Eliminazione"_s);
    alert->setMessage(u"Sei sicuro di voler eliminare l'attrezzatura '%1'?"_s.arg(equipment.name));
    connect(alert, &QDialog::accepted, this, &EquipmentListView::deleteConfirmed);
    connect(alert, &QDialog::rejected, this, [this] { m_equipmentToDelete.reset(); });
    alert->open();
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
    const QList<Equipment> shown = m_equipment.filteredEquipment();
    const EquipmentRowMaker rows(m_types, m_almanac.dates, m_almanac.calendar, m_almanac.now());
    m_table->showEquipment(shown, rows, m_selectedEquipment ? std::optional(m_selectedEquipment->id) : std::nullopt);

    if (m_search->text() != m_equipment.searchText())
        m_search->setText(m_equipment.searchText());
    m_header->setFilter(m_equipment.filterTypeName(), m_types);

    m_empty->setButtonText(isNarrowed() ? u"Cancella filtri"_s : u"Aggiungi la prima attrezzatura"_s);
    m_content->setCurrentWidget(shown.isEmpty() ? static_cast<QWidget*>(m_empty) : m_table);
    const auto active = std::count_if(shown.begin(), shown.end(), [](const Equipment& item) { return item.isActive; });
    m_footer->setCounts(shown.size(), m_equipment.overdueEquipment().size(), active);
}

void EquipmentListView::select(const std::optional<Equipment>& equipment)
{
    setSelectedEquipment(equipment);
    Q_EMIT equipmentSelected(equipment);
}

void EquipmentListView::clearFilters()
{
    m_equipment.setSearchText({});
    m_equipment.setFilterTypeName(std::nullopt);
}

bool EquipmentListView::isNarrowed() const
{
    return !m_equipment.searchText().isEmpty() || m_equipment.filterTypeName() || m_equipment.selectedType();
}

} // namespace abissora
