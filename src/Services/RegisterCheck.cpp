// SPDX-License-Identifier: MIT
#include "RegisterCheck.h"

#include "AtomicFile.h"
#include "DocumentArchive.h"
#include "FolderAccess.h"
#include "PdfDocument.h"
#include "StateContent.h"
#include "StateFiles.h"
#include "StoredSettings.h"

#include <QDir>
#include <array>
#include <cerrno>

namespace abissora {

namespace {

QString number(qsizetype count, const QString& one, const QString& many)
{
    return count == 1 ? u"1 "_s + one : u"%1 %2"_s.arg(QString::number(count), many);
}

QString unreadable(const QString& what, const IoError& error)
{
    return u"%1: non si legge: %2"_s.arg(what, error.reason);
}

/// What of a register cannot be looked into, each path with its line.
QMap<QString, QString> unreadableFolders(const ApplicationDirectories& directories)
{
    const std::array folders{
        std::pair{directories.root(), directories.root()},
        std::pair{directories.preferences(), u"preferences"_s},
        std::pair{directories.maintenanceDocuments(), u"MaintenanceDocuments"_s},
        std::pair{directories.backups(), u"backups"_s},
        std::pair{directories.archivedDocuments(), u"backups/documents"_s},
        std::pair{directories.emergency(), directories.emergency()},
    };
    QMap<QString, QString> lines;
    const auto isBeneath = [&lines](const QString& path) {
        return std::ranges::any_of(lines.keys(),
                                   [&path](const QString& outer) { return path.startsWith(outer + u'/'); });
    };
    for (const auto& [path, name] : folders) {
        // In whose home it would be may be closed to this user: then it was not made by this one.
        const bool isElsewhere = path == directories.emergency() && !QFileInfo::exists(path);
        if (const auto looked = checkFolder(path); !looked && !isBeneath(path) && !isElsewhere)
            lines.insert(path, unreadable(u"cartella "_s + name, looked.error()));
    }
    return lines;
}

/// Where files belong.
QStringList foldersAmongFiles(const QString& folder)
{
    QStringList lines;
    for (const QString& name : QDir(folder).entryList({u"*.json"_s}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        lines.append(unreadable(name, IoError::fromErrno(EISDIR)));
    return lines;
}

/// Of one stored list every value that cannot be read.
template <typename Decode, typename Salvage>
QStringList damagedValues(const QString& file, Decode decode, Salvage salvage)
{
    const QString name = QFileInfo(file).fileName();
    const auto bytes = AtomicFile::read(file);
    if (!bytes)
        return {unreadable(name, bytes.error())};
    const auto decoded = decode(*bytes);
    if (decoded)
        return {};
    QStringList lines;
    for (const JsonError& error : salvage(*bytes).errors)
        lines.append(u"%1: valore danneggiato: %2"_s.arg(name, error.description()));
    if (lines.isEmpty())
        lines.append(u"%1: danneggiato: %2"_s.arg(name, decoded.error().description()));
    return lines;
}

QString damagedSetting(const QString& key)
{
    return u"%1.json: impostazione danneggiata"_s.arg(key);
}

/// Those that are not there, and those that are no documents.
QStringList wrongDocuments(const QList<Equipment>& equipment, const ApplicationDirectories& directories)
{
    QStringList lines;
    for (const Equipment& item : equipment) {
        for (const Maintenance& record : item.maintenanceHistory) {
            for (const auto& name : {record.receiptFileName, record.certificateFileName}) {
                if (!name)
                    continue;
                const QString path = directories.maintenanceDocuments() + u'/' + *name;
                const QString whose = u"%1 («%2», «%3»)"_s.arg(*name, item.name, record.description);
                if (!QFileInfo(path).isFile())
                    lines.append(u"documento mancante: "_s + whose);
                else if (const auto checked = checkPdf(path); !checked)
                    lines.append(u"documento danneggiato: %1: %2"_s.arg(whose, checked.error().reason));
            }
        }
    }
    return lines;
}

QStringList surplusDocuments(const QSet<QString>& named, const ApplicationDirectories& directories)
{
    QStringList lines;
    const QDir folder(directories.maintenanceDocuments());
    for (const QString& name :
         folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name)) {
        if (!named.contains(name))
            lines.append(u"documento in più, di nessuna manutenzione: %1"_s.arg(name));
    }
    return lines;
}

struct Damage
{
    QString key; ///< of the file; empty where it is the whole state's
    QString line;
};

template <typename Record>
QString readable(const StoredList<Record>& list, const QString& what)
{
    return u"leggibili %1 %2 su %3"_s.arg(QString::number(list.records.size()), what, QString::number(list.total));
}

QList<Damage> damageOf(const EarlierState& state)
{
    if (const auto looked = QFileInfo(state.path).isDir() ? checkFolder(state.path) : IoResult<void>(); !looked)
        return {{{}, unreadable(u"stato "_s + state.name, looked.error())}};
    const QString name = u"stato %1: "_s.arg(state.name);
    const StateContent content = readContent(state);
    if (content.isEmpty())
        return {{{}, name + u"senza articoli né tipologie"_s}};
    QList<Damage> damage;
    if (content.equipment.error)
        damage.append({registerKey, name + readable(content.equipment, u"articoli"_s)});
    if (content.types.error)
        damage.append({typesKey, name + readable(content.types, u"tipologie"_s)});
    for (const QString& key : damagedSettings(state.files))
        damage.append({key, name + damagedSetting(key)});
    return damage;
}

/// Whether the program knows of the damage: it has kept those bytes because of it, in this state or in another.
bool isKnown(const Damage& damage, const EarlierState& state, const QList<EarlierState>& states)
{
    return std::ranges::any_of(states, [&](const EarlierState& kept) {
        return kept.occasion == Occasion::unreadable && kept.files.contains(damage.key) &&
               haveSameBytes(kept.files.value(damage.key), state.files.value(damage.key));
    });
}

} // namespace

CheckReport checkRegister(const ApplicationDirectories& directories)
{
    const QHash<QString, QString> files = storedFiles(directories.preferences());
    const StateContent content = readPresentContent(directories);
    const QList<Equipment>& equipment = content.equipment.records;
    const QSet<QString> named = documentNames(equipment);
    const QList<EarlierState> states = statesIn(directories.backups()) + statesIn(directories.emergency());

    const QMap<QString, QString> closed = unreadableFolders(directories);
    const bool isClosed = closed.contains(directories.root()) || closed.contains(directories.preferences());

    CheckReport report;
    report.hasRegister = content.equipment.isStored || isClosed ||
                         QFileInfo::exists(directories.preferences() + u'/' + registerKey + ".json"_L1);
    report.problems += closed.values();
    report.problems += foldersAmongFiles(directories.preferences());
    if (content.equipment.error)
        report.problems += damagedValues(files.value(registerKey), decodeEquipment, salvageEquipment);
    if (content.types.error)
        report.problems += damagedValues(files.value(typesKey), decodeTypes, salvageTypes);
    for (const QString& key : damagedSettings(files))
        report.problems.append(damagedSetting(key));
    if (!closed.contains(directories.maintenanceDocuments()))
        report.problems += wrongDocuments(equipment, directories);
    // What a register names that is damaged or not to be seen is not known.
    if (content.equipment.isStored && !content.equipment.error)
        report.problems += surplusDocuments(named, directories);
    for (const EarlierState& state : states) {
        for (const Damage& damage : damageOf(state))
            (isKnown(damage, state, states) ? report.notes : report.problems).append(damage.line);
    }
    report.summary = QStringList{number(equipment.size(), u"articolo"_s, u"articoli"_s),
                                 number(content.maintenanceCount(), u"manutenzione"_s, u"manutenzioni"_s),
                                 number(content.types.records.size(), u"tipologia"_s, u"tipologie"_s),
                                 number(named.size(), u"documento"_s, u"documenti"_s),
                                 number(states.size(), u"stato precedente"_s, u"stati precedenti"_s)}
                         .join(u", "_s);
    return report;
}

} // namespace abissora
