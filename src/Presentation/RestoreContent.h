// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentArchive.h"
#include "EarlierStateRow.h"
#include "EquipmentViewModel.h"
#include "Generations.h"
#include "StateDifferences.h"

namespace abissora {

/// What going back to one state would do.
struct RestorePreview
{
    QString title; ///< "21 novembre 2026, 18:42"
    /// "Che cosa cambia rispetto ad adesso", or in a word that nothing does or that nothing can be read.
    QString subtitle;
    QList<DifferenceGroup> groups;
    bool canBeRestored = false;
};

/// The kept states, as they were when it was made, and how each differs from what the program holds now. Their files
/// are read when somebody asks for a state; what its row says is remembered.
class RestoreContent
{
public:
    struct Sources
    {
        const Generations& generations;
        const DocumentArchive& archive;
        const EquipmentViewModel& equipment;
        const EquipmentTypeViewModel& types;
        const SettingsViewModel& settings;
        Almanac almanac;
    };

    /// What the sources refer to must outlive it.
    explicit RestoreContent(const Sources& sources);

    [[nodiscard]] const QList<EarlierState>& states() const { return m_states; }
    /// The title of the group that begins with the state of this place; empty for the others of a group.
    [[nodiscard]] QString groupTitleAbove(qsizetype index) const;
    [[nodiscard]] EarlierStateRow row(qsizetype index) const;
    [[nodiscard]] RestorePreview preview(qsizetype index) const;
    /// Of a state that comes from elsewhere, with these documents.
    [[nodiscard]] RestorePreview previewOfCopy(const EarlierState& copy, const QSet<QString>& documents) const;
    /// The rows that were asked for so far.
    [[nodiscard]] qsizetype readRows() const { return m_rows.size(); }

private:
    [[nodiscard]] RestorePreview preview(const EarlierState& state, const QSet<QString>& documents) const;
    /// `documents` are those that could come back.
    [[nodiscard]] QList<DifferenceGroup> differences(const EarlierState& state, const StateContent& content,
                                                     const QSet<QString>& documents) const;
    [[nodiscard]] QList<FieldDifference> settingsDifferences(const EarlierState& state) const;

    Sources m_sources;
    QList<EarlierState> m_states;
    QList<Equipment> m_equipment; ///< of now, as exact as a stored one
    mutable QHash<QString, EarlierStateRow> m_rows;
};

} // namespace abissora
