// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QString>

namespace abissora::test {

/// Where a register that cannot be read is copied to by the clock of the tests, below the data folder.
inline const QString backups = u"backups"_s;
inline const QString copy = u"backups/20260615T100000.000Z-unreadable/savedEquipment.json"_s;

} // namespace abissora::test
