// SPDX-License-Identifier: MIT
#include "RegisterCheck.h"

#include "AtomicFile.h"
#include "DocumentArchive.h"
#include "FolderAccess.h"
#include "StateContent.h"
#include "StateFiles.h"

#include <QDir>
#include <array>
#include <cerrno>
#include <nlohmann/json.hpp>

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

QStringList damagedSettings(const QHash<QString, QString>& files)
{
    QStringList lines;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (file.key() == registerKey || file.key() == typesKey)
            continue;
        const auto bytes = AtomicFile::read(*file);
        if (!bytes || !nlohmann::json::accept(bytes->begin(), bytes->end()))
            lines.append(u"%1.json: impostazione danneggiata"_s.arg(file.key()));
    }
    lines.sort();
    return lines;
}

QStringList missingDocuments(const QList<Equipment>& equipment, const ApplicationDirectories& directories)
{
    QStringList lines;
    for (const Equipment& item : equipment) {
        for (const Maintenance& record : item.maintenanceHistory) {
            for (const auto& name : {record.receiptFileName, record.certificateFileName}) {
                if (name && !QFileInfo(directories.maintenanceDocuments() + u'/' + *name).isFile())
                    lines.append(u"documento mancante: %1 («%2», «%3»)"_s.arg(*name, item.name, record.description));
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

QString problemOf(const EarlierState& state)
{
    const StateContent content = readContent(state);
    if (content.isWhole())
        return {};
    if (content.isEmpty())
        return u"stato %1: senza articoli né tipologie"_s.arg(state.name);
    const bool ofTypes = !content.equipment.error.has_value();
    return u"stato %1: leggibili %2 %3 su %4"_s.arg(
        state.name, QString::number(ofTypes ? content.types.records.size() : content.equipment.records.size()),
        ofTypes ? u"tipologie"_s : u"articoli"_s,
        QString::number(ofTypes ? content.types.total : content.equipment.total));
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
    report.problems += damagedSettings(files);
    if (!closed.contains(directories.maintenanceDocuments()))
        report.problems += missingDocuments(equipment, directories);
    // What a register names that is damaged or not to be seen is not known.
    if (content.equipment.isStored && !content.equipment.error)
        report.problems += surplusDocuments(named, directories);
    for (const EarlierState& state : states) {
        if (const QString problem = problemOf(state); !problem.isEmpty())
            report.problems.append(problem);
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
