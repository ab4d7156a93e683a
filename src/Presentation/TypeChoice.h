// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"

#include <QList>

namespace abissora {

/// The type that a new item starts with: "Erogatore" when it is offered, else the first one; empty when there is none.
[[nodiscard]] QString defaultTypeName(const QList<EquipmentTypeModel>& offered);

/// The same text always gives the same id, made from the sum and the number of its UTF-8 bytes. Other texts may share
/// it, and its version and variant bits are not those of a random id. The layout must stay as it is.
[[nodiscard]] QUuid stableUUID(const QString& from);

[[nodiscard]] bool offers(const QList<EquipmentTypeModel>& offered, const QString& typeName);

/// What a picker shows: the offered types, and the selected one as an entry of unknown appearance at the end when it is
/// not among them.
[[nodiscard]] QList<EquipmentTypeModel> availableTypes(const QList<EquipmentTypeModel>& offered,
                                                       const QString& selectedTypeName);

} // namespace abissora
