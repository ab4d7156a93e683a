// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "Calendar.h"
#include "Console.h"
#include "EarlierState.h"
#include "StateKeeper.h"
#include "WritePermission.h"

namespace abissora {

/// Keeps earlier states of a register in its backups folder, each a folder that appears whole or not at all. What is as
/// in the state before is a second name of its file, the rest a copy; a second name of a stored file, into which
/// another program might write, only where nothing can be copied.
class Generations final : public StateKeeper
{
public:
    /// Everything passed by reference must outlive it.
    Generations(ApplicationDirectories directories, const Clock& clock, Calendar calendar, Console& console,
                WritePermission& permission);

    /// Keeps the present files when the occasion is more than a change, or the first change of a local day; then drops
    /// states that need not be kept any more. Forbids the write when this process may not write, or when bytes that it
    /// did not write or does not understand cannot be kept; another state that cannot be kept is only logged, once
    /// until one could be kept again.
    [[nodiscard]] IoResult<void> beforeWriting(const QString& key, Occasion occasion) override;

    /// Keeps the present files. Nothing happens when nothing is stored, or when the newest state is just this one. What
    /// another program left unreadable becomes a state of Occasion::unreadable. The state called `spared` is not
    /// dropped this time.
    IoResult<void> keep(Occasion occasion, const QString& spared = {});
    /// Not twice the same bytes.
    [[nodiscard]] IoResult<void> keepUnreadable(const QString& key) override;

    /// Newest first; before all others those of Occasion::emergency after which nothing was restored.
    [[nodiscard]] QList<EarlierState> list() const;
    [[nodiscard]] std::optional<EarlierState> find(const QString& name) const;

private:
    IoResult<void> keepFiles(const QHash<QString, QString>& files, Occasion occasion);
    IoResult<void> keepFile(const QString& key, const QString& source, const QString& folder) const;
    [[nodiscard]] QString freeName(Instant now, Occasion occasion) const;
    /// Of which there is no copy yet that stays.
    [[nodiscard]] bool holdsUnreadable(const QHash<QString, QString>& files) const;
    [[nodiscard]] bool isKept(const QHash<QString, QString>& files, Occasion occasion) const;
    [[nodiscard]] bool isUnreadableKept(const QString& key) const;
    [[nodiscard]] bool isFirstOfDay() const;
    /// Of those that are not ahead of the clock: one of these would be the newest for years.
    [[nodiscard]] const std::optional<EarlierState>& newest() const;
    void prune(const QString& spared);
    void report(const IoResult<void>& kept);

    ApplicationDirectories m_directories;
    const Clock& m_clock;
    Calendar m_calendar;
    Console& m_console;
    WritePermission& m_permission;
    mutable std::optional<EarlierState> m_newest;  ///< once looked for
    mutable Instant m_firstAhead = Instant::min(); ///< of the states that were ahead at that look, the earliest
    std::optional<Instant> m_keptAt;               ///< when the last one was kept here; its name may be later
    bool m_hasFailed = false;
};

} // namespace abissora
