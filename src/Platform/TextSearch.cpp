// SPDX-License-Identifier: MIT
#include "TextSearch.h"

#include <algorithm>

namespace abissora {

namespace {

/// Latin-1 is composed, has no accents of their own and folds one to one, "ß" excepted: QString's own search will do,
/// and needs no memory.
bool isSimple(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x100 && c != QChar(0xDF); });
}

// The lower-case letters whose full case folding is longer than one character, among those that canonical
// decomposition leaves whole. QString folds one to one only.
bool foldsToSeveral(QChar c)
{
    const char16_t u = c.unicode();
    return u == 0x00DF || u == 0x0149 || u == 0x0587 || u == 0x1E9A || (u >= 0xFB00 && u <= 0xFB06) ||
           (u >= 0xFB13 && u <= 0xFB17);
}

QString folded(const QString& text)
{
    const QString simple = text.normalized(QString::NormalizationForm_D).toCaseFolded();
    QString full;
    full.reserve(simple.size());
    for (const QChar c : simple) {
        if (foldsToSeveral(c))
            full += QString(c).toUpper().toCaseFolded();
        else
            full += c;
    }
    return full.normalized(QString::NormalizationForm_C);
}

bool startsWithAccent(QStringView text)
{
    if (text.isEmpty())
        return false;
    if (text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate())
        return QChar::combiningClass(QChar::surrogateToUcs4(text[0], text[1])) != 0;
    return text[0].combiningClass() != 0;
}

} // namespace

TextSearch::TextSearch(const QString& needle)
    : m_needle(folded(needle))
{}

bool TextSearch::foundIn(const QString& text) const
{
    if (m_needle.isEmpty())
        return true;
    if (isSimple(text))
        return text.contains(m_needle, Qt::CaseInsensitive);

    const QString haystack = folded(text);
    for (qsizetype at = haystack.indexOf(m_needle); at >= 0; at = haystack.indexOf(m_needle, at + 1)) {
        // An accent without a composed form follows its letter: the letter alone is not what stands there.
        if (!startsWithAccent(QStringView(haystack).sliced(at + m_needle.size())))
            return true;
    }
    return false;
}

} // namespace abissora
