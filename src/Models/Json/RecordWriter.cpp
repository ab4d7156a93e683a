// SPDX-License-Identifier: MIT
#include "RecordWriter.h"

#include "Literals.h"
#include "ScalarText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace abissora::json {

namespace {

bool needsEscape(char c)
{
    return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20;
}

void appendEscaped(std::string& out, char c)
{
    static constexpr char hex[] = "0123456789abcdef";
    switch (c) {
    case '"':
    case '\\':
        out += {'\\', c};
        break;
    case '\n':
        out += "\\n";
        break;
    case '\r':
        out += "\\r";
        break;
    case '\t':
        out += "\\t";
        break;
    default:
        out += {'\\', 'u', '0', '0', hex[c >> 4], hex[c & 0xf]};
    }
}

} // namespace

void RecordWriter::write(QStringView value)
{
    const QByteArray utf8 = value.toUtf8();
    m_out += '"';
    const auto end = utf8.cend();
    for (auto plain = utf8.cbegin();;) {
        const auto special = std::find_if(plain, end, needsEscape);
        m_out.append(plain, special);
        if (special == end)
            break;
        appendEscaped(m_out, *special);
        plain = special + 1;
    }
    m_out += '"';
}

void RecordWriter::write(const QUuid& value)
{
    m_out += '"';
    m_out += value.toByteArray(QUuid::WithoutBraces).toUpper().toStdString();
    m_out += '"';
}

void RecordWriter::write(Instant value)
{
    const auto text = dateText(value);
    if (!text)
        fail(u"the year lies outside 1 to 9999"_s);
    m_out += '"';
    m_out += *text;
    m_out += '"';
}

void RecordWriter::write(double value)
{
    if (!std::isfinite(value))
        fail(u"the number is not finite"_s);
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    const std::string_view digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    m_out += digits;
    // Without a fraction it would be read back as the integer 0, which has no sign.
    if (digits == "-0")
        m_out += ".0";
}

void RecordWriter::write(std::int64_t value)
{
    m_out += std::to_string(value);
}

void RecordWriter::write(bool value)
{
    m_out += value ? "true" : "false";
}

void RecordWriter::fail(const QString& message) const
{
    throw EncodingFailure({QString::fromStdString(m_path), message});
}

} // namespace abissora::json
