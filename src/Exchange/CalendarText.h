// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "Equipment.h"

#include <QByteArray>

namespace abissora {

/// The services that are due, for the person's calendar program (iCalendar, RFC 5545): for each active item one event
/// of a whole day on its next service date, without an alarm. An event keeps its identity, made from the item's id, so
/// that importing the calendar again moves it. `version` is the program's.
[[nodiscard]] QByteArray calendarText(const QList<Equipment>& equipment, const Almanac& almanac,
                                      const QString& version);

} // namespace abissora
