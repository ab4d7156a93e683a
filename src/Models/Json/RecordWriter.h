// SPDX-License-Identifier: MIT
#pragma once

#include "RecordFields.h"
#include "RecordJson.h"

#include <QList>
#include <exception>
#include <string>

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
        m_out += '[';
        const std::size_t mark = m_path.size();
        for (qsizetype i = 0; i < records.size(); ++i) {
            if (i > 0)
                m_out += ',';
            m_path += '[' + std::to_string(i) + ']';
            write(records.at(i));
            m_path.resize(mark);
        }
        m_out += ']';
    }

    template <Described Record>
    void write(const Record& record)
    {
        m_out += '{';
        bool first = true;
        std::apply([&](const auto&... field) { (writeMember(field.name, record.*(field.member), first), ...); },
                   Fields<Record>::all);
        m_out += '}';
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

    [[nodiscard]] const std::string& text() const { return m_out; }

private:
    template <typename Value>
    void writeMember(std::string_view name, const std::optional<Value>& value, bool& first)
    {
        if (value)
            writeMember(name, *value, first);
    }

    template <typename Value>
    void writeMember(std::string_view name, const Value& value, bool& first)
    {
        m_out += first ? "\"" : ",\"";
        first = false;
        m_out += name;
        m_out += "\":";
        const std::size_t mark = m_path.size();
        m_path += '.';
        m_path += name;
        write(value);
        m_path.resize(mark);
    }

    [[noreturn]] void fail(const QString& message) const;

    std::string m_out;
    std::string m_path;
};

} // namespace abissora::json
