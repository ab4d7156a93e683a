// SPDX-License-Identifier: MIT
#include "TextDecoding.h"

#include "Literals.h"

#include <QStringDecoder>
#include <array>

namespace abissora {

namespace {

/// The characters of 0x80 to 0x9F, https://www.unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT; those
/// that are not assigned stand for themselves.
constexpr std::array<char16_t, 32> windowsCharacters{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString fromWindows(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        if (c >= QChar(0x80) && c < QChar(0xA0))
            c = QChar(windowsCharacters[c.unicode() - 0x80U]);
    }
    return text;
}

/// Nothing when the bytes are not of the encoding.
std::optional<QString> decodedAs(QStringConverter::Encoding encoding, const QByteArray& bytes)
{
    QStringDecoder decoder(encoding);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    // Half a character at the end is no error to the decoder, which waits for the rest; nor is half a pair.
    if ((encoding != QStringConverter::Utf8 && bytes.size() % 2 != 0) || !text.isValidUtf16())
        return std::nullopt;
    return text;
}

/// UTF-16 without a byte order mark: among the first characters most have one zero byte, always on the same side.
std::optional<QStringConverter::Encoding> looksLikeUtf16(const QByteArray& bytes)
{
    constexpr qsizetype looked = 400;
    std::array<int, 2> zeros{};
    const qsizetype end = std::min(looked, bytes.size() & ~qsizetype(1));
    for (qsizetype i = 0; i < end; ++i)
        zeros[std::size_t(i % 2)] += bytes.at(i) == '\0' ? 1 : 0;
    const auto isMost = [end](int count) { return count > end / 4; };
    if (end < 4 || isMost(zeros[0]) == isMost(zeros[1]))
        return std::nullopt;
    return isMost(zeros[0]) ? QStringConverter::Utf16BE : QStringConverter::Utf16LE;
}

tl::expected<DecodedText, QString> unlessEmpty(DecodedText decoded)
{
    if (QStringView(decoded.text).trimmed().isEmpty())
        return tl::unexpected(u"Il file è vuoto."_s);
    return decoded;
}

} // namespace

tl::expected<DecodedText, QString> decodeText(const QByteArray& bytes)
{
    if (bytes.startsWith("%PDF-"))
        return tl::unexpected(u"Il file non è una tabella: è un documento PDF."_s);
    if (bytes.startsWith("PK\x03\x04"))
        return tl::unexpected(
            u"Il file non è un testo: è compresso, come le cartelle di lavoro di un foglio di calcolo. "
            "Il foglio di calcolo lo può salvare come CSV."_s);
    const auto marked = QStringConverter::encodingForData(bytes);
    const auto wide = marked && *marked != QStringConverter::Utf8 ? marked : looksLikeUtf16(bytes);
    if (wide) {
        const auto text = decodedAs(*wide, bytes);
        if (!text)
            return tl::unexpected(u"Il file è danneggiato: non è un testo UTF-16 intero."_s);
        return unlessEmpty({*text, u"UTF-16"_s});
    }
    if (const auto text = decodedAs(QStringConverter::Utf8, bytes))
        return unlessEmpty({*text, u"UTF-8"_s});
    return DecodedText{fromWindows(bytes), u"Windows-1252"_s};
}

} // namespace abissora
