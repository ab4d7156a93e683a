// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <array>
#include <optional>

namespace abissora {

template <typename Case>
struct RawValueEntry
{
    Case value;
    QStringView rawValue;
};

/// Specialised for every enumeration that is stored and shown by text: `static constexpr std::array entries`, one entry
/// per case in declaration order.
template <typename Case>
struct RawValues;

template <typename Case>
concept HasRawValues = requires
{
    RawValues<Case>::entries;
};

template <HasRawValues Case>
[[nodiscard]] constexpr QStringView rawValueView(Case value)
{
    return RawValues<Case>::entries.at(static_cast<std::size_t>(value)).rawValue;
}

template <HasRawValues Case>
[[nodiscard]] QString rawValue(Case value)
{
    return rawValueView(value).toString();
}

/// Exact, case- and accent-sensitive; nothing for any other text.
template <HasRawValues Case>
[[nodiscard]] std::optional<Case> fromRawValue(QStringView text)
{
    for (const auto& entry : RawValues<Case>::entries) {
        if (entry.rawValue == text)
            return entry.value;
    }
    return std::nullopt;
}

/// Every case in declaration order.
template <HasRawValues Case>
[[nodiscard]] constexpr auto allCases()
{
    constexpr auto& entries = RawValues<Case>::entries;
    std::array<Case, entries.size()> cases{};
    for (std::size_t i = 0; i < entries.size(); ++i)
        cases[i] = entries[i].value;
    return cases;
}

} // namespace abissora
