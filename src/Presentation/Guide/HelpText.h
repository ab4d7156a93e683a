// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

// The rules of the guide's markup for blanks and lines, which are not the toolkit's.
namespace abissora::help {

inline bool isNewline(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

inline bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

template <typename Predicate>
QString withoutAtEnds(const QString& text, Predicate unwanted)
{
    const auto first = std::ranges::find_if_not(text, unwanted);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), unwanted).base();
    return text.mid(first - text.begin(), last - first);
}

/// Without spaces and tabs at both ends; no other white space is taken.
[[nodiscard]] inline QString withoutBlanks(const QString& text)
{
    return withoutAtEnds(text, isBlank);
}

/// Without newline characters too.
[[nodiscard]] inline QString withoutBlanksAndNewlines(const QString& text)
{
    return withoutAtEnds(text, [](QChar c) { return isBlank(c) || isNewline(c); });
}

/// Every newline character of Unicode ends a line, so a CR LF pair has an empty line in between.
[[nodiscard]] inline QStringList lines(const QString& text)
{
    static const QRegularExpression newline(u"[\\n-\\r\\x{85}\\x{2028}\\x{2029}]"_s);
    return text.split(newline);
}

} // namespace abissora::help
