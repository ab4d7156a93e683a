// SPDX-License-Identifier: MIT
#include "ScalarText.h"

#include <algorithm>
#include <cstdint>

namespace abissora::json {

namespace {

constexpr std::string_view datePattern = "dddd-dd-ddTdd:dd:ddZ";
static_assert(datePattern.size() == dateLength);
constexpr bool isHyphenOfUuid(std::size_t at)
{
    return at == 8 || at == 13 || at == 18 || at == 23;
}

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr std::uint8_t noHexDigit = 16;

/// By character: the value of a hexadecimal digit.
constexpr auto hexValues = [] {
    std::array<std::uint8_t, 256> values{};
    values.fill(noHexDigit);
    for (std::uint8_t digit = 0; digit < 10; ++digit)
        values[std::size_t('0') + digit] = digit;
    for (std::uint8_t digit = 10; digit < 16; ++digit) {
        values[std::size_t('a') + digit - 10] = digit;
        values[std::size_t('A') + digit - 10] = digit;
    }
    return values;
}();

/// 'd' stands for a decimal digit, anything else for itself.
bool matches(std::string_view text, std::string_view pattern)
{
    if (text.size() != pattern.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char p = pattern[i];
        if (p == 'd' ? !isDigit(text[i]) : text[i] != p)
            return false;
    }
    return true;
}

void setNumber(std::array<char, dateLength>& text, std::size_t at, std::size_t digits, int value)
{
    for (std::size_t i = at + digits; i-- > at; value /= 10)
        text[i] = static_cast<char>('0' + value % 10);
}

int number(std::string_view digits)
{
    int value = 0;
    for (const char c : digits)
        value = value * 10 + (c - '0');
    return value;
}

} // namespace

std::optional<std::array<char, dateLength>> dateText(Instant instant)
{
    using namespace std::chrono;
    const auto seconds = floor<std::chrono::seconds>(instant);
    const auto day = floor<days>(seconds);
    if (day < sys_days(year(1) / 1 / 1) || day > sys_days(year(9999) / 12 / 31))
        return std::nullopt;
    const year_month_day date(day);
    const hh_mm_ss time(seconds - day);
    std::array<char, dateLength> text{};
    std::ranges::copy(datePattern, text.begin());
    setNumber(text, 0, 4, static_cast<int>(date.year()));
    setNumber(text, 5, 2, static_cast<int>(static_cast<unsigned>(date.month())));
    setNumber(text, 8, 2, static_cast<int>(static_cast<unsigned>(date.day())));
    setNumber(text, 11, 2, static_cast<int>(time.hours().count()));
    setNumber(text, 14, 2, static_cast<int>(time.minutes().count()));
    setNumber(text, 17, 2, static_cast<int>(time.seconds().count()));
    return text;
}

std::optional<Instant> dateFromText(std::string_view text)
{
    using namespace std::chrono;
    if (!matches(text, datePattern))
        return std::nullopt;
    const auto part = [text](std::size_t at, std::size_t length) { return number(text.substr(at, length)); };
    const year_month_day date(year(part(0, 4)), month(static_cast<unsigned>(part(5, 2))),
                              day(static_cast<unsigned>(part(8, 2))));
    const int hour = part(11, 2);
    const int minute = part(14, 2);
    const int second = part(17, 2);
    if (!date.ok() || date.year() < year(1) || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return sys_days(date) + hours(hour) + minutes(minute) + seconds(second);
}

std::optional<QUuid> uuidFromText(std::string_view text)
{
    if (text.size() != uuidLength)
        return std::nullopt;
    std::array<std::uint8_t, 16> bytes{};
    std::size_t digits = 0;
    for (std::size_t i = 0; i < uuidLength; ++i) {
        if (isHyphenOfUuid(i)) {
            if (text[i] != '-')
                return std::nullopt;
            continue;
        }
        const std::uint8_t value = hexValues[static_cast<std::uint8_t>(text[i])];
        if (value == noHexDigit)
            return std::nullopt;
        bytes[digits / 2] = static_cast<std::uint8_t>(bytes[digits / 2] << 4 | value);
        ++digits;
    }
    return QUuid::fromRfc4122(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
}

std::array<char, uuidLength> uuidText(const QUuid& id)
{
    static constexpr std::string_view digits = "0123456789ABCDEF";
    const QByteArray bytes = id.toRfc4122();
    std::array<char, uuidLength> text{};
    std::size_t at = 0;
    for (const char byte : bytes) {
        if (isHyphenOfUuid(at))
            text[at++] = '-';
        text[at++] = digits[static_cast<std::uint8_t>(byte) >> 4];
        text[at++] = digits[static_cast<std::uint8_t>(byte) & 0xf];
    }
    return text;
}

} // namespace abissora::json
