// SPDX-License-Identifier: MIT
#include "HelpBlockParser.h"
#include "HelpLoader.h"
#include "InlineText.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace abissora;

namespace {

/// A block's texts with inline markup.
QStringList markedTexts(const HelpBlock& block)
{
    struct Texts
    {
        QStringList operator()(const help::Paragraph& b) const { return {b.text}; }
        QStringList operator()(const help::Bullets& b) const { return b.items; }
        QStringList operator()(const help::Numbered& b) const { return b.items; }
        QStringList operator()(const help::Quote& b) const { return {b.text}; }
        QStringList operator()(const help::Subheading&) const { return {}; }
        QStringList operator()(const help::Code&) const { return {}; }
        QStringList operator()(const help::Divider&) const { return {}; }
    };
    return std::visit(Texts(), block);
}

QList<InlineRun> allRuns()
{
    QList<InlineRun> runs;
    for (const HelpSection& section : HelpLoader::load()) {
        for (const HelpBlock& block : parseBlocks(section.body)) {
            for (const QString& text : markedTexts(block))
                runs += readInline(text);
        }
    }
    return runs;
}

/// The string literals of one source file; those that follow each other are one.
QStringList literalsOf(const QString& source)
{
    static const QRegularExpression comment(u"^\\s*//.*$"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression literals(u"\"((?:[^\"\\\\\\n]|\\\\.)*)\"(\\s*)"_s);
    QString code = source;
    code.remove(comment);
    QStringList found;
    qsizetype end = -1;
    for (const QRegularExpressionMatch& match : literals.globalMatch(code)) {
        const QString text = match.captured(1).replace("\\\""_L1, "\""_L1);
        if (match.capturedStart() == end)
            found.last() += text;
        else
            found.append(text);
        end = match.capturedEnd();
    }
    return found;
}

QSet<QString> programTexts()
{
    QSet<QString> texts;
    QDirIterator files(QStringLiteral(PROGRAM_SOURCES), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(file.fileName()));
        for (const QString& text : literalsOf(QString::fromUtf8(file.readAll())))
            texts.insert(QString(text).remove(u'&')); // mnemonics
    }
    return texts;
}

} // namespace

/// The guide that comes with the program. Strong emphasis in it quotes a text of the screens, letter by letter.
class tst_Guide : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsSections();
    void usesEveryKindOfBlock();
    void quotesTheScreensExactly_data();
    void quotesTheScreensExactly();
    void leavesNoMarkupUnread();
    void namesNoRawHtml();
};

void tst_Guide::hasItsSections()
{
    QSet<QString> titles;
    const QList<HelpSection> sections = HelpLoader::load();
    for (const HelpSection& section : sections)
        titles.insert(section.title);
    QVERIFY(sections.size() >= 12);
    QCOMPARE(titles.size(), sections.size());
    QVERIFY(!titles.contains(u"Guida non disponibile"_s));
    QVERIFY2(!titles.contains(u"Introduzione"_s), "nothing stands before the first heading");
}

void tst_Guide::usesEveryKindOfBlock()
{
    QSet<std::size_t> kinds;
    for (const HelpSection& section : HelpLoader::load()) {
        for (const HelpBlock& block : parseBlocks(section.body))
            kinds.insert(block.index());
    }
    QCOMPARE(kinds.size(), static_cast<qsizetype>(std::variant_size_v<HelpBlock>));
}

void tst_Guide::quotesTheScreensExactly_data()
{
    QTest::addColumn<QString>("quoted");
    QSet<QString> known;
    for (const InlineRun& run : allRuns()) {
        if (run.isStrong && !known.contains(run.text)) {
            known.insert(run.text);
            QTest::newRow(qPrintable(run.text)) << run.text;
        }
    }
}

void tst_Guide::quotesTheScreensExactly()
{
    QFETCH(const QString, quoted);
    static const QSet<QString> texts = programTexts();
    QVERIFY2(texts.contains(quoted), "no text of the program reads like this");
}

void tst_Guide::leavesNoMarkupUnread()
{
    for (const InlineRun& run : allRuns()) {
        if (!run.isCode)
            QVERIFY2(!run.text.contains(QRegularExpression(u"[*`_\\]\\[]"_s)), qPrintable(run.text));
    }
}

void tst_Guide::namesNoRawHtml()
{
    for (const InlineRun& run : allRuns())
        QVERIFY2(!run.text.contains(QRegularExpression(u"</?[a-z]"_s)), qPrintable(run.text));
}

ABISSORA_TEST(tst_Guide);
#include "tst_Guide.moc"
