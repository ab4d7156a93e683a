// SPDX-License-Identifier: MIT
#include "DateFormat.h"

#include "Literals.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace abissora {

namespace {

/// A run of one pattern letter ("MMMM"), or what stands between two such runs, quotes included.
struct Piece
{
    QString text;
    bool isField = false;

    [[nodiscard]] bool isWeekday() const { return isField && text.startsWith("ddd"_L1); }
};

bool isFieldLetter(QChar c)
{
    return c == u'd' || c == u'M' || c == u'y';
}

std::vector<Piece> piecesOf(const QString& pattern)
{
    std::vector<Piece> pieces;
    bool quoted = false;
    for (const QChar c : pattern) {
        if (c == u'\'')
            quoted = !quoted;
        const bool isField = !quoted && isFieldLetter(c);
        const bool continues =
            !pieces.empty() && pieces.back().isField == isField && (!isField || pieces.back().text.back() == c);
        if (!continues)
            pieces.push_back({QString(), isField});
        pieces.back().text += c;
    }
    return pieces;
}

/// What the text in front of a trailing weekday leaves: "., " leaves ".", " - " nothing, ", 'de' " nothing.
QString withoutConnection(const QString& literal)
{
    static constexpr char16_t commas[] = u",،、";
    qsizetype end = literal.size();
    for (qsizetype i = 0; i < literal.size(); ++i) {
        if (QStringView(commas).contains(literal[i])) {
            end = i;
            break;
        }
    }
    while (end > 0 && (literal[end - 1].isSpace() || literal[end - 1] == u'-'))
        --end;
    return literal.left(end);
}

QString withoutWeekday(const QString& pattern)
{
    std::vector<Piece> pieces = piecesOf(pattern);
    const auto weekday = std::ranges::find_if(pieces, &Piece::isWeekday);
    if (weekday != pieces.end()) {
        const auto next = std::ranges::find(weekday + 1, pieces.end(), true, &Piece::isField);
        if (next == pieces.end() && weekday != pieces.begin())
            std::prev(weekday)->text = withoutConnection(std::prev(weekday)->text);
        pieces.erase(weekday, next);
    }
    QString result;
    for (const Piece& piece : pieces)
        result += piece.text;
    return result;
}

QString withShortMonth(const QString& pattern)
{
    QString result;
    for (const Piece& piece : piecesOf(pattern))
        result += piece.isField && piece.text == "MMMM"_L1 ? u"MMM"_s : piece.text;
    return result;
}

const QLocale& italian()
{
    static const QLocale locale(QLocale::Italian, QLocale::Italy);
    return locale;
}

} // namespace

DateFormat::DateFormat(const QLocale& locale, Calendar calendar)
    : m_locale(locale)
    , m_calendar(std::move(calendar))
    , m_longPattern(withoutWeekday(m_locale.dateFormat(QLocale::LongFormat)))
    , m_abbreviatedPattern(withShortMonth(m_longPattern))
{}

QLocale DateFormat::userLocale(const QLocale& system)
{
    const bool unknown = system.language() == QLocale::C || system.language() == QLocale::AnyLanguage;
    return unknown ? italian() : system;
}

QString DateFormat::longDate(Instant instant) const
{
    return m_locale.toString(m_calendar.local(instant).date(), m_longPattern);
}

QString DateFormat::abbreviatedDate(Instant instant) const
{
    return m_locale.toString(m_calendar.local(instant).date(), m_abbreviatedPattern);
}

QString DateFormat::year(Instant instant) const
{
    return italian().toString(m_calendar.local(instant).date(), u"yyyy"_s);
}

QString DateFormat::dayAndTime(Instant instant) const
{
    return italian().toString(m_calendar.local(instant), u"dd/MM/yyyy HH:mm"_s);
}

} // namespace abissora
