// SPDX-License-Identifier: MIT
#include "SidebarModel.h"

#include "Literals.h"
#include "SymbolIcon.h"

namespace abissora {

SidebarModel::SidebarModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_rows(rowsFor({}))
{}

void SidebarModel::setTypes(const QList<EquipmentTypeModel>& types)
{
    QList<Row> rows = rowsFor(types);
    if (rows == m_rows)
        return;
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void SidebarModel::setBadge(qsizetype count)
{
    if (m_badge == count)
        return;
    m_badge = count;
    const QModelIndex changed = index(rowOf(sidebar::maintenance));
    Q_EMIT dataChanged(changed, changed);
}

int SidebarModel::rowOf(const QString& tag) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&tag](const Row& row) { return row.kind == Entry && row.tag == tag; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

QString SidebarModel::tagOf(int row) const
{
    return m_rows.at(row).tag;
}

int SidebarModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    const bool badged = row.tag == sidebar::maintenance && m_badge > 0;
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case Qt::DecorationRole:
        return row.kind == Entry ? QVariant::fromValue(typeIcon(row.appearance.icon, row.appearance.color))
                                 : QVariant();
    case Qt::AccessibleTextRole:
        return badged ? u"%1, %2"_s.arg(row.text).arg(m_badge) : row.text;
    case TagRole:
        return row.tag;
    case KindRole:
        return row.kind;
    case BadgeRole:
        return badged ? QVariant::fromValue(m_badge) : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags SidebarModel::flags(const QModelIndex& index) const
{
    const bool entry = index.isValid() && m_rows.at(index.row()).kind == Entry;
    return entry ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

QList<SidebarModel::Row> SidebarModel::rowsFor(const QList<EquipmentTypeModel>& types)
{
    QList<Row> rows{
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

} // namespace abissora
