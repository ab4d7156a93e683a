// SPDX-License-Identifier: MIT
#include "DocumentArchive.h"

#include "AtomicFile.h"
#include "EarlierState.h"
#include "Literals.h"
#include "StateFiles.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>

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

/// Whether any state still names the document. Names are plain ASCII, so the bytes tell; a text that only happens to
/// hold the name keeps the document longer than needed.
bool isNamed(const QString& name, const QList<QByteArray>& registers)
{
    const QByteArray uuid = name.left(uuidLength).toLatin1();
    return std::ranges::any_of(registers, [&uuid](const QByteArray& json) { return json.contains(uuid); });
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

void DocumentArchive::purge() const
{
    const QHash<QString, Entry> inArchive = entries();
    const auto isOld = [this](const Entry& entry) { return entry.archived + leastStay <= m_clock.now(); };
    if (!m_permission.mayWrite() || std::ranges::none_of(inArchive, isOld))
        return;
    QList<QByteArray> registers;
    QStringList files{storedFiles(m_directories.preferences()).value(registerKey)};
    for (const EarlierState& state : statesIn(m_directories.backups()) + statesIn(m_directories.emergency()))
        files.append(state.files.value(registerKey));
    files.removeAll(QString());
    for (const QString& file : std::as_const(files)) {
        const auto bytes = AtomicFile::read(file);
        if (!bytes)
            return; // nobody knows what it names
        registers.append(*bytes);
    }
    for (auto entry = inArchive.cbegin(); entry != inArchive.cend(); ++entry) {
        if (isOld(*entry) && isDocumentName(entry.key()) && !isNamed(entry.key(), registers))
            static_cast<void>(AtomicFile::remove(entry->path));
    }
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
