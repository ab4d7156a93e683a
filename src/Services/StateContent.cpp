// SPDX-License-Identifier: MIT
#include "StateContent.h"

#include "AtomicFile.h"
#include "StateFiles.h"

namespace abissora {

namespace {

template <typename Record, typename Decode, typename Salvage>
StoredList<Record> readList(const QHash<QString, QString>& files, const QString& key, Decode decode, Salvage salvage)
{
    StoredList<Record> list;
    list.isStored = files.contains(key);
    if (!list.isStored)
        return list;
    const auto bytes = AtomicFile::read(files.value(key));
    if (!bytes) {
        list.error = bytes.error().reason;
        return list;
    }
    auto decoded = decode(*bytes);
    if (decoded) {
        list.records = std::move(*decoded);
        list.total = list.records.size();
        return list;
    }
    list.error = decoded.error().description();
    auto salvaged = salvage(*bytes);
    list.records = std::move(salvaged.records);
    list.total = salvaged.total;
    return list;
}

StateContent readFiles(const QHash<QString, QString>& files)
{
    return {readList<Equipment>(files, registerKey, decodeEquipment, salvageEquipment),
            readList<EquipmentTypeModel>(files, typesKey, decodeTypes, salvageTypes)};
}

} // namespace

qsizetype StateContent::maintenanceCount() const
{
    qsizetype count = 0;
    for (const Equipment& item : equipment.records)
        count += item.maintenanceHistory.size();
    return count;
}

bool canBeDecoded(const QString& key, const QString& path)
{
    if (key != registerKey && key != typesKey)
        return true;
    const auto bytes = AtomicFile::read(path);
    return bytes && (key == registerKey ? decodeEquipment(*bytes).has_value() : decodeTypes(*bytes).has_value());
}

StateContent readContent(const EarlierState& state)
{
    return readFiles(state.files);
}

StateContent readPresentContent(const ApplicationDirectories& directories)
{
    return readFiles(storedFiles(directories.preferences()));
}

} // namespace abissora
