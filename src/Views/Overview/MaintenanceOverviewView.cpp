// SPDX-License-Identifier: MIT
#include "MaintenanceOverviewView.h"

#include "CardGrid.h"
#include "DueList.h"
#include "EmptyState.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "ScreenPage.h"

#include <QVBoxLayout>

namespace abissora {

MaintenanceOverviewView::MaintenanceOverviewView(const EquipmentViewModel& equipment,
                                                 const EquipmentTypeViewModel& types, MakeDetail makeDetail,
                                                 QWidget* parent)
    : QWidget(parent)
    , m_equipment(equipment)
    , m_types(types)
    , m_makeDetail(std::move(makeDetail))
    , m_update(*this, [this] { redraw(); })
    , m_page(new ScreenPage(u"Panoramica Manutenzione"_s))
    , m_figures(new FigureGrid(overviewFigures({}), 4))
    , m_dueTitle(new InkLabel(TextStyle::Headline, &Tokens::text, u"Manutenzioni Scadute"_s))
    , m_dueList(new DueList(*m_page))
    , m_allInOrder(new EmptyState)
{
    setObjectName(u"maintenanceOverview"_s);
    setFocusProxy(m_page); // what the tabs give the focus to where nothing in it takes any
    buildLayout();
    connect(&equipment, &EquipmentViewModel::equipmentChanged, &m_update, &VisibleUpdate::schedule);
    connect(&equipment, &EquipmentViewModel::equipmentChanged, this, &MaintenanceOverviewView::forgetDeletedSelection);
    connect(&types, &EquipmentTypeViewModel::typesChanged, &m_update, &VisibleUpdate::schedule);
    connect(m_dueList, &DueList::chosen, this, &MaintenanceOverviewView::setSelectedEquipment);
}

void MaintenanceOverviewView::buildLayout()
{
    m_dueList->setObjectName(u"dueList"_s);
    m_dueList->setAccessibleName(u"Manutenzioni Scadute"_s);
    m_allInOrder->setObjectName(u"allInOrder"_s);
    m_allInOrder->setSymbol(u"checkmark.circle.fill"_s, NamedColor::green);
    m_allInOrder->setTitle(u"Tutte le attrezzature sono in regola!"_s);

    QVBoxLayout* const column = m_page->column();
    column->addWidget(new InkLabel(TextStyle::LargeTitle, &Tokens::text, u"Panoramica Manutenzione"_s));
    column->addLayout(m_figures);
    column->addWidget(m_dueTitle);
    column->addWidget(m_dueList);
    column->addWidget(m_allInOrder, 1);
    column->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_page);
}

void MaintenanceOverviewView::setSelectedEquipment(const std::optional<Equipment>& equipment)
{
    if (m_sheet)
        m_sheet->reject();
    m_selectedEquipment = equipment;
    if (!equipment)
        return;
    m_sheet = m_makeDetail(*equipment, this);
    m_sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_sheet, &QDialog::finished, this, [this] {
        m_sheet.clear();
        m_selectedEquipment.reset();
    });
    m_sheet->open();
}

void MaintenanceOverviewView::forgetDeletedSelection()
{
    if (m_selectedEquipment &&
        std::ranges::count(m_equipment.equipment(), m_selectedEquipment->id, &Equipment::id) == 0)
        setSelectedEquipment(std::nullopt);
}

void MaintenanceOverviewView::takeFocusFromList()
{
    // A button that is hidden would keep the focus, or get it back when the screen is shown again.
    QWidget* const remembered = focusWidget();
    if (remembered == nullptr || !m_dueList->isAncestorOf(remembered))
        return;
    const bool hasFocus = window()->focusWidget() == remembered;
    remembered->clearFocus();
    if (hasFocus)
        m_page->setFocus(Qt::OtherFocusReason);
}

void MaintenanceOverviewView::redraw()
{
    const RegisterSummary summary = m_equipment.summary();
    m_figures->setValues(overviewFigures(summary));
    const bool anyDue = !summary.due.isEmpty();
    if (!anyDue)
        takeFocusFromList();
    m_dueTitle->setVisible(anyDue);
    m_dueList->setVisible(anyDue);
    m_allInOrder->setVisible(!anyDue);
    m_dueList->setItems(summary.due, [&types = m_types](const Equipment& item) { return appearanceOf(item, types); });
}

} // namespace abissora
