// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace abissora {

/// Why stored files are about to be replaced, and so why their state may be kept. In rising weight: of several reasons
/// the last one counts.
enum class Occasion : quint8 {
    change, ///< kept only when it is the first of a local day
    firstOfDay,
    deletedDocument,
    deletedRecord,
    deletedItem,
    deletedType,
    typesReset,
    iconsMigrated,
    import,
    restoration,
    // From here on nothing may be replaced before it is kept: this process did not write it or does not understand it.
    unknownMembers,
    foreignBytes,
    unreadable,
    emergency, ///< what could not be stored when the program ended
};

} // namespace abissora
