// SPDX-License-Identifier: MIT
#include "DocumentArchive.h"

#include "AtomicFile.h"
#include "EarlierState.h"
#include "Literals.h"
#include "StateFiles.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <cerrno>

namespace abissora {

namespace {

constexpr std::chrono::days leastStay{30};
constexpr qsizetype uuidLength = 36;

/// "20261121T184205.123Z-"
const QString timeOfDeletion = u"yyyyMMddTHHmmss.zzz"_s;
constexpr qsizetype stampLength = 19;

QString stamp(Instant instant)
{
    return QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC).toString(timeOfDeletion);
}

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
}

} // namespace

QSet<QString> documentNames(const QList<Equipment>& equipment)
{
    QSet<QString> names;
    for (const Equipment& item : equipment) {
        for (const Maintenance& record : item.maintenanceHistory) {
            for (const auto& name : {record.receiptFileName, record.certificateFileName}) {
                if (name)
                    names.insert(*name);
            }
        }
    }
    return names;
}

bool isDocumentName(const QString& name)
{
    static const QRegularExpression form(u"^[0-9A-Fa-f]{8}(?:-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}\\.[^/\\\\\\x{0}]+$"_s);
    return form.match(name).hasMatch();
}

DocumentArchive::DocumentArchive(ApplicationDirectories directories, const Clock& clock, WritePermission& permission)
    : m_directories(std::move(directories))
    , m_clock(clock)
    , m_permission(permission)
{}

void DocumentArchive::archive(const QString& name) const
{
    const QString source = m_directories.maintenanceDocuments() + u'/' + name;
    const QString folder = m_directories.archivedDocuments();
    if (!m_permission.mayWrite() || !QFileInfo(source).isFile() || !AtomicFile::makeFolder(folder))
        return;
    // Taken for deleted now, whenever the file was made. Its own name tells it from all others of this moment.
    static_cast<void>(AtomicFile::move(source, folder + u'/' + stamp(m_clock.now()) + u"Z-"_s + name));
}

void DocumentArchive::settle(const QSet<QString>& named) const
{
    if (!m_permission.mayWrite())
        return;
    const QString folder = m_directories.maintenanceDocuments();
    const QHash<QString, Entry> inArchive = entries();
    for (auto entry = inArchive.cbegin(); entry != inArchive.cend(); ++entry) {
        // Never in the place of a file that is there.
        if (named.contains(entry.key()) && AtomicFile::makeFolder(folder))
            static_cast<void>(AtomicFile::move(entry->path, folder + u'/' + entry.key()));
    }
    const QSet<QString> names = present();
    for (const QString& name : names) {
        if (!named.contains(name))
            archive(name);
    }
}

OldDocuments DocumentArchive::oldDocuments() const
{
    OldDocuments old;
    if (!m_permission.mayWrite())
        return old;
    const QHash<QString, Entry> inArchive = entries();
    for (auto entry = inArchive.cbegin(); entry != inArchive.cend(); ++entry) {
        if (entry->archived + leastStay <= m_clock.now() && isDocumentName(entry.key()))
            old.paths.insert(entry.key().left(uuidLength).toLatin1(), entry->path);
    }
    if (!old.paths.isEmpty())
        old.registers = registers();
    return old;
}

IoResult<void> DocumentArchive::strikeOffNamed(OldDocuments& old, const WorkProgress& progress)
{
    using Paths = QMultiHash<QByteArray, QString>;
    QSet<std::pair<quint64, quint64>> read;
    for (const auto& [path, file] : std::as_const(old.registers)) {
        if (old.paths.isEmpty())
            break;
        // States share the file of a register that was the same.
        const bool isKnown = file && file->inode != 0;
        if (isKnown && read.contains({file->device, file->inode}))
            continue;
        if (progress.isCancelled())
            return tl::unexpected(IoError::fromErrno(ECANCELED));
        const auto json = AtomicFile::read(path);
        if (!json)
            return tl::unexpected(json.error()); // nobody knows what it names
        // Names are plain ASCII, so the bytes tell; a text that only happens to hold one keeps the document for longer.
        old.paths.removeIf([&json](Paths::iterator entry) { return json->contains(entry.key()); });
        if (isKnown)
            read.insert({file->device, file->inode});
    }
    return {};
}

void DocumentArchive::remove(const OldDocuments& unnamed) const
{
    if (unnamed.paths.isEmpty() || !m_permission.mayWrite() || registers() != unnamed.registers)
        return;
    for (const QString& path : unnamed.paths)
        static_cast<void>(AtomicFile::remove(path));
}

QList<OldDocuments::Register> DocumentArchive::registers() const
{
    QStringList paths{storedFiles(m_directories.preferences()).value(registerKey)};
    for (const EarlierState& state : statesIn(m_directories.backups()) + statesIn(m_directories.emergency()))
        paths.append(state.files.value(registerKey));
    paths.removeAll(QString());
    QList<OldDocuments::Register> found;
    for (const QString& path : std::as_const(paths))
        found.append({path, FileIdentity::of(path)});
    return found;
}

QSet<QString> DocumentArchive::archived() const
{
    const QStringList names = entries().keys();
    return {names.begin(), names.end()};
}

QSet<QString> DocumentArchive::present() const
{
    QSet<QString> names;
    for (const QString& name : filesIn(m_directories.maintenanceDocuments())) {
        if (isDocumentName(name))
            names.insert(name);
    }
    return names;
}

QHash<QString, DocumentArchive::Entry> DocumentArchive::entries() const
{
    QHash<QString, Entry> found;
    const QString folder = m_directories.archivedDocuments();
    for (const QString& file : filesIn(folder)) {
        QDateTime time = QDateTime::fromString(file.left(stampLength), timeOfDeletion);
        time.setTimeSpec(Qt::UTC);
        const QString name = file.mid(stampLength + 2);
        if (time.isValid() && file.mid(stampLength, 2) == "Z-"_L1 && !name.isEmpty())
            found.insert(name, {folder + u'/' + file, Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch()))});
    }
    return found;
}

} // namespace abissora
