// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "DateFormat.h"
#include "EquipmentTypeViewModel.h"
#include "TypeAppearance.h"

namespace abissora {

/// What the detail screen says about an item, its history apart.
struct DetailContent
{
    struct Line
    {
        QString label;
        QString value;

        friend bool operator==(const Line&, const Line&) = default;
    };

    QString name;
    QString typeName;
    TypeAppearance appearance;
    bool isActive = true;
    bool isDue = false;
    QList<Line> technicalDetails;
    QString notes; ///< "Nessuna nota inserita" when there are none

    /// As things are at the moment `now`.
    [[nodiscard]] static DetailContent of(const Equipment& item, const EquipmentTypeViewModel& types,
                                          const DateFormat& dates, const Calendar& calendar, Instant now);
};

} // namespace abissora
