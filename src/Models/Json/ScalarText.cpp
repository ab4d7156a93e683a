// SPDX-License-Identifier: MIT
#include "ScalarText.h"

#include <QString>

namespace abissora::json {

namespace {

constexpr std::string_view datePattern = "dddd-dd-ddTdd:dd:ddZ";
constexpr std::string_view uuidPattern = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool isHexDigit(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// 'd' stands for a decimal, 'x' for a hexadecimal digit, anything else for itself.
bool matches(std::string_view text, std::string_view pattern)
{
    if (text.size() != pattern.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char p = pattern[i];
        if (p == 'd' ? !isDigit(text[i]) : p == 'x' ? !isHexDigit(text[i]) : text[i] != p)
            return false;
    }
    return true;
}

void setNumber(std::string& text, std::size_t at, std::size_t digits, int value)
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

std::optional<std::string> dateText(Instant instant)
{
    using namespace std::chrono;
    const auto seconds = floor<std::chrono::seconds>(instant);
    const auto day = floor<days>(seconds);
    if (day < sys_days(year(1) / 1 / 1) || day > sys_days(year(9999) / 12 / 31))
        return std::nullopt;
    const year_month_day date(day);
    const hh_mm_ss time(seconds - day);
    std::string text(datePattern);
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
    if (!matches(text, uuidPattern))
        return std::nullopt;
    return QUuid::fromString(QLatin1String(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace abissora::json
