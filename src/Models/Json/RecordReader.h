// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"
#include "RecordFields.h"
#include "RecordJson.h"
#include "ScalarText.h"

#include <QList>
#include <QStringDecoder>
#include <cmath>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace abissora::json {

struct Member;

/// QString's own reader takes away a U+FEFF at the beginning, which is a text's own here.
inline QString textFrom(const std::string& utf8)
{
    if (!utf8.starts_with("\xEF\xBB\xBF"))
        return QString::fromStdString(utf8);
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(utf8.data(), qsizetype(utf8.size())));
}

/// Gives equal texts one memory, most of them at least: the words of a register come back in record after record. Holds
/// a bounded number, whatever is read.
class SharedTexts
{
public:
    [[nodiscard]] QString of(const std::string& utf8)
    {
        Entry& entry = m_entries[std::hash<std::string>()(utf8) % m_entries.size()];
        if (entry.utf8 != utf8)
            entry = {utf8, textFrom(utf8)};
        return entry.text;
    }

private:
    struct Entry
    {
        std::string utf8{};
        QString text = u""_s;
    };

    std::vector<Entry> m_entries = std::vector<Entry>(256);
};

/// How a value of one C++ type takes what a parser finds: a table of plain functions on an untyped target, so that one
/// parser serves every record. A null function means that the type does not take that kind of JSON value; a function
/// answers false for a value that it refuses.
struct Slot
{
    const char* expected; ///< "a string", for the message
    void (*null)(void*) = nullptr;
    bool (*boolean)(void*, bool) = nullptr;
    bool (*integer)(void*, std::int64_t) = nullptr;
    bool (*real)(void*, double) = nullptr;
    bool (*string)(void*, const std::string&, SharedTexts&) = nullptr;
    std::span<const Member> members{}; ///< of a record
    const Slot* element = nullptr;     ///< of a list
    void (*clear)(void*) = nullptr;    ///< of a list
    void* (*append)(void*) = nullptr;  ///< of a list
    void (*dropLast)(void*) = nullptr; ///< of a list
};

struct Member
{
    std::string_view name;
    bool required;
    void* (*locate)(void* record);
    const Slot* slot;
};

template <typename Value>
Value& as(void* target)
{
    return *static_cast<Value*>(target);
}

/// Nothing stands for a value that is refused.
template <typename Value>
bool take(void* target, const std::optional<Value>& value)
{
    if (value)
        as<Value>(target) = *value;
    return value.has_value();
}

/// The bounds are out: they may stand for a number just beyond 64 bits.
inline std::optional<std::int64_t> wholeNumber(double value)
{
    const bool isWhole = std::trunc(value) == value && std::abs(value) < 0x1p63;
    return isWhole ? std::optional(static_cast<std::int64_t>(value)) : std::nullopt;
}

template <typename Value>
struct SlotOf;

template <>
struct SlotOf<QString>
{
    static constexpr Slot slot{.expected = "a string",
                               .string = [](void* target, const std::string& text, SharedTexts& texts) {
                                   return take(target, std::optional(texts.of(text)));
                               }};
};

template <>
struct SlotOf<bool>
{
    static constexpr Slot slot{.expected = "true or false",
                               .boolean = [](void* target, bool value) { return take(target, std::optional(value)); }};
};

template <>
struct SlotOf<double>
{
    static constexpr Slot slot{
        .expected = "a number",
        .integer = [](void* target, std::int64_t value) { return take(target, std::optional(double(value))); },
        .real = [](void* target, double value) { return take(target, std::optional(value)); }};
};

template <>
struct SlotOf<std::int64_t>
{
    static constexpr Slot slot{
        .expected = "a whole number of 64 bits",
        .integer = [](void* target, std::int64_t value) { return take(target, std::optional(value)); },
        .real = [](void* target, double value) { return take(target, wholeNumber(value)); }};
};

template <>
struct SlotOf<Instant>
{
    static constexpr Slot slot{.expected = "a date such as \"2025-03-14T09:26:53Z\"",
                               .string = [](void* target, const std::string& text, SharedTexts& /*texts*/) {
                                   return take(target, dateFromText(text));
                               }};
};

template <>
struct SlotOf<QUuid>
{
    static constexpr Slot slot{.expected = "a UUID",
                               .string = [](void* target, const std::string& text, SharedTexts& /*texts*/) {
                                   return take(target, uuidFromText(text));
                               }};
};

template <HasRawValues Case>
struct SlotOf<Case>
{
    static constexpr Slot slot{.expected = "one of the known names",
                               .string = [](void* target, const std::string& text, SharedTexts& texts) {
                                   return take(target, fromRawValue<Case>(texts.of(text)));
                               }};
};

/// Scalars only: no record holds an optional list or record.
template <typename Value>
struct SlotOf<std::optional<Value>>
{
    static constexpr const Slot& inner = SlotOf<Value>::slot;

    template <auto takeInner, typename... Json>
    static bool forward(void* target, Json... value)
    {
        auto& optional = as<std::optional<Value>>(target);
        return takeInner(&optional.emplace(), value...);
    }

    static constexpr Slot make()
    {
        Slot made{.expected = inner.expected, .null = [](void* target) { as<std::optional<Value>>(target).reset(); }};
        if constexpr (inner.boolean != nullptr)
            made.boolean = &forward<inner.boolean, bool>;
        if constexpr (inner.string != nullptr)
            made.string = &forward<inner.string, const std::string&, SharedTexts&>;
        return made;
    }

    static constexpr Slot slot = make();
};

template <Described Record, std::size_t index>
void* locateMember(void* record)
{
    return &(as<Record>(record).*(std::get<index>(Fields<Record>::all).member));
}

template <typename Value>
inline constexpr bool isOptional = false;
template <typename Value>
inline constexpr bool isOptional<std::optional<Value>> = true;

template <Described Record, typename Value>
constexpr Member memberOf(const Field<Record, Value>& field, void* (*locate)(void*))
{
    return {field.name, !isOptional<Value>, locate, &SlotOf<Value>::slot};
}

template <Described Record>
struct SlotOf<Record>
{
    template <std::size_t... index>
    static constexpr auto makeMembers(std::index_sequence<index...>)
    {
        return std::array{memberOf(std::get<index>(Fields<Record>::all), &locateMember<Record, index>)...};
    }

    static constexpr auto members =
        makeMembers(std::make_index_sequence<std::tuple_size_v<decltype(Fields<Record>::all)>>());
    static constexpr Slot slot{.expected = "an object", .members = members};
};

template <typename Value>
struct SlotOf<QList<Value>>
{
    static constexpr Slot slot{.expected = "an array",
                               .element = &SlotOf<Value>::slot,
                               .clear = [](void* target) { as<QList<Value>>(target).clear(); },
                               .append = [](void* target) -> void* { return &as<QList<Value>>(target).emplaceBack(); },
                               .dropLast = [](void* target) { as<QList<Value>>(target).removeLast(); }};
};

/// What a document held beside the records.
struct ReadNotes
{
    bool unknownMembers = false;
};

/// Parses `json` into `target`, whose type `slot` describes. Nothing on success. The parser does not recurse.
[[nodiscard]] std::optional<JsonError> readInto(void* target, const Slot& slot, const QByteArray& json,
                                                ReadNotes* notes = nullptr);

/// As if the elements stood between brackets.
[[nodiscard]] std::optional<JsonError> readElementsInto(void* target, const Slot& slot, QByteArrayView elements,
                                                        ReadNotes* notes = nullptr);

/// Parses a list as far as it goes and leaves out the elements that cannot be read. Gives the number of all elements
/// begun; `errors` takes up to a thousand of what was wrong.
[[nodiscard]] qsizetype salvageInto(void* target, const Slot& slot, const QByteArray& json, QList<JsonError>& errors);

} // namespace abissora::json
