// SPDX-License-Identifier: MIT
#include "GuideProperties.h"

#include "HelpBlockParser.h"
#include "HelpIndex.h"
#include "HelpLoader.h"
#include "Literals.h"

#include <algorithm>

namespace abissora::test {

namespace {

/// Letters only: white space, digits and punctuation may belong to the markup.
QString lettersOf(const QString& text)
{
    QString letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters), [](QChar c) { return c.isLetter(); });
    return letters;
}

/// All its texts, or nothing when it has none although it should.
std::optional<QStringList> textsOf(const HelpBlock& block)
{
    struct Texts
    {
        std::optional<QStringList> operator()(const help::Subheading& b) const { return QStringList{b.text}; }
        std::optional<QStringList> operator()(const help::Paragraph& b) const { return some(b.text); }
        std::optional<QStringList> operator()(const help::Bullets& b) const { return some(b.items); }
        std::optional<QStringList> operator()(const help::Numbered& b) const { return some(b.items); }
        std::optional<QStringList> operator()(const help::Quote& b) const { return QStringList{b.text}; }
        std::optional<QStringList> operator()(const help::Code& b) const { return QStringList{b.text}; }
        std::optional<QStringList> operator()(const help::Divider&) const { return QStringList(); }

        static std::optional<QStringList> some(const QString& text) { return some(QStringList(text)); }
        static std::optional<QStringList> some(const QStringList& texts)
        {
            return texts.isEmpty() ? std::nullopt : std::optional(texts);
        }
    };
    return std::visit(Texts(), block);
}

bool isListOfNumbers(const HelpBlock& block)
{
    return std::holds_alternative<help::Numbered>(block);
}

QString faultWithBody(const QString& body)
{
    const QList<HelpBlock> blocks = parseBlocks(body);
    QString letters;
    for (const HelpBlock& block : blocks) {
        const std::optional<QStringList> texts = textsOf(block);
        if (!texts)
            return u"a block is empty"_s;
        letters += lettersOf(texts->join(QString()));
    }
    // An item whose number a tab follows keeps its text from its first space on.
    if (std::none_of(blocks.begin(), blocks.end(), isListOfNumbers) && letters != lettersOf(body))
        return u"the blocks hold other words than the body: "_s + letters;
    return {};
}

} // namespace

QString faultWithGuide(const QByteArray& document)
{
    const QList<HelpSection> sections = HelpLoader::parse(QString::fromUtf8(document));
    for (qsizetype i = 0; i < sections.size(); ++i) {
        const HelpSection& section = sections.at(i);
        if (section.id != u"sezione-%1"_s.arg(i))
            return u"a section has the wrong number: "_s + section.id;
        if (section.body.isEmpty() || section.title.startsWith("indice"_L1, Qt::CaseInsensitive))
            return u"a section should have been left out: "_s + section.title;
        if (const QString fault = faultWithBody(section.body); !fault.isEmpty())
            return fault;
    }
    // Each in an index of its own: every title in the index of all would take the square of their number.
    for (const HelpSection& section : sections) {
        HelpIndex index({section});
        index.setSearchText(section.title);
        if (index.filteredSections().isEmpty() && !section.title.isEmpty())
            return u"a title is not found: "_s + section.title;
    }
    HelpIndex index(sections);
    if (!sections.isEmpty())
        index.setSearchText(sections.last().title);
    if (index.filteredSections().isEmpty() != sections.isEmpty())
        return u"the last title is not found among all"_s;
    return {};
}

} // namespace abissora::test
