// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Equipment.h"
#include "WorkProgress.h"

#include <QByteArray>

namespace abissora {

/// The services that are due, for the person's calendar program (iCalendar, RFC 5545): for each active item one event
/// of a whole day on its next service date, without an alarm. An event keeps its identity, made from the item's id, so
/// that importing the calendar again moves it. `version` is the program's. Not whole when it was
/// cancelled meanwhile.
[[nodiscard]] QByteArray calendarText(const QList<Equipment>& equipment, const Calendar& calendar, Instant now,
                                      const QString& version, WorkProgress* progress = nullptr);

} // namespace abissora
