// SPDX-License-Identifier: MIT
#pragma once

#include "EarlierState.h"
#include "Literals.h"
#include "Retention.h"

namespace abissora {

/// The key under which the register itself is stored, and the one of the types.
inline const QString registerKey = u"savedEquipment"_s;
inline const QString typesKey = u"equipmentTypes"_s;
/// Which icons the types were given; of no meaning without them.
inline const QString iconVersionKey = u"iconSetVersion"_s;

/// By key, the paths of the "<key>.json" in a folder. What is no regular file of a plain name counts as none, except
/// that a file of a key that is stored but cannot be read counts.
[[nodiscard]] QHash<QString, QString> storedFiles(const QString& folder);

/// The state in a folder of that name, or in a single file kept by an earlier version. Nothing for anything else.
[[nodiscard]] std::optional<EarlierState> readState(const QString& path);
/// All of a folder, in no order.
[[nodiscard]] QList<EarlierState> statesIn(const QString& folder);

/// With what each occupies; of files with several names the newest state bears the size. `states` newest first.
[[nodiscard]] QList<SizedState> sized(const QList<EarlierState>& states);

/// Also for two names of one file, readable or not.
[[nodiscard]] bool haveSameBytes(const QString& path, const QString& other);

} // namespace abissora
