// SPDX-License-Identifier: MIT
#include "DayText.h"

#include "Literals.h"

#include <QRegularExpression>
#include <QStringList>

namespace abissora::dayText {

namespace {

/// Two digits of a year as people write them: 98 is 1998, 26 is 2026.
int fullYear(const QString& digits)
{
    constexpr int firstOfLastCentury = 70;
    const int year = digits.toInt();
    return digits.size() > 2 ? year : year + (year < firstOfLastCentury ? 2000 : 1900);
}

/// 1 to 12; 0 for none.
int monthOf(const QString& text)
{
    static const QStringList names{u"gennaio"_s,   u"febbraio"_s, u"marzo"_s,    u"aprile"_s,
                                   u"maggio"_s,    u"giugno"_s,   u"luglio"_s,   u"agosto"_s,
                                   u"settembre"_s, u"ottobre"_s,  u"novembre"_s, u"dicembre"_s};
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber)
        return number;
    for (int month = 0; month < names.size(); ++month) {
        if (names.at(month).startsWith(text, Qt::CaseInsensitive))
            return month + 1;
    }
    return 0;
}

std::optional<QDate> dayOf(const QString& text, const QRegularExpression& form)
{
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    const QDate day(fullYear(match.captured(u"y"_s)), monthOf(match.captured(u"m"_s)), match.captured(u"d"_s).toInt());
    return day.isValid() ? std::optional(day) : std::nullopt;
}

} // namespace

std::optional<QDate> parseComplete(const QString& text)
{
    static const QRegularExpression form(u"^(?<d>[0-9]{2})/?(?<m>[0-9]{2})/?(?<y>[0-9]{4})$"_s);
    return dayOf(text, form);
}

std::optional<QDate> parse(const QString& text)
{
    static const QRegularExpression separated(
        u"^(?<d>[0-9]{1,2})\\s*[-/.\\s]\\s*(?<m>[0-9]{1,2})\\s*[-/.\\s]\\s*(?<y>[0-9]{4}|[0-9]{2})$"_s);
    static const QRegularExpression named(
        u"^(?<d>[0-9]{1,2})[°º]?[-/.\\s]*(?<m>[A-Za-z]{3,})[-/.\\s]*(?<y>[0-9]{4}|[0-9]{2})$"_s);
    static const QRegularExpression digits(u"^(?<d>[0-9]{2})(?<m>[0-9]{2})(?<y>[0-9]{2})$"_s);
    static const QRegularExpression yearFirst(u"^(?<y>[0-9]{4})-(?<m>[0-9]{1,2})-(?<d>[0-9]{1,2})$"_s);
    if (const auto complete = parseComplete(text))
        return complete;
    for (const QRegularExpression* form : {&separated, &named, &digits, &yearFirst}) {
        if (const auto day = dayOf(text, *form))
            return day;
    }
    return std::nullopt;
}

} // namespace abissora::dayText
