// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <algorithm>
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
/// per case in declaration order, which may say more of the case than RawValueEntry does.
template <typename Case>
struct RawValues;

template <typename Case>
concept HasRawValues = requires
{
    RawValues<Case>::entries;
};

template <HasRawValues Case>
[[nodiscard]] constexpr const auto& entryOf(Case value)
{
    return RawValues<Case>::entries.at(static_cast<std::size_t>(value));
}

template <HasRawValues Case>
[[nodiscard]] constexpr QStringView rawValueView(Case value)
{
    return entryOf(value).rawValue;
}

template <HasRawValues Case>
[[nodiscard]] QString rawValue(Case value)
{
    const QStringView text = rawValueView(value); // stands in the program: nothing is allocated for it
    return QString::fromRawData(text.data(), text.size());
}

/// Exact, case- and accent-sensitive; nothing for any other text.
template <HasRawValues Case>
[[nodiscard]] std::optional<Case> fromRawValue(QStringView text)
{
    constexpr auto& entries = RawValues<Case>::entries;
    const auto found = std::ranges::find(entries, text, &std::ranges::range_value_t<decltype(entries)>::rawValue);
    return found == entries.end() ? std::nullopt : std::optional(found->value);
}

/// Every case in declaration order.
template <HasRawValues Case>
[[nodiscard]] constexpr auto allCases()
{
    constexpr auto& entries = RawValues<Case>::entries;
    std::array<Case, entries.size()> cases{};
    std::ranges::transform(entries, cases.begin(), [](const auto& entry) { return entry.value; });
    return cases;
}

} // namespace abissora
