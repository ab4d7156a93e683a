// SPDX-License-Identifier: MIT
#include "InlineText.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QRandomGenerator>
#include <QTest>

using namespace abissora;

namespace {

/// Each run in brackets, with its dress before it: s for strong, e for emphasis, c for code, a link's address.
QString described(const QList<InlineRun>& runs)
{
    QString all;
    for (const InlineRun& run : runs) {
        if (run.isStrong)
            all += u's';
        if (run.isEmphasis)
            all += u'e';
        if (run.isCode)
            all += u'c';
        all += run.link.toString(QUrl::FullyEncoded) + u'{' + run.text + u'}';
    }
    return all;
}

} // namespace

class tst_InlineText : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void leavesAsItIsWritten_data();
    void leavesAsItIsWritten();
    void refusesTheLink_data();
    void refusesTheLink();
    void takesAnyText();
    void takesWhatIsVeryLong_data();
    void takesWhatIsVeryLong();
};

void tst_InlineText::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("runs");
    const auto row = [](const char* name, const char* text, const char* runs) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(runs);
    };
    row("nothing", "", "");
    row("emphasis", "un *testo* e _altro_", "{un }e{testo}{ e }e{altro}");
    row("strong emphasis", "premi **Salva**.", "{premi }s{Salva}{.}");
    row("strong emphasis, underscores", "__Salva__", "s{Salva}");
    row("both", "***Salva***", "se{Salva}");
    row("one in the other", "**a *b* c**", "s{a }se{b}s{ c}");
    row("strong at a quotation mark", "**«Salva»**", "s{«Salva»}");
    row("code", "`a b`", "c{a b}");
    row("code keeps marks", "`**a** [b](c)`", "c{**a** [b](c)}");
    row("code keeps white space", "`a   b`", "c{a   b}");
    row("a backquote in code", "`` a`b ``", "c{a`b}");
    row("link", "v. [il sito](https://abissora.example/)!", "{v. }https://abissora.example/{il sito}{!}");
    row("plain http", "[a](http://abissora.example)", "http://abissora.example{a}");
    row("upper case", "[a](HTTPS://abissora.example)", "https://abissora.example{a}");
    row("mail", "[a](mailto:ciao@abissora.example)", "mailto:ciao@abissora.example{a}");
    row("a link with a title", "[a](https://abissora.example/ \"b\")", "https://abissora.example/{a}");
    row("a strong link", "[**a**](https://abissora.example/)", "shttps://abissora.example/{a}");
    row("query and fragment", "[a](https://abissora.example/b?c=d&e=f#g)", "https://abissora.example/b?c=d&e=f#g{a}");
    row("an address in angle brackets", "<https://abissora.example/>",
        "https://abissora.example/{https://abissora.example/}");
    row("a bare address is text", "https://abissora.example/ www.abissora.example",
        "{https://abissora.example/ www.abissora.example}");
    row("escapes", "\\*a\\* \\[b\\]", "{*a* [b]}");
    row("entities", "a &amp; b &lt;c&gt; &egrave;", "{a & b <c> è}");
    row("line breaks", "a\nb", "{a\nb}");
    row("emphasis across lines", "**a\nb**", "s{a\nb}");
    row("emphasis at the ends of lines", "**a**\n**b**", "s{a}{\n}s{b}");
    row("code across lines", "`a\nb`", "c{a\nb}");
    row("a fence is a mark of code", "```\na\n```", "c{\na\n}");
    row("white space at both ends", "  a\t ", "{  a\t }");
    row("white space inside", "a   b\tc", "{a   b\tc}");
    row("white space at the ends of lines", "a  \n  b", "{a  \n  b}");
    row("a backslash at the end of a line", "a\\\nb", "{a\\\nb}");
    row("a picture is its text", "![una *bombola*](bombola.png)", "{una bombola}");
    row("a picture within a link", "[![a](b.png)](https://abissora.example/)", "{a}");
}

void tst_InlineText::reads()
{
    QFETCH(const QString, text);
    QFETCH(const QString, runs);
    QCOMPARE(described(readInline(text)), runs);
}

void tst_InlineText::leavesAsItIsWritten_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"# a",
                             "## a",
                             "- a",
                             "* a",
                             "+ a",
                             "1. a",
                             "1) a",
                             "> a",
                             "---",
                             "***",
                             "___",
                             "===",
                             "a\n===",
                             "a\n---",
                             "    a",
                             "\ta",
                             "```",

                             "~~~\na\n~~~",
                             "| a | b |\n|---|---|\n| c | d |",
                             "- [ ] a",
                             "a\n\nb",
                             "a\n- b",
                             "a\n1. b",
                             "a\n# b",
                             "a\n> b",
                             "[a]: https://abissora.example/",
                             "[a][b]",
                             "[a]",
                             "~~a~~",
                             "<b>a</b>",
                             "<script>alert(1)</script>",
                             "<img src=\"file:///a.png\">",
                             "<!-- a -->",
                             "<a href=\"https://abissora.example/\">a</a>",
                             "a <br> b",
                             "**a",
                             "a**",
                             "*a",
                             "`a",
                             "[a](b",
                             "a_b_c",
                             "2 * 3 * 4",
                             "** a **",
                             "**",
                             "****",
                             "`",
                             "[](https://abissora.example/)",
                             "![](a.png)",
                             "&nessuna;",
                             " ",
                             "\n",
                             "\\",
                             "\u2009",
                             "\u2009a\u2009"})
        QTest::newRow(qPrintable(QString::fromUtf8(text).replace(u'\n', u'|'))) << QString::fromUtf8(text);
}

void tst_InlineText::leavesAsItIsWritten()
{
    QFETCH(const QString, text);
    QCOMPARE(described(readInline(text)), u'{' + text + u'}');
}

void tst_InlineText::refusesTheLink_data()
{
    QTest::addColumn<QString>("address");
    for (const char* address : {"javascript:alert(1)",
                                "JaVaScRiPt:alert(1)",
                                "file:///etc/passwd",
                                "data:text/html,a",
                                "vbscript:a",
                                "ftp://abissora.example/",
                                "smb://abissora.example/",
                                "qrc:/guide/HELP.md",
                                ":/guide/HELP.md",
                                "HELP.md",
                                "/etc/passwd",
                                "//abissora.example/",
                                "#sezione",
                                "https:",
                                "https://",
                                "http:///etc/passwd",
                                "mailto:",
                                "about:blank",
                                "tel:118",
                                "<https://abissora.example/a b>",
                                "https://abissora.example/\u2009a",
                                "https\u200B://abissora.example/",
                                "https://[",
                                "%6Aavascript:alert(1)",
                                "&#106;avascript:alert(1)"})
        QTest::newRow(address) << QString::fromUtf8(address);
}

void tst_InlineText::refusesTheLink()
{
    QFETCH(const QString, address);
    const QList<InlineRun> runs = readInline(u"[testo](%1)"_s.arg(address));
    for (const InlineRun& run : runs)
        QVERIFY2(run.link.isEmpty(), qPrintable(run.link.toString()));
    QVERIFY(described(runs).contains(u"testo"_s));
}

/// Letters survive whatever marks stand around them: nothing that was written is lost, but for addresses.
void tst_InlineText::takesAnyText()
{
    const QStringList units{u"*"_s,  u"**"_s, u"_"_s, u"`"_s,  u"["_s,  u"]"_s, u"("_s,    u")"_s,
                            u"!"_s,  u"<"_s,  u">"_s, u"\\"_s, u"\n"_s, u" "_s, u"#"_s,    u"- "_s,
                            u"1."_s, u"~"_s,  u"|"_s, u"\t"_s, u"a"_s,  u"è"_s, u"🤿"_s, u"\u2009"_s};
    QRandomGenerator random(20261121);
    for (int i = 0; i < 3000; ++i) {
        QString text;
        for (int length = random.bounded(1, 30); length > 0; --length)
            text += units.at(random.bounded(static_cast<int>(units.size())));
        QString read;
        for (const InlineRun& run : readInline(text)) {
            QVERIFY2(!run.text.isEmpty() && run.link.isEmpty(), qPrintable(text));
            read += run.text;
        }
        const bool hasAddress = text.contains(u'(');
        QVERIFY2(hasAddress || read.count(u'a') == text.count(u'a'), qPrintable(text));
        QVERIFY2(hasAddress || read.count(u'\n') == text.count(u'\n'), qPrintable(text));
    }
}

void tst_InlineText::takesWhatIsVeryLong_data()
{
    QTest::addColumn<QString>("unit");
    for (const char* unit :
         {"*", "_", "**a", "[", "](", "![", "[a](b)", "`", "``", "<", "&", "\\", "*a _b ", "\n", "<a "})
        QTest::newRow(unit) << QString::fromUtf8(unit);
}

void tst_InlineText::takesWhatIsVeryLong()
{
    QFETCH(const QString, unit);
    constexpr int times = 2000;
    QVERIFY(!readInline(unit.repeated(times)).isEmpty());
}

ABISSORA_TEST(tst_InlineText);
#include "tst_InlineText.moc"
