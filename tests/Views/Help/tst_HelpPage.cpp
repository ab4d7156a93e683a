// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "HelpPageWriter.h"
#include "ShownPage.h"
#include "Tokens.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

QColor inkOf(const HelpPage& page, const QString& text)
{
    return at(page, text).charFormat().foreground().color();
}

} // namespace

class tst_HelpPage : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ComponentTest::initTestCase();
        m_font = QApplication::font();
    }
    void cleanup()
    {
        applyTheme(*qApp, Scheme::Light);
        QApplication::setFont(m_font);
    }

    void everythingIsCopiedAsItReads();
    void aSelectionGoesAcrossBlocks();
    void blocksHaveTheirBackdrops();
    void textsHaveTheirDress();
    void htmlIsText();
    void picturesAreNeverLoaded();
    void aLinkIsOpenedByAClick();
    void aLinkIsOpenedByTheKeyboard();
    void aLinkThatNothingOpensIsTold();
    void hostileLinksAreText();
    void theSchemeSwitchesLive();
    void theTextSizeFollowsTheApplication();
    void anotherSectionIsShownFromItsTop();
    void theSameSectionStaysWhereItIs();
    void nothingIsWiderThanThePage_data();
    void nothingIsWiderThanThePage();
    void linesOfAWidePageStayReadable();

private:
    QFont m_font;
};

void tst_HelpPage::everythingIsCopiedAsItReads()
{
    ShownPage shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    QTest::keySequence(&shown.page, QKeySequence::SelectAll);
    QTest::keySequence(&shown.page, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Titolo\n"
                                                   "Un testo in grassetto\n"
                                                   "su due righe.\n"
                                                   "Passi\n"
                                                   "1. Primo\n"
                                                   "2. Secondo\n"
                                                   "3. Terzo con codice\n"
                                                   "Una citazione.\n"
                                                   "• Uno\n"
                                                   "• Due\n"
                                                   "\n"
                                                   "**uno**\n"
                                                   "due"_s);
}

void tst_HelpPage::aSelectionGoesAcrossBlocks()
{
    ShownPage shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    const QRect first = shown.page.cursorRect(at(shown.page, u"Primo"_s));
    const QRect last = shown.page.cursorRect(at(shown.page, u"Due"_s));
    QWidget* const viewport = shown.page.viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, QPoint(35, first.center().y()));
    QTest::mouseMove(viewport, last.center());
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, last.center());
    shown.page.copy();
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY2(copied.contains(u"2. Secondo\n3. Terzo con codice\nUna citazione.\n• Uno"_s), qPrintable(copied));
}

void tst_HelpPage::blocksHaveTheirBackdrops()
{
    const ShownPage shown(QString::fromUtf8(everyKind));
    using help::Backdrop;
    QList<Backdrop> backdrops;
    for (QTextBlock block = shown.page.document()->begin(); block.isValid(); block = block.next())
        backdrops.append(help::backdropOf(block));
    const QList<Backdrop> expected{Backdrop::None, Backdrop::None, Backdrop::AccentBar,  Backdrop::None,
                                   Backdrop::None, Backdrop::None, Backdrop::QuotePanel, Backdrop::None,
                                   Backdrop::None, Backdrop::Rule, Backdrop::CodePanel};
    QCOMPARE(backdrops, expected);
}

void tst_HelpPage::textsHaveTheirDress()
{
    const ShownPage shown(QString::fromUtf8(everyKind));
    const Tokens& tokens = Tokens::of(Scheme::Light);
    const auto format = [&](const char* text) { return at(shown.page, QString::fromUtf8(text)).charFormat(); };
    QVERIFY(format("testo").fontItalic());
    QCOMPARE(format("grassetto").fontWeight(), static_cast<int>(QFont::Bold));
    QCOMPARE(format("Passi").fontWeight(), static_cast<int>(QFont::DemiBold));
    QCOMPARE(format("2.").fontWeight(), static_cast<int>(QFont::DemiBold));
    QVERIFY(format("codice").font().families() != format("Terzo").font().families());
    QCOMPARE(inkOf(shown.page, u"2."_s), tokens.named(NamedColor::blue));
    QCOMPARE(inkOf(shown.page, u"•"_s), tokens.named(NamedColor::blue));
    QCOMPARE(inkOf(shown.page, u"Una "_s), tokens.secondaryText);
    QCOMPARE(inkOf(shown.page, u"citazione"_s), tokens.accentInk);
    QVERIFY(format("Una ").font().pointSizeF() < format("Primo").font().pointSizeF());
    QVERIFY(format("Titolo").font().pointSizeF() > format("Passi").font().pointSizeF());
}

void tst_HelpPage::htmlIsText()
{
    const QString html = u"<b>a</b> <script>alert(1)</script> <img src=\"x.png\"> &lt;i&gt;"_s;
    const ShownPage shown(html);
    QVERIFY(shown.page.toPlainText().contains(u"<b>a</b> <script>alert(1)</script> <img src=\"x.png\"> <i>"_s));
}

void tst_HelpPage::picturesAreNeverLoaded()
{
    ShownPage shown(u"![una bombola](:/appicon/abissora.svg)\n\n- ![](file:///a.png)\n\n<img src=\"b.png\">"_s);
    test::activate(shown.page);
    QVERIFY(!shown.page.toPlainText().contains(QChar::ObjectReplacementCharacter));
    QVERIFY(shown.page.toPlainText().contains(u"una bombola"_s));
    QVERIFY(!shown.page.loadResource(QTextDocument::ImageResource, QUrl(u":/appicon/abissora.svg"_s)).isValid());
}

void tst_HelpPage::aLinkIsOpenedByAClick()
{
    ShownPage shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    const QPoint link = shown.page.cursorRect(at(shown.page, u"cita"_s)).center();
    QTest::mouseClick(shown.page.viewport(), Qt::LeftButton, {}, link);
    QCOMPARE(shown.opener.opened(), QList<QUrl>{QUrl(u"https://abissora.example/a?b=c&d=e"_s)});
    QVERIFY2(shown.page.toPlainText().startsWith(u"Titolo"_s), "the page itself goes nowhere");
}

void tst_HelpPage::aLinkIsOpenedByTheKeyboard()
{
    ShownPage shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    shown.page.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&shown.page, Qt::Key_Tab);
    QTest::keyClick(&shown.page, Qt::Key_Return);
    QCOMPARE(shown.opener.opened(), QList<QUrl>{QUrl(u"https://abissora.example/a?b=c&d=e"_s)});
}

void tst_HelpPage::aLinkThatNothingOpensIsTold()
{
    ShownPage shown(QString::fromUtf8(everyKind));
    shown.opener.succeed(false);
    test::activate(shown.page);
    const QPoint link = shown.page.cursorRect(at(shown.page, u"cita"_s)).center();
    QTest::mouseClick(shown.page.viewport(), Qt::LeftButton, {}, link);
    const auto notices = shown.page.findChildren<Alert*>();
    QCOMPARE(notices.size(), 1);
    QVERIFY(notices.first()->isVisible());
    QVERIFY(notices.first()->message().contains("https://abissora.example/a?b=c&d=e"_L1));
}

void tst_HelpPage::hostileLinksAreText()
{
    ShownPage shown(u"[uno](javascript:alert(1)) [due](file:///etc/passwd)\n\n- [tre](data:text/html,a)\n"
                    "1. [quattro](HELP.md)\n> [cinque](qrc:/a)"_s);
    test::activate(shown.page);
    for (const char* text : {"uno", "due", "tre", "quattro", "cinque"}) {
        const QTextCursor link = at(shown.page, QString::fromUtf8(text));
        QVERIFY(!link.isNull());
        QVERIFY(!link.charFormat().isAnchor());
        QTest::mouseClick(shown.page.viewport(), Qt::LeftButton, {}, shown.page.cursorRect(link).center());
    }
    QVERIFY(shown.opener.opened().isEmpty());
}

void tst_HelpPage::theSchemeSwitchesLive()
{
    ShownPage shown(QString::fromUtf8(everyKind) + manyParagraphs());
    test::activate(shown.page);
    QTextCursor selected = at(shown.page, u"Terzo"_s);
    shown.page.setTextCursor(selected);
    shown.page.verticalScrollBar()->setValue(70);
    applyTheme(*qApp, Scheme::Dark);
    QTRY_COMPARE(inkOf(shown.page, u"citazione"_s), Tokens::of(Scheme::Dark).accentInk);
    QCOMPARE(shown.page.textCursor().selectedText(), u"Terzo"_s);
    QCOMPARE(shown.page.verticalScrollBar()->value(), 70);

    ShownPage fresh(QString::fromUtf8(everyKind) + manyParagraphs());
    fresh.page.setTextCursor(at(fresh.page, u"Terzo"_s));
    test::activate(fresh.page);
    fresh.page.verticalScrollBar()->setValue(70);
    QCOMPARE(shown.page.viewport()->grab().toImage(), fresh.page.viewport()->grab().toImage());
}

void tst_HelpPage::theTextSizeFollowsTheApplication()
{
    ShownPage shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    const auto size = [&] { return at(shown.page, u"Primo"_s).charFormat().font().pointSizeF(); };
    const qreal before = size();
    QFont larger = m_font;
    larger.setPointSizeF(m_font.pointSizeF() * 1.5);
    QApplication::setFont(larger);
    QTRY_COMPARE(size(), before * 1.5);
    QApplication::setFont(m_font);
    QTRY_COMPARE(size(), before);
}

void tst_HelpPage::anotherSectionIsShownFromItsTop()
{
    ShownPage shown(manyParagraphs());
    test::activate(shown.page);
    shown.page.selectAll();
    shown.page.verticalScrollBar()->setValue(200);
    shown.page.setSection({u"sezione-1"_s, u"Altro"_s, manyParagraphs()});
    QCOMPARE(shown.page.verticalScrollBar()->value(), 0);
    QVERIFY(!shown.page.textCursor().hasSelection());
    QVERIFY(shown.page.toPlainText().startsWith(u"Altro\n"_s));
}

void tst_HelpPage::theSameSectionStaysWhereItIs()
{
    ShownPage shown(manyParagraphs());
    test::activate(shown.page);
    shown.page.verticalScrollBar()->setValue(200);
    shown.page.setSection(section(manyParagraphs()));
    QCOMPARE(shown.page.verticalScrollBar()->value(), 200);
}

void tst_HelpPage::nothingIsWiderThanThePage_data()
{
    QTest::addColumn<QString>("body");
    const QString word = QString(400, u'm');
    QTest::newRow("a long word") << word;
    QTest::newRow("a long subheading") << u"### "_s + word;
    QTest::newRow("a long item") << u"- "_s + word;
    QTest::newRow("a long quote") << u"> "_s + word;
    QTest::newRow("a long line of code") << u"```\n"_s + word + u"\n```"_s;
    QTest::newRow("a long code span") << u'`' + word + u'`';
    QTest::newRow("a thousand items") << u"1. a\n"_s.repeated(1000);
}

void tst_HelpPage::nothingIsWiderThanThePage()
{
    QFETCH(const QString, body);
    ShownPage shown(body);
    test::activate(shown.page);
    QCOMPARE(shown.page.horizontalScrollBar()->maximum(), 0);
    QVERIFY(shown.page.document()->idealWidth() <= shown.page.viewport()->width());
}

void tst_HelpPage::linesOfAWidePageStayReadable()
{
    ShownPage shown(u"parola "_s.repeated(400));
    shown.page.resize(1600, 600);
    test::activate(shown.page);
    const QTextLayout& lines = *shown.page.document()->begin().next().layout();
    QVERIFY(lines.lineCount() > 1);
    QVERIFY(lines.lineAt(0).naturalTextWidth() > 600);
    QVERIFY(lines.boundingRect().width() < 780);
    QCOMPARE(shown.page.horizontalScrollBar()->maximum(), 0);
}

ABISSORA_TEST(tst_HelpPage);
#include "tst_HelpPage.moc"
