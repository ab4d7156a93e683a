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
    struct Entry
    {
        AvailableColors value;
        QStringView rawValue;
        QStringView caseName;
        NamedColor color;
    };

    static constexpr std::array entries{
        Entry{AvailableColors::blue, u"Blu", u"blue", NamedColor::blue},
        Entry{AvailableColors::red, u"Rosso", u"red", NamedColor::red},
        Entry{AvailableColors::green, u"Verde", u"green", NamedColor::green},
        Entry{AvailableColors::orange, u"Arancione", u"orange", NamedColor::orange},
        Entry{AvailableColors::purple, u"Viola", u"purple", NamedColor::purple},
        Entry{AvailableColors::gray, u"Grigio", u"gray", NamedColor::gray},
        Entry{AvailableColors::cyan, u"Ciano", u"cyan", NamedColor::cyan},
        Entry{AvailableColors::indigo, u"Indaco", u"indigo", NamedColor::indigo},
        Entry{AvailableColors::pink, u"Rosa", u"pink", NamedColor::pink},
        Entry{AvailableColors::yellow, u"Giallo", u"yellow", NamedColor::yellow},
        Entry{AvailableColors::teal, u"Verde Acqua", u"teal", NamedColor::teal},
        Entry{AvailableColors::mint, u"Menta", u"mint", NamedColor::mint},
        Entry{AvailableColors::brown, u"Marrone", u"brown", NamedColor::brown},
    };
};

[[nodiscard]] constexpr NamedColor colorValue(AvailableColors color)
{
    return entryOf(color).color;
}

/// "blue", "red", ...: what EquipmentTypeModel::color stores.
[[nodiscard]] inline QString caseName(AvailableColors color)
{
    return entryOf(color).caseName.toString();
}

/// The colour whose case name is exactly `name`.
[[nodiscard]] inline std::optional<AvailableColors> availableColorNamed(QStringView name)
{
    constexpr auto& entries = RawValues<AvailableColors>::entries;
    const auto found = std::ranges::find(entries, name, &RawValues<AvailableColors>::Entry::caseName);
    return found == entries.end() ? std::nullopt : std::optional(found->value);
}

} // namespace abissora
