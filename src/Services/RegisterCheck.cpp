// SPDX-License-Identifier: MIT
#include "RegisterCheck.h"

#include "AtomicFile.h"
#include "DocumentArchive.h"
#include "StateContent.h"
#include "StateFiles.h"

#include <QDir>
#include <nlohmann/json.hpp>

namespace abissora {

namespace {

QString number(qsizetype count, const QString& one, const QString& many)
{
    return count == 1 ? u"1 "_s + one : u"%1 %2"_s.arg(QString::number(count), many);
}

/// Of one stored list every value that cannot be read.
template <typename Decode, typename Salvage>
QStringList damagedValues(const QString& file, Decode decode, Salvage salvage)
{
    const QString name = QFileInfo(file).fileName();
    const auto bytes = AtomicFile::read(file);
    if (!bytes)
        return {u"%1: non si legge: %2"_s.arg(name, bytes.error().reason)};
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

    CheckReport report;
    if (content.equipment.error)
        report.problems += damagedValues(files.value(registerKey), decodeEquipment, salvageEquipment);
    if (content.types.error)
        report.problems += damagedValues(files.value(typesKey), decodeTypes, salvageTypes);
    report.problems += damagedSettings(files);
    report.problems += missingDocuments(equipment, directories);
    // What a damaged register names is not known.
    if (!content.equipment.error)
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
