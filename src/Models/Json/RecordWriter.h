// SPDX-License-Identifier: MIT
#pragma once

#include "RecordFields.h"
#include "RecordJson.h"

#include <QList>
#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

namespace abissora::json {

/// Thrown inside this room only, by a value that has no stored form.
struct EncodingFailure : std::exception
{
    explicit EncodingFailure(JsonError failure)
        : error(std::move(failure))
    {}
    JsonError error;
};

/// Writes described records as compact JSON, members in described order.
class RecordWriter
{
public:
    template <Described Record>
    void write(const QList<Record>& records)
    {
        append('[');
        for (qsizetype i = 0; i < records.size(); ++i) {
            if (i > 0)
                append(',');
            writeElement(records.at(i), i);
        }
        append(']');
    }

    /// Without what stands between the elements; `index` is its place in the list, which an error names.
    template <Described Record>
    void writeElement(const Record& record, qsizetype index)
    {
        m_path.push_back({{}, index});
        write(record);
        m_path.pop_back();
    }

    template <Described Record>
    void write(const Record& record)
    {
        append('{');
        bool first = true;
        std::apply([&](const auto&... field) { (writeMember(field.name, record.*(field.member), first), ...); },
                   Fields<Record>::all);
        append('}');
    }

    template <HasRawValues Case>
    void write(Case value)
    {
        write(rawValueView(value));
    }

    void write(QStringView value);
    void write(const QUuid& value);
    void write(Instant value);
    void write(double value);
    void write(std::int64_t value);
    void write(bool value);

    void append(char character) { *extend(1) = character; }
    void append(std::string_view text) { std::ranges::copy(text, extend(text.size())); }

    [[nodiscard]] qsizetype size() const { return m_size; }
    /// What was written; nothing is left.
    [[nodiscard]] QByteArray take();

private:
    struct Step
    {
        std::string_view member; ///< empty: an element of a list
        qsizetype index = 0;
    };

    template <typename Value>
    void writeMember(std::string_view name, const std::optional<Value>& value, bool& first)
    {
        if (value)
            writeMember(name, *value, first);
    }

    template <typename Value>
    void writeMember(std::string_view name, const Value& value, bool& first)
    {
        append(first ? "\"" : ",\"");
        first = false;
        append(name);
        append("\":");
        m_path.push_back({name});
        write(value);
        m_path.pop_back();
    }

    /// Room for so many characters, which count as written.
    char* extend(std::size_t count)
    {
        const qsizetype begin = std::exchange(m_size, m_size + static_cast<qsizetype>(count));
        if (m_size > m_out.size())
            grow();
        return m_begin + begin;
    }
    void grow();
    void appendEncoded(QStringView value);
    [[noreturn]] void fail(const QString& message) const;

    QByteArray m_out; ///< longer than what was written
    char* m_begin = nullptr;
    qsizetype m_size = 0;
    std::vector<Step> m_path;
};

} // namespace abissora::json
