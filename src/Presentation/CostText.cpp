// SPDX-License-Identifier: MIT
#include "CostText.h"

#include "Literals.h"

#include <QLocale>
#include <QStringList>
#include <array>
#include <charconv>

namespace abissora::costText {

namespace {

constexpr QChar comma = u',';
constexpr QChar fullStop = u'.';
constexpr QChar euro(0x20ac);
constexpr qsizetype groupLength = 3;

bool areDigits(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
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
    const bool areOfThree = std::ranges::all_of(
        groups.sliced(1), [](qsizetype length) { return length == groupLength; }, &QString::size);
    return areOfThree ? std::optional(groups.join(QString())) : std::nullopt;
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

/// Half a cent goes to the even one, as the exact value of the number lies; the toolkit would round it up.
QString withTwoDecimals(double cost)
{
    std::array<char, 400> text; // long enough for every finite number
    const auto end = std::to_chars(text.begin(), text.end(), cost, std::chars_format::fixed, 2);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

std::optional<double> valueOf(const QString& amount)
{
    const std::optional<QString> number = normalized(amount);
    if (!number)
        return std::nullopt;
    bool isInRange = false;
    const double cost = number->toDouble(&isInRange);
    return isInRange ? std::optional(cost) : std::nullopt;
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
    QString text = QString::number(cost, 'f', QLocale::FloatingPointShortest);
    const qsizetype stop = text.indexOf(fullStop);
    if (stop < 0 || text.size() - stop <= 2)
        text = withTwoDecimals(cost);
    return text.replace(fullStop, comma);
}

std::optional<QString> listed(double cost)
{
    if (!(cost > 0))
        return std::nullopt;
    return euro + withTwoDecimals(cost);
}

} // namespace abissora::costText
