// SPDX-License-Identifier: MIT
#include "ImportTableModel.h"

#include "Literals.h"

namespace abissora {

ImportTableModel::ImportTableModel(ImportPlan& plan, const EquipmentTypeViewModel& types, QObject* parent)
    : QAbstractTableModel(parent)
    , m_plan(plan)
    , m_types(types)
{}

void ImportTableModel::setPlan(ImportPlan plan)
{
    beginResetModel();
    m_plan = std::move(plan);
    endResetModel();
    Q_EMIT choiceChanged();
}

void ImportTableModel::setNewChosen(bool areChosen)
{
    m_plan.setNewChosen(areChosen);
    announceChoices();
}

void ImportTableModel::toggle(int row)
{
    if (!isReadable() || !m_plan.canBeChosen(row))
        return;
    m_plan.setChosen(row, !m_plan.isChosen(row));
    announceChoices();
}

void ImportTableModel::announceChoices()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, ChoiceColumn), index(rowCount() - 1, columnCount() - 1), {Qt::CheckStateRole});
    Q_EMIT choiceChanged();
}

ImportTableModel::Cell ImportTableModel::cell(const QModelIndex& index) const
{
    const int column = index.column() - 1;
    if (!isReadable())
        return {.text = csv::restored(m_plan.table()->rows.at(index.row()).cells.value(column)),
                .note = {},
                .problem = {},
                .appearance = {}};
    const ImportRow& row = m_plan.rows().at(index.row());
    const ImportField field = m_plan.columns().at(column).field;
    const bool isPresent = row.standing == ImportRow::Standing::Present;
    Cell cell{.text = row.cells.at(column).text,
              .note = {},
              .problem = row.cells.at(column).problem,
              .appearance = {},
              .isName = field == ImportField::Name,
              .isPresent = isPresent};
    if (isPresent && (cell.isName || column == 0))
        cell.note = u"già presente"_s;
    if (field == ImportField::Type)
        cell.appearance = appearanceOf(row.item, m_types);
    return cell;
}

int ImportTableModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return static_cast<int>(isReadable() ? m_plan.rows().size() : m_plan.table()->rows.size());
}

int ImportTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_plan.columns().size()) + 1;
}

QVariant ImportTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (index.column() == ChoiceColumn) {
        if (role == Qt::CheckStateRole)
            return isReadable() && m_plan.isChosen(index.row()) ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::AccessibleTextRole)
            return u"Importa la riga %1"_s.arg(index.row() + 1);
        return {};
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const Cell content = cell(index);
    QStringList lines{content.problem.isEmpty() ? content.text : content.problem};
    if (!content.note.isEmpty())
        lines.append(content.note);
    const QString text = lines.join(u'\n');
    return role == Qt::ToolTipRole ? text.toHtmlEscaped() : text;
}

bool ImportTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (index.column() != ChoiceColumn || role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsEnabled))
        return false;
    m_plan.setChosen(index.row(), value.toInt() == Qt::Checked);
    announceChoices();
    return true;
}

QVariant ImportTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == ChoiceColumn ? u"Importa"_s : m_plan.columns().at(section - 1).title;
}

Qt::ItemFlags ImportTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool canBeChosen = isReadable() && m_plan.canBeChosen(index.row());
    if (index.column() != ChoiceColumn)
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | (canBeChosen ? Qt::ItemIsEnabled : Qt::NoItemFlags);
}

} // namespace abissora
