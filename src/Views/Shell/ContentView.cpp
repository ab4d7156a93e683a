// SPDX-License-Identifier: MIT
#include "ContentView.h"

#include "EmptyState.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "Literals.h"
#include "Metrics.h"
#include "SegmentedControl.h"
#include "SidebarView.h"
#include "ViewSheet.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace abissora {

ContentView::ContentView(ScreenFactory& factory, EquipmentViewModel& equipment, QWidget* parent)
    : QWidget(parent)
    , m_factory(factory)
    , m_equipment(equipment)
    , m_splitter(new QSplitter)
    , m_sidebar(factory.makeSidebar())
    , m_pages(new QStackedWidget)
    , m_tabs(new SegmentedControl)
    , m_screens(new QStackedWidget)
    , m_listPage(new ListPage(factory, equipment))
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
    connect(&list(), &EquipmentListView::addRequested, this, &ContentView::addEquipment);
    connect(&list(), &EquipmentListView::editRequested, this, &ContentView::editEquipment);
    connect(m_listPage, &ListPage::itemChanged, this, &ContentView::itemChanged);
    connect(this, &ContentView::pageChanged, this, &ContentView::itemChanged);
}

void ContentView::setSelectedTab(int tab)
{
    if (tab == m_selectedTab)
        return;
    m_selectedTab = tab;
    showPage();
    Q_EMIT selectedTabChanged();
}

void ContentView::showTab(int tab)
{
    if (isShowingSettings())
        leaveSettings(tab);
    setSelectedTab(tab);
}

void ContentView::stepTab(int places)
{
    showTab((m_selectedTab + places + TabCount) % TabCount);
}

void ContentView::showSettings()
{
    m_sidebar->setSelectedSidebarItem(sidebar::settings);
}

bool ContentView::isShowingSettings() const
{
    return m_sidebar->selectedSidebarItem() == sidebar::settings;
}

void ContentView::leaveSettings(int tab)
{
    if (tab == MaintenanceTab)
        m_sidebar->setSelectedSidebarItem(sidebar::maintenance);
    else if (const auto& typeName = m_equipment.filterTypeName())
        m_sidebar->setSelectedSidebarItem(sidebar::typePrefix + *typeName);
    else
        m_sidebar->setSelectedSidebarItem(sidebar::all);
}

std::optional<Equipment> ContentView::item() const
{
    const bool isListShown = m_selectedTab == ListTab && !isShowingSettings();
    return isListShown ? m_listPage->item() : std::nullopt;
}

void ContentView::findInList()
{
    showTab(ListTab);
    list().focusSearch();
}

void ContentView::addEquipment()
{
    openFormForNew(std::nullopt);
}

void ContentView::duplicateEquipment(const Equipment& equipment)
{
    openFormForNew(equipment);
}

void ContentView::openFormForNew(const std::optional<Equipment>& like)
{
    if (isFormOpen())
        return;
    auto* form = m_factory.makeFormForNew(like, window());
    connect(form, &EquipmentForm::saved, this, &ContentView::setSelectedEquipment);
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
    connect(form, &EquipmentForm::saved, this, &ContentView::setSelectedEquipment);
    openForm(form);
}

void ContentView::openPrint()
{
    if (!isFormOpen())
        openForm(m_factory.makePrint(selectedEquipment() ? item() : std::nullopt, window()));
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
    m_screens->addWidget(m_listPage);
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

void ContentView::showPage()
{
    if (isShowingSettings()) {
        if (!m_settings) {
            m_settings = m_factory.makeSettings();
            m_pages->addWidget(m_settings);
        }
        m_pages->setCurrentWidget(m_settings);
    } else {
        m_pages->setCurrentWidget(m_tabArea);
        m_tabs->setCurrentIndex(m_selectedTab);
        showScreen();
    }
    Q_EMIT pageChanged();
}

void ContentView::showScreen()
{
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

} // namespace abissora
