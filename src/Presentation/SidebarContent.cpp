// SPDX-License-Identifier: MIT
#include "SidebarContent.h"

namespace abissora {

QList<SidebarRow> sidebarRows(const QList<EquipmentTypeModel>& types)
{
    using enum SidebarRow::Kind;
    QList<SidebarRow> rows{
        {SectionTitle, u"Attrezzatura"_s, {}, {}},
        {Entry, u"Tutti gli articoli"_s, sidebar::all, {u"folder"_s}},
        {Entry, u"Manutenzione scaduta"_s, sidebar::maintenance, {u"exclamationmark.triangle"_s}},
        {SectionTitle, u"Categorie"_s, {}, {}},
    };
    for (const EquipmentTypeModel& type : types)
        rows.append({Entry, type.name, sidebar::typePrefix + type.name, appearanceOf(type)});
    rows.append({Divider, {}, {}, {}});
    rows.append({Entry, u"Impostazioni"_s, sidebar::settings, {u"gear"_s}});
    return rows;
}

SidebarSelection::SidebarSelection(EquipmentViewModel& equipment, Console& console, QObject* parent)
    : QObject(parent)
    , m_equipment(equipment)
    , m_console(console)
    , m_lastFilterTypeName(equipment.filterTypeName())
{}

void SidebarSelection::select(const std::optional<QString>& tag)
{
    if (tag == m_tag)
        return;
    m_tag = tag;
    Q_EMIT changed();
    act();
}

void SidebarSelection::act()
{
    m_console.print(u"🔄 Sidebar selection changed to: "_s + orNil(m_tag));
    if (!m_tag)
        return;
    const QString tag = *m_tag;
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

void SidebarSelection::followFilter()
{
    const auto name = m_equipment.filterTypeName();
    if (name == m_lastFilterTypeName)
        return;
    m_lastFilterTypeName = name;
    m_console.print(u"📌 filterTypeName cambiato a: "_s + orNil(name));
    if (name)
        synchronise(sidebar::typePrefix + *name);
    else if (!m_equipment.selectedType() && m_tag != sidebar::maintenance)
        synchronise(sidebar::all);
}

void SidebarSelection::synchronise(const QString& tag)
{
    if (tag == m_tag)
        return;
    m_console.print(u"🔄 Sincronizzazione: Imposto '"_s + tag + u'\'');
    select(tag);
}

} // namespace abissora
