// SPDX-License-Identifier: MIT
#include "RecordWriter.h"

#include "Literals.h"
#include "ScalarText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace abissora::json {

namespace {

constexpr qsizetype leastRoom = 256;

/// By character of ASCII; beyond it the encoded form stands for itself.
constexpr auto isPlain = [] {
    std::array<bool, 0x80> plain{};
    std::fill(plain.begin() + 0x20, plain.end(), true);
    plain['"'] = false;
    plain['\\'] = false;
    return plain;
}();

/// The text behind the backslash.
std::string_view escape(char c, std::array<char, 5>& numeric)
{
    static constexpr std::string_view digits = "0123456789abcdef";
    switch (c) {
    case '"':
        return "\"";
    case '\\':
        return "\\";
    case '\n':
        return "n";
    case '\r':
        return "r";
    case '\t':
        return "t";
    default:
        numeric = {'u', '0', '0', digits[static_cast<std::size_t>(c) >> 4], digits[static_cast<std::size_t>(c) & 0xf]};
        return {numeric.data(), numeric.size()};
    }
}

} // namespace

QByteArray RecordWriter::take()
{
    m_out.truncate(std::exchange(m_size, 0));
    m_begin = nullptr;
    return std::exchange(m_out, {});
}

void RecordWriter::grow()
{
    m_out.resize(std::max(m_size, m_out.size() + std::max(leastRoom, m_out.size() / 2)));
    m_begin = m_out.data();
}

void RecordWriter::write(QStringView value)
{
    append('"');
    const auto count = static_cast<std::size_t>(value.size());
    const qsizetype begin = m_size;
    char* to = extend(count);
    // Nearly every text is plain from end to end.
    for (const QChar c : value) {
        if (c.unicode() >= isPlain.size() || !isPlain[c.unicode()]) {
            m_size = begin;
            appendEncoded(value);
            break;
        }
        *to++ = static_cast<char>(c.unicode());
    }
    append('"');
}

void RecordWriter::appendEncoded(QStringView value)
{
    const QByteArray utf8 = value.toUtf8();
    std::array<char, 5> numeric{};
    for (const char c : utf8) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= isPlain.size() || isPlain[code]) {
            append(c);
        } else {
            append('\\');
            append(escape(c, numeric));
        }
    }
}

void RecordWriter::write(const QUuid& value)
{
    const auto text = uuidText(value);
    append('"');
    append({text.data(), text.size()});
    append('"');
}

void RecordWriter::write(Instant value)
{
    const auto text = dateText(value);
    if (!text)
        fail(u"the year lies outside 1 to 9999"_s);
    append('"');
    append({text->data(), text->size()});
    append('"');
}

void RecordWriter::write(double value)
{
    if (!std::isfinite(value))
        fail(u"the number is not finite"_s);
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    const std::string_view digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    append(digits);
    // Without a fraction it would be read back as the integer 0, which has no sign.
    if (digits == "-0")
        append(".0");
}

void RecordWriter::write(std::int64_t value)
{
    append(std::to_string(value));
}

void RecordWriter::write(bool value)
{
    append(value ? "true" : "false");
}

void RecordWriter::fail(const QString& message) const
{
    QString path;
    for (const Step& step : m_path) {
        if (step.member.empty())
            path += u'[' + QString::number(step.index) + u']';
        else
            path += u'.' + QString::fromLatin1(step.member.data(), qsizetype(step.member.size()));
    }
    throw EncodingFailure({path, message});
}

} // namespace abissora::json
