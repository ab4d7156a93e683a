// SPDX-License-Identifier: MIT
#include "EmergencyCopy.h"

#include "AtomicFile.h"
#include "EarlierState.h"
#include "StateFiles.h"

#include <QDir>

namespace abissora {

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
