// SPDX-License-Identifier: MIT
#include "EmergencyCopy.h"

#include "AtomicFile.h"
#include "EarlierState.h"
#include "StateFiles.h"

#include <QDir>

namespace abissora {

namespace {

/// The latest state in `folder`, if it holds just these files.
std::optional<EarlierState> latestWith(const QHash<QString, QString>& files, const QString& folder)
{
    const QList<EarlierState> states = statesIn(folder);
    const auto latest = std::ranges::max_element(states, {}, &EarlierState::kept);
    if (latest == states.end() || latest->files.size() != files.size())
        return std::nullopt;
    const bool isSame = std::ranges::all_of(files.keys(), [&](const QString& key) {
        return latest->files.contains(key) && haveSameBytes(latest->files.value(key), files.value(key));
    });
    return isSame ? std::optional(*latest) : std::nullopt;
}

} // namespace

IoResult<QString> keepEmergencyCopy(const PreferencesStore& preferences, const ApplicationDirectories& directories,
                                    const Clock& clock)
{
    const QString folder = directories.emergency();
    const QString temporary = folder + u'/' + AtomicFile::temporaryName();
    const QHash<QString, QByteArray> pending = preferences.pending();
    const auto target = [&temporary](const QString& key) -> QString { return temporary + u'/' + key + u".json"; };

    auto kept = AtomicFile::makeFolder(temporary);
    for (auto value = pending.cbegin(); kept && value != pending.cend(); ++value)
        kept = AtomicFile::replace(target(value.key()), *value);
    const QHash<QString, QString> stored = storedFiles(preferences.folder());
    for (auto file = stored.cbegin(); kept && file != stored.cend(); ++file) {
        // What cannot be read is no reason to lose what is in memory.
        if (!pending.contains(file.key()))
            static_cast<void>(AtomicFile::copy(*file, target(file.key())));
    }
    if (const auto earlier = latestWith(storedFiles(temporary), folder); kept && earlier) {
        QDir(temporary).removeRecursively();
        return folder + u'/' + earlier->name;
    }
    QString state = folder + u'/' + stateName(clock.now(), Occasion::emergency);
    kept = kept.and_then([&] { return AtomicFile::syncFolder(temporary); }).and_then([&] {
        return AtomicFile::move(temporary, state);
    });
    if (!kept) {
        QDir(temporary).removeRecursively();
        return tl::unexpected(kept.error());
    }
    return state;
}

} // namespace abissora
