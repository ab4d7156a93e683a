// SPDX-License-Identifier: MIT
#include "StateDifferences.h"

#include "CountText.h"
#include "Literals.h"
#include "MaintenanceRecords.h"

namespace abissora {

namespace {

DifferenceLine lineOf(const QString& name, const TypeAppearance& look, const QList<FieldDifference>& fields)
{
    const FieldDifference& first = fields.first();
    if (fields.size() == 1 && first.before != first.after)
        return {name, look, first.label + u": "_s + first.before, first.after};
    QStringList labels;
    for (const FieldDifference& field : fields)
        labels.append(field.label);
    return {name, look, labels.join(u", "_s)};
}

/// Pairs the records of two lists, and says which ones have no counterpart.
template <typename Record>
class Pairs
{
public:
    explicit Pairs(const QList<Record>& records)
    {
        for (const Record& record : records) {
            if (!m_byId.contains(record.id))
                m_byId.insert(record.id, &record);
        }
    }

    /// Each is taken once.
    const Record* take(const QUuid& id) { return m_byId.take(id); }
    const Record* takeNamed(const QString& name)
    {
        const auto found = std::ranges::find_if(m_byId, [&name](const Record* record) { return record->name == name; });
        return found == m_byId.end() ? nullptr : m_byId.take((*found)->id);
    }
    [[nodiscard]] bool isLeft(const Record& record) const { return m_byId.value(record.id) == &record; }

private:
    QHash<QUuid, const Record*> m_byId;
};

} // namespace

QString DifferenceLine::text() const
{
    QString text = name;
    if (!detail.isEmpty())
        text += u", "_s + detail;
    if (!becomes.isEmpty())
        text += u" → "_s + becomes;
    return text;
}

void DifferenceGroup::add(const DifferenceLine& line)
{
    if (++total <= mostLines)
        lines.append(line);
}

QString DifferenceGroup::rest() const
{
    const qsizetype more = total - lines.size();
    return more == 0 ? QString() : more == 1 ? u"e un altro"_s : u"e altri %1"_s.arg(more);
}

StateComparison::StateComparison(const EquipmentTypeViewModel& types, const DateFormat& dates)
    : m_types(types)
    , m_dates(dates)
{}

void StateComparison::compareEquipment(const QList<Equipment>& now, const QList<Equipment>& then)
{
    const auto line = [this](const Equipment& item) {
        return DifferenceLine{item.name, appearanceOf(item, m_types), recordsText(item.maintenanceHistory.size())};
    };
    Pairs<Equipment> present(now);
    for (const Equipment& item : then) {
        const Equipment* const counterpart = present.take(item.id);
        if (counterpart == nullptr) {
            m_returning.add(line(item));
            continue;
        }
        const QList<FieldDifference> fields = fieldDifferences(*counterpart, item, m_dates);
        if (!fields.isEmpty())
            m_changing.add(lineOf(counterpart->name, appearanceOf(*counterpart, m_types), fields));
    }
    for (const Equipment& item : now) {
        if (present.isLeft(item))
            m_vanishing.add(line(item));
    }
}

void StateComparison::compareTypes(const QList<EquipmentTypeModel>& now, const QList<EquipmentTypeModel>& then)
{
    Pairs<EquipmentTypeModel> present(now);
    QList<std::pair<const EquipmentTypeModel*, const EquipmentTypeModel*>> pairs; // then, now
    for (const EquipmentTypeModel& type : then)
        pairs.append(std::pair(&type, present.take(type.id)));
    for (auto& [type, counterpart] : pairs) {
        if (counterpart == nullptr)
            counterpart = present.takeNamed(type->name);
        if (counterpart == nullptr) {
            m_typesReturning.add({type->name, appearanceOf(*type), {}});
            continue;
        }
        const QList<FieldDifference> fields = fieldDifferences(*counterpart, *type);
        if (!fields.isEmpty())
            m_typesChanging.add(lineOf(counterpart->name, appearanceOf(*type), fields));
    }
    for (const EquipmentTypeModel& type : now) {
        if (present.isLeft(type))
            m_typesVanishing.add({type.name, appearanceOf(type), {}});
    }
}

void StateComparison::addSettings(const QList<FieldDifference>& differences)
{
    if (differences.isEmpty())
        return;
    m_settings.add(lineOf(u"Cambiano"_s, {u"gear"_s, NamedColor::secondary}, differences));
    m_settings.total = differences.size();
}

void StateComparison::addDocuments(const QList<Equipment>& then, const QSet<QString>& archived)
{
    QSet<QString> left = archived;
    for (const Equipment& item : then) {
        for (const Maintenance& record : item.maintenanceHistory) {
            for (const DocumentSlot slot : documentSlots) {
                const std::optional<QString>& name = documentName(record, slot);
                if (!name || !left.remove(*name))
                    continue;
                const QString text = u"%1 del %2"_s.arg(documentLabel(slot), m_dates.abbreviatedDate(record.date));
                m_documents.add({text, {u"doc.text"_s, NamedColor::secondary}, item.name});
            }
        }
    }
}

QList<DifferenceGroup> StateComparison::groups() const
{
    QList<DifferenceGroup> groups{m_returning,      m_vanishing,      m_changing,      m_documents,
                                  m_typesReturning, m_typesVanishing, m_typesChanging, m_settings};
    groups.removeIf([](const DifferenceGroup& group) { return group.total == 0; });
    return groups;
}

} // namespace abissora
