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
constexpr QChar blank = u' ';
constexpr QChar apostrophe = u'\'';
constexpr qsizetype groupLength = 3;

bool areDigits(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// One kind of blank, apostrophe and minus each.
QString withUsualMarks(const QString& text)
{
    QString usual = text.trimmed();
    for (QChar& c : usual) {
        if (c.isSpace())
            c = blank;
        else if (c == QChar(0x2019) || c == QChar(0x02bc)) // typographic ones
            c = apostrophe;
        else if (c == QChar(0x2212)) // the mathematical minus
            c = u'-';
    }
    return usual;
}

QStringList currencyWords(const Reading& reading)
{
    QStringList words{reading.currencySymbol.trimmed(), u"euro"_s, u"EUR"_s};
    words.removeAll(QString());
    return words;
}

/// How many characters of a currency the text begins with, or ends with.
qsizetype currencyAt(QStringView text, bool atEnd, const Reading& reading)
{
    if (!text.isEmpty() && (atEnd ? text.back() : text.front()).category() == QChar::Symbol_Currency)
        return 1;
    for (const QString& word : currencyWords(reading)) {
        if (atEnd ? text.endsWith(word, Qt::CaseInsensitive) : text.startsWith(word, Qt::CaseInsensitive))
            return word.size();
    }
    return 0;
}

QString withoutCurrency(const QString& text, const Reading& reading)
{
    if (const qsizetype first = currencyAt(text, false, reading))
        return text.mid(first).trimmed();
    return text.chopped(currencyAt(text, true, reading)).trimmed();
}

struct Amount
{
    QString digits; ///< with their separators
    bool isNegative = false;
};

Amount amountOf(const QString& text, const Reading& reading)
{
    QString rest = withUsualMarks(text);
    bool isNegative = false;
    const auto takeMinus = [&] {
        if (!reading.takesNegative || isNegative || !rest.startsWith(u'-'))
            return;
        isNegative = true;
        rest = rest.mid(1).trimmed();
    };
    takeMinus();
    rest = withoutCurrency(rest, reading);
    takeMinus();
    return {rest, isNegative};
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

/// Blanks or apostrophes, where they stand.
std::optional<QChar> plainGrouping(const QString& amount)
{
    for (const QChar grouping : {blank, apostrophe}) {
        if (amount.contains(grouping))
            return grouping;
    }
    return std::nullopt;
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
    if (amount.count(fullStop) == 1 && (plainGrouping(amount) || !ungrouped(amount, fullStop)))
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
    const QChar usual = decimal ? (*decimal == comma ? fullStop : comma) : (amount.contains(comma) ? comma : fullStop);
    const std::optional<QString> digits = ungrouped(whole, plainGrouping(amount).value_or(usual));
    if (!digits || !areDigits(*digits) || !areDigits(decimals) || (digits->isEmpty() && decimals.isEmpty()))
        return std::nullopt;
    return (digits->isEmpty() ? u"0"_s : *digits) + fullStop + (decimals.isEmpty() ? u"0"_s : decimals);
}

/// Half a cent goes to the even one, as the exact value of the number lies; the toolkit would round it up.
QString withTwoDecimals(double cost)
{
    std::array<char, 400> text{}; // long enough for every finite number
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

std::optional<double> parse(const QString& text, const Reading& reading)
{
    const auto [digits, isNegative] = amountOf(text, reading);
    if (digits.isEmpty())
        return isNegative ? std::nullopt : std::optional(0.0);
    const std::optional<double> cost = valueOf(digits);
    return cost && isNegative ? -*cost : cost;
}

bool isUnfinished(const QString& text, const Reading& reading)
{
    const auto completes = [&](const QString& begun) {
        return std::ranges::any_of(std::array{"0", "00", "000"}, [&](const char* rest) {
            const QString amount = amountOf(begun + QLatin1String(rest), reading).digits;
            return valueOf(amount).has_value();
        });
    };
    // As it stands, or without the beginning of a currency at its end.
    const QString begun = withUsualMarks(text);
    if (completes(begun))
        return true;
    return std::ranges::any_of(currencyWords(reading), [&](const QString& word) {
        for (qsizetype length = 1; length < word.size(); ++length) {
            const bool isBegun = begun.endsWith(QStringView(word).first(length), Qt::CaseInsensitive);
            if (isBegun && (length == begun.size() || valueOf(amountOf(begun.chopped(length), reading).digits)))
                return true;
        }
        return false;
    });
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
