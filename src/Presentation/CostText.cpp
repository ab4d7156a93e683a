// SPDX-License-Identifier: MIT
#include "CostText.h"

#include "Literals.h"

#include <QStringList>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace abissora::costText {

namespace {

constexpr QChar comma = u',';
constexpr QChar fullStop = u'.';
constexpr QChar euro(0x20ac);
constexpr qsizetype groupLength = 3;

bool areDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString withoutCurrency(const QString& text)
{
    QString amount = text.trimmed();
    if (amount.startsWith(euro))
        amount.remove(0, 1);
    else if (amount.endsWith(euro))
        amount.chop(1);
    return amount.trimmed();
}

/// The digits without the separators between groups of three; nothing when they are grouped otherwise.
std::optional<QString> ungrouped(const QString& digits, QChar separator)
{
    const QStringList groups = digits.split(separator);
    const QString& first = groups.first();
    if (groups.size() > 1 && (first.isEmpty() || first.size() > groupLength || first.startsWith(u'0')))
        return std::nullopt;
    for (qsizetype i = 1; i < groups.size(); ++i) {
        if (groups.at(i).size() != groupLength)
            return std::nullopt;
    }
    return groups.join(QString());
}

/// What separates the decimals, if anything does.
std::optional<QChar> decimalSeparator(const QString& amount)
{
    const bool hasComma = amount.contains(comma);
    const bool hasStop = amount.contains(fullStop);
    if (hasComma && hasStop)
        return amount.lastIndexOf(comma) > amount.lastIndexOf(fullStop) ? comma : fullStop;
    if (amount.count(comma) == 1)
        return comma;
    if (amount.count(fullStop) == 1 && !ungrouped(amount, fullStop))
        return fullStop;
    return std::nullopt;
}

/// In the form that the language's own reader takes: digits, and a full stop before the decimals.
std::optional<QString> normalized(const QString& amount)
{
    const std::optional<QChar> decimal = decimalSeparator(amount);
    const qsizetype end = decimal ? amount.lastIndexOf(*decimal) : amount.size();
    const QString whole = amount.left(end);
    const QString decimals = amount.mid(end + 1);
    const QChar grouping =
        decimal ? (*decimal == comma ? fullStop : comma) : (amount.contains(comma) ? comma : fullStop);
    const std::optional<QString> digits = ungrouped(whole, grouping);
    if (!digits || !areDigits(*digits) || !areDigits(decimals) || (digits->isEmpty() && decimals.isEmpty()))
        return std::nullopt;
    return (digits->isEmpty() ? u"0"_s : *digits) + fullStop + (decimals.isEmpty() ? u"0"_s : decimals);
}

/// Long enough for every finite number written out.
using Buffer = std::array<char, 1200>;

QString written(double cost, int decimals)
{
    Buffer buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), cost, std::chars_format::fixed, decimals);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

QString writtenShortest(double cost)
{
    Buffer buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), cost, std::chars_format::fixed);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

std::optional<double> valueOf(const QString& amount)
{
    const std::optional<QString> number = normalized(amount);
    if (!number)
        return std::nullopt;
    const QByteArray digits = number->toLatin1();
    double cost = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), cost);
    if (end.ec != std::errc() || end.ptr != digits.data() + digits.size())
        return std::nullopt;
    return cost;
}

} // namespace

std::optional<double> parse(const QString& text)
{
    const QString amount = withoutCurrency(text);
    return amount.isEmpty() ? 0.0 : valueOf(amount);
}

bool isUnfinished(const QString& text)
{
    const auto completes = [amount = withoutCurrency(text)](const char* rest) {
        return valueOf(amount + QLatin1String(rest)).has_value();
    };
    return completes("0") || completes("00") || completes("000");
}

QString show(double cost)
{
    if (cost == 0)
        return {};
    QString text = writtenShortest(cost);
    const qsizetype stop = text.indexOf(fullStop);
    if (stop < 0 || text.size() - stop <= 2)
        text = written(cost, 2);
    return text.replace(fullStop, comma);
}

std::optional<QString> listed(double cost)
{
    if (!(cost > 0))
        return std::nullopt;
    return euro + written(cost, 2);
}

} // namespace abissora::costText
