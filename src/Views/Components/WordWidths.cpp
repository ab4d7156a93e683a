// SPDX-License-Identifier: MIT
#include "WordWidths.h"

#include "Literals.h"

#include <QCache>
#include <QTextLayout>
#include <algorithm>

namespace abissora {

namespace {

constexpr qsizetype mostTexts = 4000;
constexpr int mostFonts = 32;
// What letters may be fitted to a blank by, and what rounding adds up to.
constexpr qreal doubt = 2;
constexpr qreal doubtOfAWord = 0.25;

bool isLatinLetter(QChar c)
{
    const char16_t code = c.unicode();
    return (code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z') ||
           (code >= 0xC0 && code <= 0x17F && code != 0xD7 && code != 0xF7);
}

/// Lines break between none of these.
bool isSimple(QChar c)
{
    static constexpr QStringView signs = u",.;:'\"()!?%&+=*_#@€°·";
    return isLatinLetter(c) || (c >= u'0' && c <= u'9') || signs.contains(c);
}

/// Where the line may break next: at the blank, or behind the hyphen between two letters. Less than 0 where neither
/// tells.
qsizetype endOfWord(QStringView text, qsizetype begin)
{
    for (qsizetype at = begin; at < text.size(); ++at) {
        if (text[at] == u' ')
            return at;
        if (text[at] == u'-') {
            const bool isBetweenLetters =
                at > begin && at + 1 < text.size() && isLatinLetter(text[at - 1]) && isLatinLetter(text[at + 1]);
            return isBetweenLetters ? at + 1 : -1;
        }
        if (!isSimple(text[at]))
            return -1;
    }
    return text.size();
}

qreal heightOfALine(const QFont& font)
{
    QTextLayout layout(u"x"_s, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1000);
    layout.endLayout();
    return line.height();
}

} // namespace

int layOutLines(QTextLayout& layout, QString text, QTextOption option, int width)
{
    layout.setText(text.replace(u'\n', QChar::LineSeparator));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return qCeil(height);
}

WordWidths::WordWidths(const QFont& font)
    : m_font(font)
    , m_metrics(font)
    , m_lineHeight(heightOfALine(font))
    , m_blank(m_metrics.horizontalAdvance(u' '))
{}

std::shared_ptr<WordWidths> WordWidths::of(const QFont& font)
{
    // Nobody's state: it only ever repeats what measuring again would give.
    static QCache<QFont, std::shared_ptr<WordWidths>> all(mostFonts);
    if (const auto* const known = all.object(font))
        return *known;
    auto made = std::make_shared<WordWidths>(font);
    all.insert(font, new std::shared_ptr<WordWidths>(made));
    return made;
}

std::optional<int> WordWidths::linesOf(QStringView text, int width)
{
    if (text.isEmpty())
        return {};
    int lines = 1;
    qreal used = 0;
    qreal margin = doubt;
    for (qsizetype begin = 0; begin < text.size();) {
        if (text[begin] == u' ') {
            used += m_blank; // those at the end of a line hang over it
            ++begin;
            continue;
        }
        const qsizetype end = endOfWord(text, begin);
        if (end < 0)
            return {};
        const QStringView word = text.sliced(begin, end - begin);
        if (!isOfThisFont(word))
            return {};
        const qreal wide = advance(word);
        begin = end;
        margin += doubtOfAWord;
        if (used + wide + margin <= width) {
            used += wide;
            continue;
        }
        if (used + wide - margin <= width || wide + doubt > width)
            return {};
        ++lines;
        used = wide;
        margin = doubt + doubtOfAWord;
    }
    return lines;
}

int WordWidths::heightOf(const QString& text, int width)
{
    if (const auto lines = linesOf(text, width))
        return qCeil(*lines * m_lineHeight);
    const std::pair key(text, width);
    if (const auto known = m_heights.constFind(key); known != m_heights.constEnd())
        return *known;
    if (m_heights.size() > mostTexts)
        m_heights.clear();
    QTextLayout layout({}, m_font);
    return *m_heights.insert(key, layOutLines(layout, text, {}, width));
}

QString WordWidths::elided(const QString& text, qreal width)
{
    return advance(text) <= width ? text : m_metrics.elidedText(text, Qt::ElideRight, width);
}

qreal WordWidths::mostWidthOf(QStringView text)
{
    qreal wide = doubt;
    for (qsizetype i = 0; i < text.size(); ++i)
        wide += advance(text.sliced(i, 1)) + doubtOfAWord;
    return wide;
}

qreal WordWidths::advance(QStringView text)
{
    if (const auto known = m_advances.find(text); known != m_advances.end())
        return known->second;
    if (std::ssize(m_advances) > mostTexts)
        m_advances.clear();
    const QString key = text.toString();
    return m_advances[key] = m_metrics.horizontalAdvance(key);
}

bool WordWidths::isOfThisFont(QStringView word) const
{
    // Letters of another font may be taller, too. Every font has those of ASCII.
    return std::ranges::all_of(word, [this](QChar c) { return c.unicode() < 0x80 || m_metrics.inFont(c); });
}

} // namespace abissora
