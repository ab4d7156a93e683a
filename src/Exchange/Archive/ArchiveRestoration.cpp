// SPDX-License-Identifier: MIT
#include "ArchiveRestoration.h"

#include "AtomicFile.h"
#include "DocumentArchive.h"
#include "StateFiles.h"

#include <QDir>
#include <QFileInfo>

namespace abissora {

namespace {

IoError sentence(const IoError& error)
{
    return {u"Non è stato possibile ripristinare: "_s + error.reason};
}

IoResult<void> moveNew(const QString& source, const QString& target)
{
    if (!QFileInfo::exists(source) || QFileInfo::exists(target))
        return {};
    return AtomicFile::makeFolder(QFileInfo(target).path()).and_then([&] { return AtomicFile::move(source, target); });
}

} // namespace

ArchiveRestoration::ArchiveRestoration(ApplicationDirectories directories, Generations& generations,
                                       WritePermission& permission, Instant now)
    : m_directories(std::move(directories))
    , m_generations(generations)
    , m_permission(permission)
    , m_now(now)
{}

IoResult<RestorableFiles> ArchiveRestoration::read(const UnpackedArchive& unpacked)
{
    const QString folder = unpacked.path(u"preferences"_s);
    return Restoration::read({{}, folder, unpacked.manifest().created, Occasion::change, storedFiles(folder)})
        .map_error(sentence);
}

IoResult<void> ArchiveRestoration::restore(const UnpackedArchive& unpacked) const
{
    return read(unpacked).and_then([&](const RestorableFiles& files) { return restore(unpacked, files); });
}

IoResult<void> ArchiveRestoration::restore(const UnpackedArchive& unpacked, const RestorableFiles& files) const
{
    const auto restored = m_permission.mayWrite()
                              .and_then([&] { return bringDocuments(unpacked); })
                              .and_then([&] { return bringStates(unpacked); })
                              .and_then([&] { return bringRegister(unpacked); })
                              .and_then([&](const EarlierState& state) {
                                  auto done = Restoration(m_directories, m_generations).restore(state, files);
                                  // What stopped in the middle needs it still.
                                  if (!QFileInfo::exists(m_directories.backups() + u"/restoring"_s))
                                      drop(state);
                                  return done;
                              });
    if (!restored)
        return tl::unexpected(sentence(restored.error()));
    makeRoomForDocuments(unpacked);
    return {};
}

IoResult<void> ArchiveRestoration::bringDocuments(const UnpackedArchive& unpacked) const
{
    IoResult<void> brought;
    for (const QString& name : unpacked.newDocuments()) {
        const QString source = unpacked.path(archived::documents + name);
        const QString place = m_directories.maintenanceDocuments() + u'/' + name;
        // What nobody moves goes to its place at once. A document that comes back shall be the copy's, not one of the
        // same name that is about to leave its place.
        const bool isLoose = !isDocumentName(name) && !QFileInfo::exists(place);
        const QString later = archivedName(name, m_now + std::chrono::milliseconds(1));
        if (brought)
            brought = moveNew(source, isLoose ? place : later);
    }
    for (const ArchivedFile& file : unpacked.manifest().files) {
        if (brought && file.name.startsWith(archived::oldDocuments))
            brought = moveNew(unpacked.path(file.name), m_directories.root() + u'/' + file.name);
    }
    return brought;
}

IoResult<void> ArchiveRestoration::bringStates(const UnpackedArchive& unpacked) const
{
    IoResult<void> brought;
    for (const EarlierState& state : statesIn(unpacked.path(archived::backups))) {
        const QString target = m_directories.backups() + u'/' + state.name;
        if (!brought || QFileInfo::exists(target))
            continue;
        if (QFileInfo(state.path).isDir())
            brought = AtomicFile::syncFolder(state.path);
        brought = brought.and_then([&] { return moveNew(state.path, target); });
    }
    return brought;
}

IoResult<EarlierState> ArchiveRestoration::bringRegister(const UnpackedArchive& unpacked) const
{
    const QString source = unpacked.path(u"preferences"_s);
    Instant when = unpacked.manifest().created;
    QString target;
    do {
        target = m_directories.backups() + u'/' + stateName(when, Occasion::change);
        when += std::chrono::milliseconds(1);
    } while (QFileInfo::exists(target));
    return AtomicFile::syncFolder(source)
        .and_then([&] { return AtomicFile::move(source, target); })
        .and_then([&]() -> IoResult<EarlierState> {
            if (auto state = readState(target))
                return *std::move(state);
            return tl::unexpected(IoError{u"il momento della copia non è valido"_s});
        });
}

void ArchiveRestoration::makeRoomForDocuments(const UnpackedArchive& unpacked) const
{
    for (const QString& name : unpacked.newDocuments()) {
        const QString place = m_directories.maintenanceDocuments() + u'/' + name;
        if (isDocumentName(name) && QFileInfo::exists(archivedName(name, m_now + std::chrono::milliseconds(1))))
            static_cast<void>(moveNew(place, archivedName(name, m_now)));
    }
}

void ArchiveRestoration::drop(const EarlierState& state) const
{
    const QString temporary = m_directories.backups() + u'/' + AtomicFile::temporaryName();
    if (AtomicFile::move(state.path, temporary))
        QDir(temporary).removeRecursively();
}

QString ArchiveRestoration::archivedName(const QString& document, Instant when) const
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(when.time_since_epoch().count(), Qt::UTC);
    return m_directories.archivedDocuments() + u'/' + time.toString(u"yyyyMMddTHHmmss.zzz"_s) + u"Z-"_s + document;
}

} // namespace abissora
