// SPDX-License-Identifier: MIT
#include "ContentView.h"

#include "EmptyState.h"
#include "EquipmentDetailView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "Literals.h"
#include "Metrics.h"
#include "SegmentedControl.h"
#include "SidebarView.h"
#include "ViewSheet.h"

#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int detailWidth = 385;
constexpr int leastListWidth = 440; // its table with every column

} // namespace

ContentView::ContentView(ScreenFactory& factory, EquipmentViewModel& equipment, QWidget* parent)
    : QWidget(parent)
    , m_factory(factory)
    , m_equipment(equipment)
    , m_splitter(new QSplitter)
    , m_listSplitter(new QSplitter)
    , m_sidebar(factory.makeSidebar())
    , m_pages(new QStackedWidget)
    , m_tabs(new SegmentedControl)
    , m_screens(new QStackedWidget)
    , m_list(factory.makeList())
    , m_detailPane(new QWidget)
    , m_tabArea(makeTabArea())
{
    m_pages->addWidget(m_tabArea);
    m_splitter->setObjectName(u"splitter"_s);
    m_splitter->addWidget(m_sidebar);
    m_splitter->addWidget(m_pages);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({m_sidebar->sizeHint().width(), m_sidebar->sizeHint().width() * 4});
    m_splitter->setHandleWidth(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_splitter);

    connect(m_sidebar, &SidebarView::tabRequested, this, &ContentView::setSelectedTab);
    connect(m_sidebar, &SidebarView::selectedSidebarItemChanged, this, &ContentView::showPage);
    connect(m_tabs, &SegmentedControl::activated, this, &ContentView::setSelectedTab);
    connect(m_list, &EquipmentListView::equipmentSelected, this, &ContentView::setSelectedEquipment);
    connect(m_list, &EquipmentListView::addRequested, this, &ContentView::addEquipment);
    connect(m_list, &EquipmentListView::editRequested, this, &ContentView::editEquipment);
    connect(&equipment, &EquipmentViewModel::equipmentChanged, this, &ContentView::forgetDeletedSelection);
}

void ContentView::setSelectedTab(int tab)
{
    if (tab == m_selectedTab)
        return;
    m_selectedTab = tab;
    showPage();
    Q_EMIT selectedTabChanged();
}

void ContentView::setSelectedEquipment(const std::optional<Equipment>& equipment)
{
    if (equipment == m_selectedEquipment)
        return;
    m_selectedEquipment = equipment;
    m_list->setSelectedEquipment(equipment);
    showDetail();
    Q_EMIT selectedEquipmentChanged();
}

void ContentView::showDetail()
{
    if (m_selectedEquipment && m_detail == nullptr) {
        m_detail = m_factory.makeDetail(*m_selectedEquipment);
        m_detailPane->layout()->addWidget(m_detail);
        connect(m_detail, &EquipmentDetailView::closed, this, [this] { setSelectedEquipment(std::nullopt); });
    } else if (m_selectedEquipment) {
        m_detail->setEquipment(*m_selectedEquipment);
    }
    const bool focusGoes = !m_selectedEquipment && m_detailPane->isAncestorOf(window()->focusWidget());
    m_detailPane->setVisible(m_selectedEquipment.has_value());
    if (focusGoes)
        m_list->focusContent();
}

void ContentView::findInList()
{
    if (m_sidebar->selectedSidebarItem() == sidebar::settings)
        m_sidebar->setSelectedSidebarItem(sidebar::all);
    setSelectedTab(ListTab);
    m_list->focusSearch();
}

void ContentView::addEquipment()
{
    if (isFormOpen())
        return;
    auto* form = m_factory.makeFormForNew(window());
    connect(form, &QDialog::finished, this, [this] { m_equipment.setAddingEquipment(false); });
    openForm(form);
    m_equipment.setAddingEquipment(true);
}

bool ContentView::showingAddSheet() const
{
    return isFormOpen() && qobject_cast<const EquipmentFormView*>(m_form) != nullptr;
}

void ContentView::editEquipment(const Equipment& equipment)
{
    if (isFormOpen())
        return;
    setSelectedEquipment(equipment);
    auto* form = m_factory.makeFormFor(equipment, window());
    connect(form, &EditEquipmentView::saved, this, &ContentView::setSelectedEquipment);
    openForm(form);
}

void ContentView::openRestore()
{
    if (!isFormOpen())
        openForm(m_factory.makeRestore(window()));
}

bool ContentView::isFormOpen() const
{
    return m_form && m_form->isVisible();
}

void ContentView::openForm(SheetWindow* form)
{
    m_form = form;
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->open();
}

QWidget* ContentView::makeTabArea()
{
    m_tabs->setObjectName(u"tabSwitch"_s);
    m_tabs->addSegment(u"list.bullet"_s, u"Attrezzatura"_s);
    m_tabs->addSegment(u"wrench"_s, u"Manutenzione"_s);
    m_tabs->addSegment(u"chart.bar"_s, u"Statistiche"_s);
    m_tabs->setCurrentIndex(m_selectedTab);
    m_screens->addWidget(makeListArea());
    for (int tab = MaintenanceTab; tab < TabCount; ++tab)
        m_screens->addWidget(new QWidget);

    auto* area = new QWidget;
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, metrics::spaceM, 0, 0);
    layout->setSpacing(metrics::spaceM + metrics::spaceXS / 2);
    layout->addWidget(m_tabs, 0, Qt::AlignHCenter);
    layout->addWidget(m_screens, 1);
    return area;
}

QWidget* ContentView::makeListArea()
{
    auto* paneLayout = new QHBoxLayout(m_detailPane);
    paneLayout->setContentsMargins(0, 0, 0, 0);
    m_detailPane->setObjectName(u"detailPane"_s);
    m_detailPane->hide();
    m_listSplitter->setObjectName(u"listSplitter"_s);
    m_list->setMinimumWidth(leastListWidth);
    m_listSplitter->addWidget(m_list);
    m_listSplitter->addWidget(m_detailPane);
    m_listSplitter->setChildrenCollapsible(false);
    m_listSplitter->setStretchFactor(0, 1);
    m_listSplitter->setSizes({detailWidth * 2, detailWidth});
    m_listSplitter->setHandleWidth(1);
    return m_listSplitter;
}

void ContentView::showPage()
{
    if (m_sidebar->selectedSidebarItem() == sidebar::settings) {
        if (!m_settings) {
            m_settings = m_factory.makeSettings();
            m_pages->addWidget(m_settings);
        }
        m_pages->setCurrentWidget(m_settings);
        return;
    }
    m_pages->setCurrentWidget(m_tabArea);
    m_tabs->setCurrentIndex(m_selectedTab);
    // A bare QWidget holds the place of a screen that was never shown.
    if (QWidget* placeholder = m_screens->widget(m_selectedTab);
        placeholder->metaObject() == &QWidget::staticMetaObject) {
        m_screens->insertWidget(m_selectedTab, m_selectedTab == MaintenanceTab ? m_factory.makeOverview()
                                                                               : m_factory.makeStatistics());
        m_screens->removeWidget(placeholder);
        placeholder->deleteLater();
    }
    m_screens->setCurrentIndex(m_selectedTab);
}

void ContentView::forgetDeletedSelection()
{
    if (m_selectedEquipment &&
        std::ranges::count(m_equipment.equipment(), m_selectedEquipment->id, &Equipment::id) == 0)
        setSelectedEquipment(std::nullopt);
}

} // namespace abissora
