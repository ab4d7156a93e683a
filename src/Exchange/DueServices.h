// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "Equipment.h"

#include <QByteArray>

namespace abissora {

/// An active item whose next service is near or past.
struct DueService
{
    Equipment item;
    std::int64_t days = 0; ///< left; negative when past

    friend bool operator==(const DueService&, const DueService&) = default;
};

/// Those with at most so many days left, soonest first.
[[nodiscard]] QList<DueService> dueServices(const QList<Equipment>& equipment, std::int64_t within,
                                            const Almanac& almanac);

/// "5 dicembre 2026	14 giorni	Computer Suunto EON Core (Suunto EON Core)"; "-19 giorni" when past. On one
/// line, whatever the texts hold.
[[nodiscard]] QString dueLine(const DueService& due, const Almanac& almanac);
/// A JSON array of objects with the members id, name, brand, model, serialNumber, type, nextServiceDate ("2026-12-05")
/// and days.
[[nodiscard]] QByteArray dueJson(const QList<DueService>& due, const Almanac& almanac);

} // namespace abissora
