// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Equipment.h"
#include "WorkProgress.h"

#include <QByteArray>
#include <QLocale>

namespace abissora {

/// Tables for spreadsheets: UTF-8 with a byte order mark, cells separated as the locale separates them, days as
/// "2026-12-05", amounts with the locale's decimal sign. Importing them gives the same data, times of day apart. A
/// table that was cancelled meanwhile is not whole.
[[nodiscard]] QByteArray itemsCsv(const QList<Equipment>& equipment, const Calendar& calendar, const QLocale& locale,
                                  WorkProgress* progress = nullptr);
/// Every record of every item, with what tells the item. Documents are not named.
[[nodiscard]] QByteArray recordsCsv(const QList<Equipment>& equipment, const Calendar& calendar, const QLocale& locale,
                                    WorkProgress* progress = nullptr);

} // namespace abissora
