// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "FileIdentity.h"
#include "IoError.h"

#include <QList>

namespace abissora {

/// One file of a register's folder that belongs into a copy.
struct InventoryFile
{
    QString name; ///< within the folder, as in the copy
    QString path;
    FileIdentity identity;
    bool isDocument = false; ///< whose bytes are compressed already

    friend bool operator==(const InventoryFile&, const InventoryFile&) = default;
};

/// Preferences, documents, their archive and the earlier states, in this order. What is not finished, hidden or no
/// regular file stays out. The error is a sentence for the person: a name that no copy can hold.
[[nodiscard]] IoResult<QList<InventoryFile>> inventory(const ApplicationDirectories& directories);

/// The preferences alone.
[[nodiscard]] QList<InventoryFile> preferencesInventory(const ApplicationDirectories& directories);

} // namespace abissora
