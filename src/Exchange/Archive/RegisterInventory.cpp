// SPDX-License-Identifier: MIT
#include "RegisterInventory.h"

#include "ArchiveManifest.h"
#include "Literals.h"
#include "StateFiles.h"

#include <QDir>
#include <QSet>

namespace abissora {

namespace {

void add(QList<InventoryFile>& files, const QString& name, const QString& path, bool isDocument)
{
    const auto identity = FileIdentity::of(path);
    if (identity && QFileInfo(path).isFile())
        files.append({name, path, *identity, isDocument});
}

void addFolder(QList<InventoryFile>& files, const QString& prefix, const QString& folder)
{
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name))
        add(files, prefix + name, folder + u'/' + name, true);
}

void addKeys(QList<InventoryFile>& files, const QString& prefix, const QHash<QString, QString>& stored)
{
    QStringList keys = stored.keys();
    keys.sort();
    for (const QString& key : std::as_const(keys))
        add(files, prefix + key + ".json"_L1, stored.value(key), false);
}

} // namespace

IoResult<QList<InventoryFile>> inventory(const ApplicationDirectories& directories)
{
    QList<InventoryFile> files = preferencesInventory(directories);
    addFolder(files, archived::documents, directories.maintenanceDocuments());
    // Later than the folder that documents leave for it.
    addFolder(files, archived::oldDocuments, directories.archivedDocuments());
    QList<EarlierState> states = statesIn(directories.backups());
    std::ranges::sort(states, {}, &EarlierState::name);
    for (const EarlierState& state : std::as_const(states)) {
        if (QFileInfo(state.path).isDir())
            addKeys(files, archived::backups + state.name + u'/', state.files);
        else
            add(files, archived::backups + state.name, state.path, false);
    }

    QSet<QString> names;
    for (const InventoryFile& file : std::as_const(files)) {
        if (!isArchivedName(file.name))
            return tl::unexpected(IoError{
                u"«%1» non può stare in una copia: il suo nome non va bene per ogni sistema."_s.arg(file.path)});
        if (names.contains(file.name.toCaseFolded()))
            return tl::unexpected(
                IoError{u"«%1» si distingue da un altro file solo per le maiuscole: uno dei due va rinominato."_s.arg(
                    file.path)});
        names.insert(file.name.toCaseFolded());
    }
    return files;
}

QList<InventoryFile> preferencesInventory(const ApplicationDirectories& directories)
{
    QList<InventoryFile> files;
    addKeys(files, archived::preferences, storedFiles(directories.preferences()));
    return files;
}

} // namespace abissora
