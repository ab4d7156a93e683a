// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "EquipmentTypeViewModel.h"
#include "MaintenanceDocumentStore.h"
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

    /// As things are at the almanac's moment.
    [[nodiscard]] static DetailContent of(const Equipment& item, const EquipmentTypeViewModel& types,
                                          const Almanac& almanac);
};

/// What the history shows of one record.
struct MaintenanceRowContent
{
    QUuid id;
    QString typeName;
    TypeAppearance appearance;
    QString cost; ///< "€12.50"; empty when there was none
    QString description;
    QString dateAndPerformer; ///< "14 giu 2026 · Eseguito da: Blu Service"
    bool isCompleted = true;
    bool hasReceipt = false; ///< its file is there, too
    bool hasCertificate = false;
    QString whichRecord; ///< "Riparazione, 14 giu 2026, Cinturino rotto": the buttons of all rows have the same names

    [[nodiscard]] static MaintenanceRowContent of(const Maintenance& record, const DateFormat& dates,
                                                  const MaintenanceDocumentStore& documents);

    friend bool operator==(const MaintenanceRowContent&, const MaintenanceRowContent&) = default;
};

} // namespace abissora
