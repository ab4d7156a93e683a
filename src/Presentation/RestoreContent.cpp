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

} // namespace

RestoreContent::RestoreContent(const Sources& sources)
    : m_sources(sources)
    , m_states(sources.generations.list())
    , m_reader(sources.work, sources.equipment.equipment())
{
    connect(&m_reader, &StateReader::read, this, &RestoreContent::take);
}

QString RestoreContent::groupTitleAbove(qsizetype index) const
{
    const QString title = groupTitle(m_states.at(index), m_sources.almanac);
    const bool begins = index == 0 || groupTitle(m_states.at(index - 1), m_sources.almanac) != title;
    return begins ? title : QString();
}

EarlierStateRow RestoreContent::row(qsizetype index)
{
    const EarlierState& state = m_states.at(index);
    const auto known = m_rows.constFind(state.name);
    if (known != m_rows.cend())
        return *known;
    m_reader.ask(state);
    return EarlierStateRow::ofUnread(state, m_sources.almanac);
}

RestorePreview RestoreContent::compare(qsizetype index)
{
    const EarlierState& state = m_states.at(index);
    return compare({state, m_sources.archive.archived(), titleOf(state)});
}

RestorePreview RestoreContent::compareCopy(const EarlierState& copy, const QSet<QString>& documents)
{
    return compare({copy, (m_sources.archive.archived() + documents) - m_sources.archive.present(),
                    u"Copia del "_s + titleOf(copy)});
}

RestorePreview RestoreContent::compare(const Wanted& wanted)
{
    m_wanted = wanted;
    m_reader.ask(wanted.state);
    return {.title = wanted.title, .subtitle = u"Lettura in corso…"_s, .groups = {}, .canBeRestored = false};
}

QString RestoreContent::titleOf(const EarlierState& state) const
{
    return m_sources.almanac.dates.longDate(state.kept) + u", "_s + timeText(state.kept, m_sources.almanac);
}

void RestoreContent::take(const EarlierState& state, const ReadState& result)
{
    const qsizetype index = m_states.indexOf(state);
    if (index >= 0 && !m_rows.contains(state.name)) {
        m_rows.insert(state.name, EarlierStateRow::of(state, result.content, m_sources.almanac));
        Q_EMIT rowRead(index);
    }
    if (m_wanted && m_wanted->state == state)
        Q_EMIT compared(preview(*std::exchange(m_wanted, std::nullopt), result));
}

RestorePreview RestoreContent::preview(const Wanted& wanted, const ReadState& result) const
{
    RestorePreview preview{
        .title = wanted.title,
        .subtitle = u"Niente di leggibile"_s,
        .groups = {},
        .canBeRestored = abissora::canBeRestored(result.content),
    };
    if (preview.canBeRestored) {
        preview.groups = differences(wanted, result);
        preview.subtitle = preview.groups.isEmpty() ? u"Uguale ad adesso"_s : u"Che cosa cambia rispetto ad adesso"_s;
    }
    return preview;
}

QList<DifferenceGroup> RestoreContent::differences(const Wanted& wanted, const ReadState& result) const
{
    const auto& [equipment, types] = result.content;
    StateComparison comparison(m_sources.types, m_sources.almanac.dates);
    if (equipment.isStored) {
        comparison.compareEquipment(result.present, equipment.records);
        comparison.addDocuments(equipment.records, wanted.documents);
    }
    // Types of which nothing can be read stay as they are.
    if (types.isStored && (!types.error || !types.records.isEmpty()))
        comparison.compareTypes(m_sources.types.types(), types.records);
    comparison.addSettings(settingsDifferences(wanted.state));
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
