// SPDX-License-Identifier: MIT
#include "ContentView.h"

#include "EmptyState.h"
#include "EquipmentListView.h"
#include "Metrics.h"
#include "SegmentedControl.h"
#include "SidebarView.h"

#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace abissora {

namespace {

struct TabTitle
{
    QString text;
    QString symbol;
};

QList<TabTitle> tabTitles()
{
    return {{QStringLiteral("Attrezzatura"), QStringLiteral("list.bullet")},
            {QStringLiteral("Manutenzione"), QStringLiteral("wrench")},
            {QStringLiteral("Statistiche"), QStringLiteral("chart.bar")}};
}

} // namespace

ContentView::ContentView(const AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_splitter(new QSplitter)
    , m_sidebar(new SidebarView(context.equipment, context.types, context.console))
    , m_pages(new QStackedWidget)
    , m_tabs(new SegmentedControl)
    , m_screens(new QStackedWidget)
    , m_list(new EquipmentListView(context))
    , m_tabArea(makeTabArea())
{
    m_pages->addWidget(m_tabArea);
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
    connect(&context.equipment, &EquipmentViewModel::equipmentChanged, this, &ContentView::forgetDeletedSelection);
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
    Q_EMIT selectedEquipmentChanged();
}

void ContentView::findInList()
{
    if (m_sidebar->selectedSidebarItem() == sidebar::settings)
        m_sidebar->setSelectedSidebarItem(sidebar::all);
    setSelectedTab(ListTab);
    m_list->focusSearch();
}

QWidget* ContentView::makeTabArea()
{
    m_tabs->setObjectName(QStringLiteral("tabSwitch"));
    for (const TabTitle& title : tabTitles())
        m_tabs->addSegment(title.symbol, title.text);
    m_tabs->setCurrentIndex(m_selectedTab);
    m_screens->addWidget(m_list);
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

QWidget* ContentView::makeScreen(int tab)
{
    const TabTitle title = tabTitles().at(tab);
    auto* screen = new EmptyState;
    screen->setSymbol(title.symbol);
    screen->setTitle(title.text);
    return screen;
}

void ContentView::showPage()
{
    if (m_sidebar->selectedSidebarItem() == sidebar::settings) {
        if (!m_settings) {
            auto* settings = new EmptyState;
            settings->setSymbol(QStringLiteral("gear"));
            settings->setTitle(QStringLiteral("Impostazioni"));
            m_settings = settings;
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
        m_screens->insertWidget(m_selectedTab, makeScreen(m_selectedTab));
        m_screens->removeWidget(placeholder);
        placeholder->deleteLater();
    }
    m_screens->setCurrentIndex(m_selectedTab);
}

void ContentView::forgetDeletedSelection()
{
    const auto& items = m_context.equipment.equipment();
    const auto isSelected = [this](const Equipment& item) { return item.id == m_selectedEquipment->id; };
    if (m_selectedEquipment && std::none_of(items.begin(), items.end(), isSelected))
        setSelectedEquipment(std::nullopt);
}

} // namespace abissora
