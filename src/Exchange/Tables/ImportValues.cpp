// SPDX-License-Identifier: MIT
#include "ImportValues.h"

#include "CostText.h"
#include "DayText.h"
#include "Literals.h"

#include <QRegularExpression>

namespace abissora::importValues {

namespace {

/// "2026-05-12T00:00:00Z" and "12/05/2026 00:00" without their time.
QString withoutTime(const QString& cell)
{
    static const QRegularExpression time(
        u"[T,\\s]\\s*[0-9]{1,2}[:.][0-9]{2}([:.][0-9]{2}([.,][0-9]+)?)?\\s*([AP]\\.?M\\.?|Z|[+-][0-9]{2}:?[0-9]{2})?$"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString day = cell.trimmed();
    return day.remove(time).trimmed();
}

/// "5/12/2026" with its first two numbers in the other order; nothing for a text of another form.
std::optional<QString> swapped(const QString& cell)
{
    static const QRegularExpression form(u"^([0-9]{1,2})(\\s*[-/.\\s]\\s*)([0-9]{1,2})(\\s*[-/.\\s]\\s*[0-9]{2,4})$"_s);
    const QRegularExpressionMatch match = form.match(cell);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(3) + match.captured(2) + match.captured(1) + match.captured(4);
}

/// "2026/5/12" and "2026.05.12" as "2026-5-12".
QString withHyphens(const QString& cell)
{
    static const QRegularExpression form(u"^([0-9]{4})[/.]([0-9]{1,2})[/.]([0-9]{1,2})$"_s);
    return QString(cell).replace(form, u"\\1-\\2-\\3"_s);
}

/// The full stop after a word belongs to it: "Fr. 12,50".
QString withoutWords(const QString& cell)
{
    static const QRegularExpression word(u"\\p{L}+\\.?"_s);
    return QString(cell).remove(word).trimmed();
}

/// What the cell says by itself.
DecimalSign signIn(const QString& words)
{
    const QString cell = withoutWords(words);
    static const QRegularExpression decimals(u"([.,])([0-9]*)[^0-9.,]*$"_s);
    const QRegularExpressionMatch match = decimals.match(cell);
    if (!match.hasMatch())
        return DecimalSign::Unknown;
    const bool isComma = match.captured(1) == u',';
    const bool hasOther = cell.contains(isComma ? u'.' : u',');
    const bool isAlone = cell.count(isComma ? u',' : u'.') == 1;
    constexpr qsizetype group = 3;
    if (!isAlone) // "1.234.567": it groups
        return isComma ? DecimalSign::FullStop : DecimalSign::Comma;
    if (!hasOther && match.captured(2).size() == group)
        return DecimalSign::Unknown;
    return isComma ? DecimalSign::Comma : DecimalSign::FullStop;
}

QString withSignsSwapped(QString cell)
{
    bool isInWord = false;
    for (QChar& c : cell) {
        const bool endsWord = isInWord && c == u'.';
        isInWord = c.isLetter();
        if (!endsWord)
            c = c == u',' ? u'.' : c == u'.' ? QChar(u',') : c;
    }
    return cell;
}

} // namespace

DayOrder dayOrderOf(const QStringList& cells)
{
    bool isMonthFirst = false;
    for (const QString& cell : cells) {
        const QString text = withoutTime(cell);
        const auto other = swapped(text);
        if (!other)
            continue;
        const bool asItIs = dayText::parse(text).has_value();
        const bool asOther = dayText::parse(*other).has_value();
        if (asItIs && !asOther)
            return DayOrder::DayFirst;
        isMonthFirst = isMonthFirst || (asOther && !asItIs);
    }
    return isMonthFirst ? DayOrder::MonthFirst : DayOrder::DayFirst;
}

std::optional<QDate> day(const QString& cell, DayOrder order)
{
    const QString text = withHyphens(withoutTime(cell));
    return dayText::parse(order == DayOrder::MonthFirst ? swapped(text).value_or(text) : text);
}

DecimalSign decimalSignOf(const QStringList& cells)
{
    DecimalSign known = DecimalSign::Unknown;
    for (const QString& cell : cells) {
        const DecimalSign sign = signIn(cell);
        if (sign == DecimalSign::Unknown || sign == known)
            continue;
        if (known != DecimalSign::Unknown)
            return DecimalSign::Both;
        known = sign;
    }
    return known;
}

Amount amount(const QString& cell, DecimalSign sign, const QString& currencySymbol)
{
    if (sign == DecimalSign::Both && signIn(cell) == DecimalSign::Unknown) {
        const QString number = withoutWords(cell);
        if (number.contains(u',') || number.contains(u'.'))
            return {0, AmountFault::Ambiguous};
    }
    // The reader takes a lonely comma for the decimals, a lonely full stop before three digits for thousands.
    const QString text = sign == DecimalSign::FullStop ? withSignsSwapped(cell) : cell;
    const auto value = costText::parse(text, {.currencySymbol = currencySymbol, .takesNegative = true});
    return value ? Amount{*value, AmountFault::None} : Amount{0, AmountFault::NoAmount};
}

std::optional<bool> yesOrNo(const QString& cell)
{
    static const QStringList yes{u"sì"_s,       u"si"_s,         u"s"_s,          u"yes"_s,       u"y"_s,
                                 u"true"_s,     u"vero"_s,       u"1"_s,          u"x"_s,         u"✓"_s,
                                 u"attivo"_s,   u"attiva"_s,     u"active"_s,     u"in uso"_s,    u"avvenuta"_s,
                                 u"avvenuto"_s, u"completata"_s, u"completato"_s, u"completed"_s, u"done"_s};
    static const QStringList no{u"no"_s,
                                u"n"_s,
                                u"false"_s,
                                u"falso"_s,
                                u"0"_s,
                                u"inattivo"_s,
                                u"inattiva"_s,
                                u"inactive"_s,
                                u"non attivo"_s,
                                u"non attiva"_s,
                                u"non in uso"_s,
                                u"dismesso"_s,
                                u"dismessa"_s,
                                u"venduto"_s,
                                u"venduta"_s,
                                u"sold"_s,
                                u"non avvenuta"_s,
                                u"non completata"_s,
                                u"not done"_s};
    const QString word = cell.normalized(QString::NormalizationForm_C).simplified().toLower();
    if (yes.contains(word))
        return true;
    return no.contains(word) ? std::optional(false) : std::nullopt;
}

} // namespace abissora::importValues
