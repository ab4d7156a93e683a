// SPDX-License-Identifier: MIT
#pragma once

#include "Equipment.h"
#include "EquipmentTypeModel.h"

namespace abissora {

/// A whole register as one text that travels: its types and its items with their records, the documents' names among
/// them but not the documents.
struct RegisterDocument
{
    static inline const QString formatName = QStringLiteral("abissora-register");
    static constexpr std::int64_t currentVersion = 1;

    QString format = formatName; ///< a text with any other one is something else
    std::int64_t version = currentVersion;
    QString program;    ///< the version of the program that wrote it
    Instant exported{}; ///< when
    QList<EquipmentTypeModel> equipmentTypes;
    QList<Equipment> savedEquipment;

    friend bool operator==(const RegisterDocument&, const RegisterDocument&) = default;
};

/// What every version says of such a text, whatever else it holds.
struct RegisterHead
{
    QString format;
    std::int64_t version = 0;
    std::optional<QString> program;

    friend bool operator==(const RegisterHead&, const RegisterHead&) = default;
};

} // namespace abissora
