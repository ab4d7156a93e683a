// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"
#include "RawValues.h"

namespace abissora {

/// The colours that the type form offers. The raw value is the Italian label; records store the English caseName.
enum class AvailableColors { blue, red, green, orange, purple, gray, cyan, indigo, pink, yellow, teal, mint, brown };

template <>
struct RawValues<AvailableColors>
{
    using Entry = RawValueEntry<AvailableColors>;
    static constexpr std::array entries{
        Entry{AvailableColors::blue, u"Blu"},         Entry{AvailableColors::red, u"Rosso"},
        Entry{AvailableColors::green, u"Verde"},      Entry{AvailableColors::orange, u"Arancione"},
        Entry{AvailableColors::purple, u"Viola"},     Entry{AvailableColors::gray, u"Grigio"},
        Entry{AvailableColors::cyan, u"Ciano"},       Entry{AvailableColors::indigo, u"Indaco"},
        Entry{AvailableColors::pink, u"Rosa"},        Entry{AvailableColors::yellow, u"Giallo"},
        Entry{AvailableColors::teal, u"Verde Acqua"}, Entry{AvailableColors::mint, u"Menta"},
        Entry{AvailableColors::brown, u"Marrone"},
    };
};

[[nodiscard]] NamedColor colorValue(AvailableColors color);
/// "blue", "red", ...: what EquipmentTypeModel::color stores.
[[nodiscard]] QString caseName(AvailableColors color);
/// The colour whose case name is exactly `name`.
[[nodiscard]] std::optional<AvailableColors> availableColorNamed(QStringView name);

} // namespace abissora
