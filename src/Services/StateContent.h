// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "EarlierState.h"
#include "RecordJson.h"

namespace abissora {

/// What a stored list holds, read as far as it can be read.
template <typename Record>
struct StoredList
{
    bool isStored = false;
    QList<Record> records;
    qsizetype total = 0; ///< with those that cannot be read
    /// Why the list as a whole is refused; then `records` is what is left of it.
    std::optional<QString> error;
};

struct StateContent
{
    StoredList<Equipment> equipment;
    StoredList<EquipmentTypeModel> types;

    /// Of all items that can be read.
    [[nodiscard]] qsizetype maintenanceCount() const;
    /// Nothing comes of restoring such a state.
    [[nodiscard]] bool isEmpty() const { return !equipment.isStored && !types.isStored; }
    [[nodiscard]] bool isWhole() const { return !isEmpty() && !equipment.error && !types.error; }
};

/// Whether the owner of the key's data could read the file. True of every setting: one that means nothing is absent.
[[nodiscard]] bool canBeDecoded(const QString& key, const QString& path);

[[nodiscard]] StateContent readContent(const EarlierState& state);
/// Of the register itself, as it is stored at this moment.
[[nodiscard]] StateContent readPresentContent(const ApplicationDirectories& directories);

} // namespace abissora
