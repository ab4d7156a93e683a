// SPDX-License-Identifier: MIT
#include "ForeignText.h"

#include "Literals.h"

namespace abissora {

namespace {

bool isShown(char32_t character)
{
    if (character == U'\n' || character == U'\t')
        return true;
    const bool turnsDirection =
        (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
    return !turnsDirection && !QChar::isNonCharacter(character) && QChar::category(character) != QChar::Other_Control;
}

QString shortened(const QString& text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    const bool cutsPair = text.at(longest - 1).isHighSurrogate();
    return text.left(cutsPair ? longest - 1 : longest) + QChar(0x2026);
}

} // namespace

QString shownText(const QString& text, qsizetype longest)
{
    QString lines = shortened(text, longest);
    lines.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    std::u32string characters = lines.toStdU32String();
    std::erase_if(characters, [](char32_t character) { return !isShown(character); });
    return QString::fromStdU32String(characters);
}

QString shownLine(const QString& text, qsizetype longest)
{
    return shownText(shortened(text, longest).simplified(), longest);
}

bool opensInBrowser(const QUrl& url)
{
    const bool isWeb = url.scheme() == "https"_L1 || url.scheme() == "http"_L1;
    return isWeb && !url.host().isEmpty();
}

} // namespace abissora
