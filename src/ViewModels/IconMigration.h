// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"
#include "SymbolLibrary.h"

#include <QList>

namespace abissora {

/// Brings the icons of stored types up to the current icon set; nothing but icons is touched. An identifier of an
/// earlier set is replaced by its successor, one step only; a type named like one of `defaults` whose icon is a
/// "dive." picture takes that picture; a name that is then neither a "dive." picture nor a known symbol becomes
/// "questionmark.circle.fill". True when anything changed.
bool migrateIcons(QList<EquipmentTypeModel>& types, const QList<EquipmentTypeModel>& defaults,
                  const SymbolLibrary& symbols);

} // namespace abissora
