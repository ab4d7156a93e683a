// SPDX-License-Identifier: MIT
#include "HelpBlockParser.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QString described(const HelpBlock& block)
{
    struct Description
    {
        QString operator()(const help::Subheading& b) const { return u"subheading:"_s + b.text; }
        QString operator()(const help::Paragraph& b) const { return u"paragraph:"_s + b.text; }
        QString operator()(const help::Bullets& b) const { return u"bullets:"_s + joined(b.items); }
        QString operator()(const help::Numbered& b) const { return u"numbered:"_s + joined(b.items); }
        QString operator()(const help::Quote& b) const { return u"quote:"_s + b.text; }
        QString operator()(const help::Code& b) const { return u"code:"_s + b.text; }
        QString operator()(const help::Divider&) const { return u"divider"_s; }
        static QString joined(const QStringList& items) { return items.join(u'|'); }
    };
    return std::visit(Description(), block);
}

} // namespace

class tst_HelpBlockParser : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheBlocks_data();
    void findsTheBlocks();
    void blocksAreValues();
    void theKindsComeInTheirOrder();
};

void tst_HelpBlockParser::findsTheBlocks_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QStringList>("blocks");
    const auto row = [](const char* name, const char* body, std::initializer_list<const char*> blocks) {
        QStringList expected;
        for (const char* block : blocks)
            expected.append(QString::fromUtf8(block));
        QTest::newRow(name) << QString::fromUtf8(body) << expected;
    };
    row("nothing", "", {});
    row("empty lines", "\n \t\n\n", {});

    row("divider", "---", {"divider"});
    row("indented divider", " \t--- ", {"divider"});
    row("two dividers", "---\n---", {"divider", "divider"});
    row("four hyphens", "----", {"paragraph:----"});
    row("hyphens without a blank", "--nota", {"paragraph:--nota"});
    row("two hyphens", "--", {"paragraph:--"});

    row("subheading", "### Uno", {"subheading:Uno"});
    row("what follows is not trimmed again", "###   Uno", {"subheading:  Uno"});
    row("no blank after the signs", "###Uno", {"paragraph:###Uno"});
    row("the signs alone", "### ", {"paragraph:###"});
    row("four signs", "#### Uno", {"paragraph:#### Uno"});
    row("two signs", "## Uno", {"paragraph:## Uno"});

    row("code", "```\nuno\ndue\n```", {"code:uno\ndue"});
    row("code loses its indentation", "```\n  x = 1\n\ty\n```", {"code:x = 1\ny"});
    row("code keeps its empty lines", "```\n\na\n\n```", {"code:\na\n"});
    row("code keeps other markup", "```\n- a\n> b\n### c\n---\n1. d\n```", {"code:- a\n> b\n### c\n---\n1. d"});
    row("empty code", "```\n```", {"code:"});
    row("one empty line of code", "```\n\n```", {"code:"});
    row("unclosed code takes the rest", "```\na\n\nb", {"code:a\n\nb"});
    row("an open fence at the end", "a\n```", {"paragraph:a", "code:"});
    row("a fence with a language is text", "```cpp\nx\n```\ny", {"paragraph:```cpp\nx", "code:y"});
    row("four backquotes are text", "````\na", {"paragraph:````\na"});
    row("an indented fence", "  ```\na\n\t```\nb", {"code:a", "paragraph:b"});

    row("quote", "> Uno", {"quote:Uno"});
    row("each quoted line alone", "> Uno\n> Due", {"quote:Uno", "quote:Due"});
    row("a quote keeps further blanks", ">  Uno", {"quote: Uno"});
    row("a quote needs its blank", ">Uno\n>", {"paragraph:>Uno\n>"});

    row("bullets", "- a\n- b", {"bullets:a|b"});
    row("an empty line ends the list", "- a\n- b\n\n- c", {"bullets:a|b", "bullets:c"});
    row("any other line ends the list", "- a\nb\n- c", {"bullets:a", "paragraph:b", "bullets:c"});
    row("indented bullets are bullets", "- a\n  - b", {"bullets:a|b"});
    row("a hyphen alone", "-\n- ", {"paragraph:-\n-"});
    row("a bullet of nested marks", "- - a", {"bullets:- a"});
    row("other bullet marks are text", "* a\n+ b", {"paragraph:* a\n+ b"});

    row("numbers of any width", "1. Primo\n12. Dodicesimo", {"numbered:Primo|Dodicesimo"});
    row("numbers in any order", "3. a\n7. b\n9. c", {"numbered:a|b|c"});
    row("a bracket numbers nothing", "1) Primo", {"paragraph:1) Primo"});
    row("no white space", "1.Primo\n2.", {"paragraph:1.Primo\n2."});
    row("two full stops", "1.. a", {"paragraph:1.. a"});
    row("further blanks stay", "1.  a", {"numbered: a"});
    row("a tab: the text from its first space on", "1.\tPrimo passo", {"numbered:passo"});
    row("a tab and no space", "1.\tPrimo", {"numbered:"});
    row("a no-break space is white space", "1.\u00A0Primo passo", {"numbered:passo"});
    row("digits of any script", "\u0661. a", {"numbered:a"});
    row("letters number nothing", "a. b", {"paragraph:a. b"});
    row("a number of many digits", "123456789012345678901234567890. a", {"numbered:a"});
    row("numbers end at an empty line", "1. a\n\n2. b", {"numbered:a", "numbered:b"});
    row("bullets and numbers do not mix", "- a\n1. b\n- c", {"bullets:a", "numbered:b", "bullets:c"});

    row("a paragraph keeps its line breaks", "Riga uno\nRiga due", {"paragraph:Riga uno\nRiga due"});
    row("its lines are trimmed", "  uno \n\tdue\t", {"paragraph:uno\ndue"});
    row("a no-break space is no blank line", "a\n\u00A0\nb", {"paragraph:a\n\u00A0\nb"});
    row("an empty line ends it", "a\n\nb", {"paragraph:a", "paragraph:b"});
    row("every other block ends it", "a\n---\nb\n### c\nd\n```\ne\n```\nf\n> g\nh\n- i\nj\n1. k\nl",
        {"paragraph:a", "divider", "paragraph:b", "subheading:c", "paragraph:d", "code:e", "paragraph:f", "quote:g",
         "paragraph:h", "bullets:i", "paragraph:j", "numbered:k", "paragraph:l"});
    row("inline markup is left alone", "**a** [b](c)\n- `d`", {"paragraph:**a** [b](c)", "bullets:`d`"});

    row("a CR LF pair ends two lines", "a\r\nb\r\n- c\r\n- d",
        {"paragraph:a", "paragraph:b", "bullets:c", "bullets:d"});
    row("every newline ends a line", "- a\r- b\u000B- c\f- d\u0085- e\u2028- f\u2029- g", {"bullets:a|b|c|d|e|f|g"});
}

void tst_HelpBlockParser::findsTheBlocks()
{
    QFETCH(const QString, body);
    QFETCH(const QStringList, blocks);
    QStringList found;
    for (const HelpBlock& block : parseBlocks(body))
        found.append(described(block));
    QCOMPARE(found, blocks);
}

void tst_HelpBlockParser::blocksAreValues()
{
    const QString a = u"a"_s;
    QCOMPARE(HelpBlock(help::Quote{a}), HelpBlock(help::Quote{a}));
    QVERIFY(HelpBlock(help::Quote{a}) != HelpBlock(help::Quote{u"b"_s}));
    QVERIFY(HelpBlock(help::Quote{a}) != HelpBlock(help::Paragraph{a}));
    QVERIFY(HelpBlock(help::Bullets{{a}}) != HelpBlock(help::Numbered{{a}}));
    QCOMPARE(HelpBlock(help::Divider{}), HelpBlock(help::Divider{}));
}

void tst_HelpBlockParser::theKindsComeInTheirOrder()
{
    QCOMPARE(HelpBlock(help::Subheading{}).index(), std::size_t(0));
    QCOMPARE(HelpBlock(help::Paragraph{}).index(), std::size_t(1));
    QCOMPARE(HelpBlock(help::Bullets{}).index(), std::size_t(2));
    QCOMPARE(HelpBlock(help::Numbered{}).index(), std::size_t(3));
    QCOMPARE(HelpBlock(help::Quote{}).index(), std::size_t(4));
    QCOMPARE(HelpBlock(help::Code{}).index(), std::size_t(5));
    QCOMPARE(HelpBlock(help::Divider{}).index(), std::size_t(6));
}

ABISSORA_TEST(tst_HelpBlockParser);
#include "tst_HelpBlockParser.moc"
