// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "ListContent.h"
#include "Literals.h"
#include "PrintedPaper.h"

namespace abissora {

namespace PrintedList {

/// Items in their order, with what hides others named under the title.
[[nodiscard]] PrintedPaper listOf(const EquipmentExcerpt& items, const ListContent::Narrowing& narrowing,
                                  const EquipmentTypeViewModel& types, const Almanac& almanac);
/// The active items that are due, as the overview lists them.
[[nodiscard]] PrintedPaper dueOf(const RegisterSummary& summary, const EquipmentTypeViewModel& types,
                                 const Almanac& almanac);

} // namespace PrintedList

/// Where there is nothing to print.
inline const QString dash = u"—"_s;
[[nodiscard]] inline QString orDash(const QString& text)
{
    return text.isEmpty() ? dash : text;
}

/// "Stampato il 21 novembre 2026 con Abissora"
[[nodiscard]] QString printedOn(const Almanac& almanac);

} // namespace abissora
