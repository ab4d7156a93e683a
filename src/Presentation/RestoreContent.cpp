// SPDX-License-Identifier: MIT
#include "RestoreContent.h"

#include "Literals.h"
#include "StateFiles.h"

namespace abissora {

namespace {

class NoConsole final : public Console
{
public:
    void print(const QString& /*text*/) override {}
};

/// A stored date has no milliseconds: unless both are as if stored, every item of this run would have changed.
QList<Equipment> asStored(const QList<Equipment>& equipment)
{
    const auto json = encode(equipment);
    const auto decoded = json ? decodeEquipment(*json) : tl::unexpected(json.error());
    return decoded ? *decoded : equipment;
}

} // namespace

RestoreContent::RestoreContent(const Sources& sources)
    : m_sources(sources)
    , m_states(sources.generations.list())
    , m_equipment(asStored(sources.equipment.equipment()))
{}

QString RestoreContent::groupTitleAbove(qsizetype index) const
{
    const QString title = groupTitle(m_states.at(index), m_sources.almanac);
    const bool begins = index == 0 || groupTitle(m_states.at(index - 1), m_sources.almanac) != title;
    return begins ? title : QString();
}

EarlierStateRow RestoreContent::row(qsizetype index) const
{
    const EarlierState& state = m_states.at(index);
    const auto known = m_rows.constFind(state.name);
    if (known != m_rows.cend())
        return *known;
    return *m_rows.insert(state.name, EarlierStateRow::of(state, readContent(state), m_sources.almanac));
}

RestorePreview RestoreContent::preview(qsizetype index) const
{
    return preview(m_states.at(index), m_sources.archive.archived());
}

RestorePreview RestoreContent::previewOfCopy(const EarlierState& copy, const QSet<QString>& documents) const
{
    RestorePreview preview =
        this->preview(copy, (m_sources.archive.archived() + documents) - m_sources.archive.present());
    preview.title = u"Copia del "_s + preview.title;
    return preview;
}

RestorePreview RestoreContent::preview(const EarlierState& state, const QSet<QString>& documents) const
{
    const Almanac& almanac = m_sources.almanac;
    const StateContent content = readContent(state);
    RestorePreview preview{
        .title = almanac.dates.longDate(state.kept) + u", "_s + timeText(state.kept, almanac),
        .subtitle = u"Niente di leggibile"_s,
        .groups = {},
        .canBeRestored = abissora::canBeRestored(content),
    };
    if (preview.canBeRestored) {
        preview.groups = differences(state, content, documents);
        preview.subtitle = preview.groups.isEmpty() ? u"Uguale ad adesso"_s : u"Che cosa cambia rispetto ad adesso"_s;
    }
    return preview;
}

QList<DifferenceGroup> RestoreContent::differences(const EarlierState& state, const StateContent& content,
                                                   const QSet<QString>& documents) const
{
    StateComparison comparison(m_sources.types, m_sources.almanac.dates);
    if (content.equipment.isStored) {
        comparison.compareEquipment(m_equipment, content.equipment.records);
        comparison.addDocuments(content.equipment.records, documents);
    }
    // Types of which nothing can be read stay as they are.
    if (content.types.isStored && (!content.types.error || !content.types.records.isEmpty()))
        comparison.compareTypes(m_sources.types.types(), content.types.records);
    comparison.addSettings(settingsDifferences(state));
    return comparison.groups();
}

QList<FieldDifference> RestoreContent::settingsDifferences(const EarlierState& state) const
{
    KeepNothing keeper;
    NoConsole console;
    PreferencesStore store(state.path, keeper);
    const SettingsViewModel then(store, console);
    // Settings that a state with a register does not have are unset by it.
    const bool hasRegister = state.files.contains(registerKey);
    return fieldDifferences(m_sources.settings, then,
                            [&](const QString& key) { return hasRegister || state.files.contains(key); });
}

} // namespace abissora
