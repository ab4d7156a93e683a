// SPDX-License-Identifier: MIT
#include "SidebarView.h"

#include "ControlLook.h"
#include "Literals.h"

#include <QScopedValueRollback>

namespace abissora {

namespace {

constexpr int minimumSidebarWidth = 220;

} // namespace

SidebarView::SidebarView(EquipmentViewModel& equipment, EquipmentTypeViewModel& types, Console& console,
                         QWidget* parent)
    : QListView(parent)
    , m_equipment(equipment)
    , m_types(types)
    , m_console(console)
    , m_update([this] { redraw(); })
    , m_lastFilterTypeName(equipment.filterTypeName())
{
    setObjectName(u"sidebar"_s);
    setAccessibleName(u"Barra laterale"_s);
    setMinimumWidth(minimumSidebarWidth);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setSelectionLook(*this, SelectionLook::Pill);
    setBackgroundRole(QPalette::AlternateBase);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    m_model.setTypes(types.filteredTypes());
    setModel(&m_model);
    setItemDelegate(&m_delegate);
    redraw();
    connect(&equipment, &EquipmentViewModel::changed, &m_update, &CoalescedUpdate::schedule);
    connect(&types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
}

void SidebarView::setSelectedSidebarItem(const std::optional<QString>& tag)
{
    if (tag == m_selectedSidebarItem)
        return;
    m_selectedSidebarItem = tag;
    showSelection();
    Q_EMIT selectedSidebarItemChanged();
    actOnSelection();
}

QSize SidebarView::sizeHint() const
{
    const QSize usual = QListView::sizeHint();
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int fixedRows = m_delegate.sizeHint(option, m_model.index(m_model.rowOf(sidebar::maintenance))).width();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return {std::max(minimumWidth(), fixedRows + scrollBar), usual.height()};
}

void SidebarView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (!m_silent && !rows.isEmpty())
        setSelectedSidebarItem(m_model.tagOf(rows.first().row()));
}

void SidebarView::actOnSelection()
{
    m_console.print(u"🔄 Sidebar selection changed to: "_s + orNil(m_selectedSidebarItem));
    if (!m_selectedSidebarItem)
        return;
    const QString tag = *m_selectedSidebarItem;
    if (tag == sidebar::all) {
        m_console.print(u"📂 Reset filtri - Tutti gli articoli"_s);
        Q_EMIT tabRequested(0);
        m_equipment.resetFilters();
    } else if (tag == sidebar::maintenance) {
        m_console.print(u"🔧 Vai a Manutenzione - Tab 1"_s);
        Q_EMIT tabRequested(1);
    } else if (tag.startsWith(sidebar::typePrefix)) {
        const QString name = tag.mid(sidebar::typePrefix.size());
        m_console.print(u"🎯 Categoria selezionata: "_s + name);
        Q_EMIT tabRequested(0);
        m_equipment.filterByTypeName(name);
    }
}

void SidebarView::followFilter()
{
    const auto name = m_equipment.filterTypeName();
    if (name == m_lastFilterTypeName)
        return;
    m_lastFilterTypeName = name;
    m_console.print(u"📌 filterTypeName cambiato a: "_s + orNil(name));
    const auto synchronise = [this](const QString& target) {
        m_console.print(u"🔄 Sincronizzazione: Imposto '"_s + target + u'\'');
        setSelectedSidebarItem(target);
    };
    if (name) {
        const QString target = sidebar::typePrefix + *name;
        if (m_selectedSidebarItem != target)
            synchronise(target);
    } else if (!m_equipment.selectedType() && m_selectedSidebarItem != sidebar::all &&
               m_selectedSidebarItem != sidebar::maintenance) {
        synchronise(sidebar::all);
    }
}

void SidebarView::redraw()
{
    followFilter();
    m_model.setTypes(m_types.filteredTypes());
    m_model.setBadge(m_equipment.overdueEquipment().size());
    showSelection();
}

void SidebarView::showSelection()
{
    const QScopedValueRollback silent(m_silent, true);
    const int row = m_selectedSidebarItem ? m_model.rowOf(*m_selectedSidebarItem) : -1;
    if (row < 0)
        clearSelection();
    else if (!selectionModel()->isRowSelected(row) || currentIndex().row() != row)
        setCurrentIndex(m_model.index(row));
}

} // namespace abissora
