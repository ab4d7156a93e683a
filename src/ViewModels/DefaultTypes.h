// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"
#include "IdGenerator.h"

#include <QList>

namespace abissora {

/// The sixteen types that a new register begins with, each with a fresh id.
[[nodiscard]] QList<EquipmentTypeModel> defaultTypes(IdGenerator& ids);

} // namespace abissora
