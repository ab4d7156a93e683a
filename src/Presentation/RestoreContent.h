// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentArchive.h"
#include "EarlierStateRow.h"
#include "EquipmentViewModel.h"
#include "Generations.h"
#include "StateDifferences.h"
#include "StateReader.h"

namespace abissora {

/// What going back to one state would do.
struct RestorePreview
{
    QString title; ///< "21 novembre 2026, 18:42"
    /// "Che cosa cambia rispetto ad adesso", or in a word that nothing does or that nothing can be read.
    QString subtitle; ///< or that the files are still being read
    QList<DifferenceGroup> groups;
    bool canBeRestored = false;
};

/// The kept states, as they were when it was made, and how each differs from what the program holds now. Their files
/// are read beside the interface when somebody asks for a state; what its row says is remembered.
class RestoreContent : public QObject
{
    Q_OBJECT

public:
    struct Sources
    {
        const Generations& generations;
        const DocumentArchive& archive;
        const EquipmentViewModel& equipment;
        const EquipmentTypeViewModel& types;
        const SettingsViewModel& settings;
        LongWork& work;
        Almanac almanac;
    };

    /// What the sources refer to must outlive it.
    explicit RestoreContent(const Sources& sources);

    [[nodiscard]] const QList<EarlierState>& states() const { return m_states; }
    /// The title of the group that begins with the state of this place; empty for the others of a group.
    [[nodiscard]] QString groupTitleAbove(qsizetype index) const;
    /// What is known so far. Where its files were not read yet, they will be: see rowRead().
    [[nodiscard]] EarlierStateRow row(qsizetype index);
    /// The rows whose files were read so far.
    [[nodiscard]] qsizetype readRows() const { return m_rows.size(); }

    /// What can be said at once. How it differs comes with compared(), unless another state is asked for before.
    RestorePreview compare(qsizetype index);
    /// The same of a state that comes from elsewhere, with these documents.
    RestorePreview compareCopy(const EarlierState& copy, const QSet<QString>& documents);

Q_SIGNALS:
    void rowRead(qsizetype index);
    void compared(const abissora::RestorePreview& preview);

private:
    /// One that is to be compared with now.
    struct Wanted
    {
        EarlierState state;
        QSet<QString> documents; ///< that could come back
        QString title;
    };

    RestorePreview compare(const Wanted& wanted);
    [[nodiscard]] QString titleOf(const EarlierState& state) const;
    void take(const EarlierState& state, const ReadState& result);
    [[nodiscard]] RestorePreview preview(const Wanted& wanted, const ReadState& result) const;
    [[nodiscard]] QList<DifferenceGroup> differences(const Wanted& wanted, const ReadState& result) const;
    [[nodiscard]] QList<FieldDifference> settingsDifferences(const EarlierState& state) const;

    Sources m_sources;
    QList<EarlierState> m_states;
    StateReader m_reader;
    QHash<QString, EarlierStateRow> m_rows;
    std::optional<Wanted> m_wanted;
};

} // namespace abissora
