// SPDX-License-Identifier: MIT
#pragma once

#include "Instant.h"
#include "MaintenanceType.h"

#include <QString>
#include <QUuid>
#include <optional>

namespace abissora {

/// One intervention on a piece of equipment.
struct Maintenance
{
    QUuid id;
    Instant date{};
    MaintenanceType type = MaintenanceType::annual;
    QString description;
    QString performedBy;
    double cost = 0; ///< in the user's currency
    QString notes;
    Instant nextServiceDate{};              ///< due according to this intervention
    std::optional<bool> isCompleted;        ///< absent in records older than the field
    std::optional<QString> receiptFileName; ///< a name inside the documents folder, never a path
    std::optional<QString> certificateFileName;

    friend bool operator==(const Maintenance&, const Maintenance&) = default;
};

} // namespace abissora
