// SPDX-License-Identifier: MIT
#include "ListPage.h"

#include "EquipmentDetailView.h"
#include "EquipmentListView.h"
#include "Literals.h"
#include "ScreenFactory.h"

#include <QHBoxLayout>
#include <QKeyEvent>

namespace abissora {

namespace {

constexpr int detailWidth = 385;
/// Beside the sidebar at its narrowest, in the smallest window: the list with every column to be read, and the pane,
/// which takes more of it for larger text.
constexpr int leastPagesWidth = 778;

} // namespace

ListPage::ListPage(ScreenFactory& factory, EquipmentViewModel& equipment, QWidget* parent)
    : QSplitter(parent)
    , m_factory(factory)
    , m_equipment(equipment)
    , m_list(factory.makeList())
    , m_detailPane(new QWidget)
{
    setObjectName(u"listSplitter"_s);
    auto* paneLayout = new QHBoxLayout(m_detailPane);
    paneLayout->setContentsMargins(0, 0, 0, 0);
    m_detailPane->setObjectName(u"detailPane"_s);
    m_detailPane->hide();
    boundWidths();
    addWidget(m_list);
    addWidget(m_detailPane);
    setChildrenCollapsible(false);
    setStretchFactor(0, 1);
    setSizes({detailWidth * 2, detailWidth});
    setHandleWidth(1);

    connect(m_list, &EquipmentListView::equipmentSelected, this, &ListPage::setSelectedEquipment);
    connect(m_list, &EquipmentListView::selectionListed, this, [this](bool listed) { setFilteredOut(!listed); });
    connect(m_list, &EquipmentListView::placeChanged, this, &ListPage::itemChanged);
    connect(&equipment, &EquipmentViewModel::equipmentChanged, this, &ListPage::followRegister);
}

void ListPage::setSelectedEquipment(const std::optional<Equipment>& equipment)
{
    setFilteredOut(false);
    if (equipment == m_selectedEquipment)
        return;
    m_selectedEquipment = equipment;
    m_list->setSelectedEquipment(equipment);
    showDetail();
    Q_EMIT selectedEquipmentChanged();
    Q_EMIT itemChanged();
}

std::optional<Equipment> ListPage::item() const
{
    const auto chosen = m_selectedEquipment && !m_isFilteredOut ? m_selectedEquipment : m_list->equipmentAtKeyboard();
    const QList<Equipment>& items = m_equipment.equipment();
    const auto stored = chosen ? std::ranges::find(items, chosen->id, &Equipment::id) : items.end();
    return stored == items.end() ? std::nullopt : std::optional(*stored);
}

void ListPage::showDetails()
{
    if (const auto chosen = item())
        setSelectedEquipment(chosen);
}

void ListPage::addMaintenance()
{
    showDetails();
    if (m_selectedEquipment && m_detailPane->isVisible())
        m_detail->openMaintenanceForm();
}

void ListPage::toggleActive()
{
    if (auto chosen = item()) {
        chosen->isActive = !chosen->isActive;
        m_equipment.updateEquipment(*chosen);
    }
}

void ListPage::confirmDeletion()
{
    if (const auto chosen = item())
        m_list->confirmDeletion(*chosen);
}

void ListPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_detailPane->isVisible())
        setSelectedEquipment(std::nullopt);
    else
        QSplitter::keyPressEvent(event);
}

void ListPage::changeEvent(QEvent* event)
{
    QSplitter::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        boundWidths();
}

void ListPage::boundWidths()
{
    m_list->setMinimumWidth(leastPagesWidth - EquipmentDetailView::leastWidth());
}

void ListPage::followRegister()
{
    if (m_selectedEquipment &&
        std::ranges::count(m_equipment.equipment(), m_selectedEquipment->id, &Equipment::id) == 0)
        setSelectedEquipment(std::nullopt);
    Q_EMIT itemChanged();
}

void ListPage::setFilteredOut(bool filteredOut)
{
    if (filteredOut == m_isFilteredOut)
        return;
    m_isFilteredOut = filteredOut;
    placeDetail();
    Q_EMIT itemChanged();
}

void ListPage::showDetail()
{
    if (m_selectedEquipment && m_detail == nullptr) {
        m_detail = m_factory.makeDetail(*m_selectedEquipment);
        m_detailPane->layout()->addWidget(m_detail);
        connect(m_detail, &EquipmentDetailView::closed, this, [this] { setSelectedEquipment(std::nullopt); });
    } else if (m_selectedEquipment) {
        m_detail->setEquipment(*m_selectedEquipment);
    }
    placeDetail();
}

void ListPage::placeDetail()
{
    const bool shown = m_selectedEquipment && !m_isFilteredOut;
    const bool focusGoes = !shown && m_detailPane->isAncestorOf(window()->focusWidget());
    m_detailPane->setVisible(shown);
    if (focusGoes)
        m_list->focusContent();
}

} // namespace abissora
