// SPDX-License-Identifier: MIT
#include "HelpText.h"

#include <algorithm>

namespace abissora::help {

namespace {

bool isNewline(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

template <typename Predicate>
QString without(const QString& text, Predicate unwanted)
{
    const auto first = std::find_if_not(text.begin(), text.end(), unwanted);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), unwanted).base();
    return text.mid(first - text.begin(), last - first);
}

} // namespace

QStringList lines(const QString& text)
{
    QStringList found;
    auto start = text.begin();
    while (true) {
        const auto end = std::find_if(start, text.end(), isNewline);
        found.append(text.mid(start - text.begin(), end - start));
        if (end == text.end())
            return found;
        start = end + 1;
    }
}

QString withoutBlanks(const QString& text)
{
    return without(text, isBlank);
}

QString withoutBlanksAndNewlines(const QString& text)
{
    return without(text, [](QChar c) { return isBlank(c) || isNewline(c); });
}

} // namespace abissora::help
