// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"

#include <QList>
#include <optional>

// What the management of the types lists, says and asks.
namespace abissora {

/// Those whose name contains the text.
[[nodiscard]] QList<EquipmentTypeModel> typesNamed(const QString& searchText, QList<EquipmentTypeModel> types);

[[nodiscard]] qsizetype activeTypes(const QList<EquipmentTypeModel>& types);
/// "16 tipologie attive"
[[nodiscard]] QString activeTypesText(qsizetype count);

/// "365 giorni"
[[nodiscard]] QString daysText(std::int64_t days);
/// "Intervallo: 365 giorni"
[[nodiscard]] QString intervalText(std::int64_t days);

/// What is asked before the type is deleted.
[[nodiscard]] QString deletionQuestion(const std::optional<EquipmentTypeModel>& typeToDelete);

} // namespace abissora
