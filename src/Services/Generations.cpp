// SPDX-License-Identifier: MIT
#include "Generations.h"

#include "AtomicFile.h"
#include "FileIdentity.h"
#include "Literals.h"
#include "Retention.h"
#include "StateContent.h"
#include "StateFiles.h"

#include <QDir>

namespace abissora {

Generations::Generations(ApplicationDirectories directories, const Clock& clock, Calendar calendar, Console& console,
                         WritePermission& permission)
    : m_directories(std::move(directories))
    , m_clock(clock)
    , m_calendar(std::move(calendar))
    , m_console(console)
    , m_permission(permission)
{}

IoResult<void> Generations::beforeWriting(const QString& key, Occasion occasion)
{
    if (auto permitted = m_permission.mayWrite(); !permitted)
        return permitted;
    if (occasion == Occasion::change && isFirstOfDay())
        occasion = Occasion::firstOfDay;
    if (occasion == Occasion::change || (occasion == Occasion::unreadable && isUnreadableKept(key)))
        return {};
    auto kept = keep(occasion);
    if (occasion >= Occasion::unknownMembers)
        return kept;
    report(kept);
    return {};
}

IoResult<void> Generations::keepUnreadable(const QString& key)
{
    if (auto permitted = m_permission.mayWrite(); !permitted)
        return permitted;
    return isUnreadableKept(key) ? IoResult<void>() : keep(Occasion::unreadable);
}

QList<EarlierState> Generations::list() const
{
    QList<EarlierState> states = statesIn(m_directories.backups()) + statesIn(m_directories.emergency());
    Instant restored = Instant::min(); // whoever restores has seen what stands first
    for (const EarlierState& state : std::as_const(states))
        restored = state.occasion == Occasion::restoration ? std::max(restored, state.kept) : restored;
    const auto rank = [restored](const EarlierState& state) {
        return std::tuple(state.occasion == Occasion::emergency && state.kept > restored, state.kept, state.name);
    };
    std::ranges::sort(states, std::ranges::greater(), rank);
    return states;
}

std::optional<EarlierState> Generations::find(const QString& name) const
{
    const QList<EarlierState> states = list();
    const auto found = std::ranges::find(states, name, &EarlierState::name);
    return found == states.end() ? std::nullopt : std::optional(*found);
}

IoResult<void> Generations::keep(Occasion occasion, const QString& spared)
{
    const QHash<QString, QString> files = storedFiles(m_directories.preferences());
    // Before the register is first stored there is nothing that one would go back to, but the types that a person made.
    const bool isOfTypes = occasion >= Occasion::deletedType && files.contains(typesKey);
    const bool isWorth = files.contains(registerKey) || isOfTypes || occasion >= Occasion::unknownMembers;
    // What another program may have written nobody has tried to read yet.
    const bool isUnknown = occasion == Occasion::foreignBytes || occasion == Occasion::restoration;
    if (isUnknown && holdsUnreadable(files))
        occasion = Occasion::unreadable;
    if (files.isEmpty() || !isWorth || isKept(files, occasion))
        return {};
    return keepFiles(files, occasion).map([&] { prune(spared); });
}

IoResult<void> Generations::keepFiles(const QHash<QString, QString>& files, Occasion occasion)
{
    const QString temporary = m_directories.backups() + u'/' + AtomicFile::temporaryName();
    IoResult<void> kept =
        AtomicFile::makeFolder(m_directories.backups()).and_then([&] { return AtomicFile::makeFolder(temporary); });
    for (auto file = files.cbegin(); kept && file != files.cend(); ++file)
        kept = keepFile(file.key(), *file, temporary);

    const Instant now = m_clock.now();
    const QString target = m_directories.backups() + u'/' + freeName(now, occasion);
    kept = kept.and_then([&] { return AtomicFile::syncFolder(temporary); }).and_then([&] {
        return AtomicFile::move(temporary, target);
    });
    if (kept) {
        m_newest = readState(target);
        m_keptAt = now;
    } else {
        QDir(temporary).removeRecursively();
    }
    return kept;
}

QString Generations::freeName(Instant now, Occasion occasion) const
{
    // Names do not go back in time when the clock is set back a little.
    Instant kept = now;
    if (const auto& last = newest())
        kept = std::max(kept, last->kept + std::chrono::milliseconds(1));
    while (QFileInfo::exists(m_directories.backups() + u'/' + stateName(kept, occasion)))
        kept += std::chrono::milliseconds(1);
    return stateName(kept, occasion);
}

IoResult<void> Generations::keepFile(const QString& key, const QString& source, const QString& folder) const
{
    const QString target = folder + u'/' + key + ".json"_L1;
    // The stored file may stay, if only because replacing it fails, and another program might write into it: no second
    // name for that one.
    const QString before = newest() ? newest()->files.value(key) : QString();
    const bool isStored = !before.isEmpty() && FileIdentity::of(before) == FileIdentity::of(source);
    if (!before.isEmpty() && !isStored && haveSameBytes(before, source) && AtomicFile::link(before, target))
        return {};
    auto copied = AtomicFile::copy(source, target);
    // A second name needs neither space nor readable bytes.
    if (!copied && AtomicFile::link(source, target))
        return {};
    return copied;
}

bool Generations::holdsUnreadable(const QHash<QString, QString>& files) const
{
    return std::ranges::any_of(files.keys(), [&](const QString& key) {
        return !canBeDecoded(key, files.value(key)) && !isUnreadableKept(key);
    });
}

bool Generations::isKept(const QHash<QString, QString>& files, Occasion occasion) const
{
    const auto& last = newest();
    // A state of another occasion goes some day.
    if (!last || (occasion == Occasion::unreadable && last->occasion != Occasion::unreadable))
        return false;
    return last->files.size() == files.size() && std::ranges::all_of(files.keys(), [&](const QString& key) {
               return last->files.contains(key) && haveSameBytes(last->files.value(key), files.value(key));
           });
}

bool Generations::isUnreadableKept(const QString& key) const
{
    const QString source = storedFiles(m_directories.preferences()).value(key);
    return source.isEmpty() || std::ranges::any_of(list(), [&](const EarlierState& state) {
               return state.occasion == Occasion::unreadable && state.files.contains(key) &&
                      haveSameBytes(state.files.value(key), source);
           });
}

bool Generations::isFirstOfDay() const
{
    const auto& last = newest();
    return !last || m_calendar.local(m_keptAt.value_or(last->kept)).date() != m_calendar.local(m_clock.now()).date();
}

const std::optional<EarlierState>& Generations::newest() const
{
    const Instant now = m_clock.now();
    const bool isOutdated = (m_newest && isAhead(m_newest->kept, now)) || !isAhead(m_firstAhead, now);
    if (!isOutdated)
        return m_newest;
    m_newest.reset();
    m_firstAhead = Instant::max();
    for (EarlierState& state : statesIn(m_directories.backups())) {
        if (isAhead(state.kept, now))
            m_firstAhead = std::min(m_firstAhead, state.kept);
        else if (!m_newest || state.kept > m_newest->kept)
            m_newest = std::move(state);
    }
    return m_newest;
}

void Generations::prune(const QString& spared)
{
    QStringList expired = expiredStates(sized(list()), m_calendar, m_clock.now());
    expired.removeAll(spared);
    for (const QString& name : expired) {
        // It goes at once under a name that the next start would clear away, then piece by piece.
        const QString temporary = m_directories.backups() + u'/' + AtomicFile::temporaryName();
        if (AtomicFile::move(m_directories.backups() + u'/' + name, temporary))
            QDir(temporary).removeRecursively();
    }
}

void Generations::report(const IoResult<void>& kept)
{
    if (!kept && !m_hasFailed)
        m_console.print(u"Error keeping the present state: "_s + kept.error().reason);
    m_hasFailed = !kept;
}

} // namespace abissora
