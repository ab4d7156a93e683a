// SPDX-License-Identifier: MIT
#include "RecordWriter.h"

#include "IdGenerator.h"
#include "ScalarText.h"

namespace abissora::json {

void RecordWriter::write(const QString& value)
{
    static constexpr char hex[] = "0123456789abcdef";
    const QByteArray utf8 = value.toUtf8();
    m_out += '"';
    for (const char c : utf8) {
        switch (c) {
        case '"':
            m_out += "\\\"";
            break;
        case '\\':
            m_out += "\\\\";
            break;
        case '\n':
            m_out += "\\n";
            break;
        case '\r':
            m_out += "\\r";
            break;
        case '\t':
            m_out += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                m_out += "\\u00";
                m_out += hex[c >> 4];
                m_out += hex[c & 0xf];
            } else {
                m_out += c;
            }
        }
    }
    m_out += '"';
}

void RecordWriter::write(const QUuid& value)
{
    write(uuidText(value));
}

void RecordWriter::write(Instant value)
{
    const auto text = dateText(value);
    if (!text)
        fail(QStringLiteral("the year lies outside 1 to 9999"));
    m_out += '"' + *text + '"';
}

void RecordWriter::write(double value)
{
    if (!std::isfinite(value))
        fail(QStringLiteral("the number is not finite"));
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
