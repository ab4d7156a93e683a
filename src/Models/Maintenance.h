// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"
#include "RawValues.h"

#include <QString>
#include <QUuid>
#include <optional>

namespace abissora {

/// The kinds of maintenance. Their raw values are both the stored and the displayed text.
enum class MaintenanceType { annual, repair, test, cleaning, other };

template <>
struct RawValues<MaintenanceType>
{
    using Entry = RawValueEntry<MaintenanceType>;
    static constexpr std::array entries{
        Entry{MaintenanceType::annual, u"Manutenzione Annuale"},
        Entry{MaintenanceType::repair, u"Riparazione"},
        Entry{MaintenanceType::test, u"Test"},
        Entry{MaintenanceType::cleaning, u"Pulizia"},
        Entry{MaintenanceType::other, u"Altro"},
    };
};

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

// A list moves its records as bytes.
Q_DECLARE_TYPEINFO(abissora::Maintenance, Q_RELOCATABLE_TYPE);
