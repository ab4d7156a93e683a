// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "ComponentTest.h"
#include "Fakes.h"
#include "HelpPage.h"
#include "HelpPageWriter.h"
#include "Literals.h"
#include "Tokens.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

using namespace abissora;

namespace {

const char* const everyKind = "Un *testo* in **grassetto**\nsu due righe.\n"
                              "### Passi\n"
                              "3. Primo\n"
                              "7. Secondo\n"
                              "9. Terzo con `codice`\n"
                              "> Una [citazione](https://abissora.example/a?b=c&d=e).\n"
                              "- Uno\n"
                              "- Due\n"
                              "---\n"
                              "```\n"
                              "**uno**\n"
                              "due\n"
                              "```\n";

HelpSection section(const QString& body)
{
    return {u"sezione-0"_s, u"Titolo"_s, body};
}

QString manyParagraphs()
{
    return u"Una riga di testo.\n\n"_s.repeated(80);
}

struct Shown
{
    explicit Shown(const QString& body)
        : page(opener)
    {
        page.resize(600, 400);
        page.setSection(section(body));
    }

    test::RecordingOpener opener;
    HelpPage page;
};

QTextCursor at(const HelpPage& page, const QString& text)
{
    return page.document()->find(text, 0, QTextDocument::FindCaseSensitively);
}

QColor inkOf(const HelpPage& page, const QString& text)
{
    return at(page, text).charFormat().foreground().color();
}

void sendKey(HelpPage& page, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(&page, static_cast<Qt::Key>(key), modifiers);
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
    void theKeysMoveTheCaret_data();
    void theKeysMoveTheCaret();
    void theCaretIsSeen();
    void whatWasSearchedIsMarked_data();
    void whatWasSearchedIsMarked();
    void theFirstMatchComesIntoView();
    void shiftedKeysSelect();
    void escapeIsLeftToOthers();
    void anotherSectionIsShownFromItsTop();
    void theSameSectionStaysWhereItIs();
    void nothingIsWiderThanThePage_data();
    void nothingIsWiderThanThePage();
    void linesOfAWidePageStayReadable();
    void itIsReadAsTextWithTheSectionsName();
    void itIsADocumentWithLinks();
    void itsTextIsReadAndSelectedFromOutside();

private:
    QFont m_font;
};

void tst_HelpPage::everythingIsCopiedAsItReads()
{
    Shown shown(QString::fromUtf8(everyKind));
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
    Shown shown(QString::fromUtf8(everyKind));
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
    const Shown shown(QString::fromUtf8(everyKind));
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
    const Shown shown(QString::fromUtf8(everyKind));
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
    const Shown shown(html);
    QVERIFY(shown.page.toPlainText().contains(u"<b>a</b> <script>alert(1)</script> <img src=\"x.png\"> <i>"_s));
}

void tst_HelpPage::picturesAreNeverLoaded()
{
    Shown shown(u"![una bombola](:/appicon/abissora.svg)\n\n- ![](file:///a.png)\n\n<img src=\"b.png\">"_s);
    test::activate(shown.page);
    QVERIFY(!shown.page.toPlainText().contains(QChar::ObjectReplacementCharacter));
    QVERIFY(shown.page.toPlainText().contains(u"una bombola"_s));
    QVERIFY(!shown.page.loadResource(QTextDocument::ImageResource, QUrl(u":/appicon/abissora.svg"_s)).isValid());
}

void tst_HelpPage::aLinkIsOpenedByAClick()
{
    Shown shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    const QPoint link = shown.page.cursorRect(at(shown.page, u"cita"_s)).center();
    QTest::mouseClick(shown.page.viewport(), Qt::LeftButton, {}, link);
    QCOMPARE(shown.opener.opened(), QList<QUrl>{QUrl(u"https://abissora.example/a?b=c&d=e"_s)});
    QVERIFY2(shown.page.toPlainText().startsWith(u"Titolo"_s), "the page itself goes nowhere");
}

void tst_HelpPage::aLinkIsOpenedByTheKeyboard()
{
    Shown shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    shown.page.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&shown.page, Qt::Key_Tab);
    QTest::keyClick(&shown.page, Qt::Key_Return);
    QCOMPARE(shown.opener.opened(), QList<QUrl>{QUrl(u"https://abissora.example/a?b=c&d=e"_s)});
}

void tst_HelpPage::aLinkThatNothingOpensIsTold()
{
    Shown shown(QString::fromUtf8(everyKind));
    shown.opener.succeed(false);
    test::activate(shown.page);
    const QPoint link = shown.page.cursorRect(at(shown.page, u"cita"_s)).center();
    QTest::mouseClick(shown.page.viewport(), Qt::LeftButton, {}, link);
    const auto* notice = shown.page.findChild<Alert*>();
    QVERIFY(notice != nullptr && notice->isVisible());
    QVERIFY(notice->message().contains("https://abissora.example/a?b=c&d=e"_L1));
}

void tst_HelpPage::hostileLinksAreText()
{
    Shown shown(u"[uno](javascript:alert(1)) [due](file:///etc/passwd)\n\n- [tre](data:text/html,a)\n"
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
    Shown shown(QString::fromUtf8(everyKind) + manyParagraphs());
    test::activate(shown.page);
    QTextCursor selected = at(shown.page, u"Terzo"_s);
    shown.page.setTextCursor(selected);
    shown.page.verticalScrollBar()->setValue(70);
    applyTheme(*qApp, Scheme::Dark);
    QTRY_COMPARE(inkOf(shown.page, u"citazione"_s), Tokens::of(Scheme::Dark).accentInk);
    QCOMPARE(shown.page.textCursor().selectedText(), u"Terzo"_s);
    QCOMPARE(shown.page.verticalScrollBar()->value(), 70);

    Shown fresh(QString::fromUtf8(everyKind) + manyParagraphs());
    fresh.page.setTextCursor(at(fresh.page, u"Terzo"_s));
    test::activate(fresh.page);
    fresh.page.verticalScrollBar()->setValue(70);
    QCOMPARE(shown.page.viewport()->grab().toImage(), fresh.page.viewport()->grab().toImage());
}

void tst_HelpPage::theTextSizeFollowsTheApplication()
{
    Shown shown(QString::fromUtf8(everyKind));
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

void tst_HelpPage::theKeysMoveTheCaret_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("least"); // blocks that the caret moves at least
    QTest::addColumn<int>("most");
    const auto row = [](const char* name, Qt::Key key, int least, int most, Qt::KeyboardModifiers modifiers = {}) {
        QTest::newRow(name) << static_cast<int>(key) << static_cast<int>(modifiers) << least << most;
    };
    row("down", Qt::Key_Down, 1, 1);
    row("up", Qt::Key_Up, -1, -1);
    row("page down", Qt::Key_PageDown, 5, 20);
    row("page up", Qt::Key_PageUp, -20, -5);
    row("space", Qt::Key_Space, 5, 20);
    row("shift and space", Qt::Key_Space, -20, -5, Qt::ShiftModifier);
    row("to the end", Qt::Key_End, 40, 40, Qt::ControlModifier);
    row("to the start", Qt::Key_Home, -40, -40, Qt::ControlModifier);
    row("end of the line", Qt::Key_End, 0, 0);
}

void tst_HelpPage::theKeysMoveTheCaret()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const int, least);
    QFETCH(const int, most);
    Shown shown(manyParagraphs());
    test::activate(shown.page);
    QTextCursor middle(shown.page.document()->findBlockByNumber(40));
    middle.movePosition(QTextCursor::Right);
    shown.page.setTextCursor(middle);
    sendKey(shown.page, key, static_cast<Qt::KeyboardModifiers>(modifiers));
    const QTextCursor caret = shown.page.textCursor();
    const int moved = caret.blockNumber() - 40;
    QVERIFY2(moved >= least && moved <= most, qPrintable(QString::number(moved)));
    QVERIFY(caret.position() != middle.position());
    QVERIFY(!caret.hasSelection());
    QVERIFY(shown.page.viewport()->rect().contains(shown.page.cursorRect().center()));
}

void tst_HelpPage::theCaretIsSeen()
{
    Shown shown(manyParagraphs());
    test::activate(shown.page);
    sendKey(shown.page, Qt::Key_Down);
    sendKey(shown.page, Qt::Key_End);
    const QRect caret = shown.page.cursorRect();
    const QColor ink = shown.page.viewport()->grab().toImage().pixelColor(caret.left(), caret.center().y());
    const QColor ground = Tokens::of(Scheme::Light).window;
    QVERIFY2(ink.lightness() < ground.lightness() - 100, qPrintable(ink.name()));
}

void tst_HelpPage::whatWasSearchedIsMarked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("blanks") << u"  "_s << 0;
    QTest::newRow("everywhere") << u"o"_s << -1;
    QTest::newRow("letter case") << u" GRASSETTO "_s << 1;
    QTest::newRow("in the title") << u"titolo"_s << 1;
    QTest::newRow("in code") << u"**uno**"_s << 1;
    QTest::newRow("in a link") << u"citazione"_s << 1;
    QTest::newRow("only in the markup") << u"**grassetto**"_s << 0;
}

void tst_HelpPage::whatWasSearchedIsMarked()
{
    QFETCH(const QString, text);
    QFETCH(const int, count);
    Shown shown(QString::fromUtf8(everyKind));
    shown.page.setSearchText(text);
    if (count < 0) // as often as the page has it
        QCOMPARE(shown.page.extraSelections().size(), shown.page.toPlainText().count(u'o', Qt::CaseInsensitive));
    else
        QCOMPARE(shown.page.extraSelections().size(), qsizetype(count));
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        applyTheme(*qApp, scheme);
        test::activate(shown.page);
        for (const auto& mark : shown.page.extraSelections()) {
            QVERIFY(mark.cursor.hasSelection());
            QCOMPARE(mark.format.background().color(), Tokens::of(scheme).match);
            QCOMPARE(mark.format.foreground().color(), Tokens::of(scheme).text);
        }
    }
    applyTheme(*qApp, Scheme::Light);
    shown.page.setSearchText({});
    QVERIFY(shown.page.extraSelections().isEmpty());
}

void tst_HelpPage::theFirstMatchComesIntoView()
{
    Shown shown(manyParagraphs() + u"In fondo uno scontrino."_s);
    test::activate(shown.page);
    shown.page.setSearchText(u"riga"_s);
    QCOMPARE(shown.page.verticalScrollBar()->value(), 0);
    shown.page.setSearchText(u"scontrino"_s);
    QVERIFY(shown.page.verticalScrollBar()->value() > 0);
    QCOMPARE(shown.page.textCursor().position(), 0);
    shown.page.goToFirstMatch();
    QCOMPARE(shown.page.textCursor().position(), at(shown.page, u"scontrino"_s).selectionStart());
}

void tst_HelpPage::shiftedKeysSelect()
{
    Shown shown(manyParagraphs());
    test::activate(shown.page);
    sendKey(shown.page, Qt::Key_Down, Qt::ShiftModifier);
    sendKey(shown.page, Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(shown.page.textCursor().selectedText().startsWith(u"Titolo\u2029Una riga di testo.\u2029"_s));
    QCOMPARE(shown.page.verticalScrollBar()->value(), 0);
}

void tst_HelpPage::escapeIsLeftToOthers()
{
    Shown shown(manyParagraphs());
    test::activate(shown.page);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&shown.page, &escape);
    QVERIFY(!escape.isAccepted());
}

void tst_HelpPage::anotherSectionIsShownFromItsTop()
{
    Shown shown(manyParagraphs());
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
    Shown shown(manyParagraphs());
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
    Shown shown(body);
    test::activate(shown.page);
    QCOMPARE(shown.page.horizontalScrollBar()->maximum(), 0);
    QVERIFY(shown.page.document()->idealWidth() <= shown.page.viewport()->width());
}

void tst_HelpPage::linesOfAWidePageStayReadable()
{
    Shown shown(u"parola "_s.repeated(400));
    shown.page.resize(1600, 600);
    test::activate(shown.page);
    const QTextLayout& lines = *shown.page.document()->begin().next().layout();
    QVERIFY(lines.lineCount() > 1);
    QVERIFY(lines.lineAt(0).naturalTextWidth() > 600);
    QVERIFY(lines.boundingRect().width() < 780);
    QCOMPARE(shown.page.horizontalScrollBar()->maximum(), 0);
}

void tst_HelpPage::itIsReadAsTextWithTheSectionsName()
{
    Shown shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    QCOMPARE(nameOf(shown.page), u"Titolo"_s);
    QAccessibleInterface* const page = QAccessible::queryAccessibleInterface(&shown.page);
    QVERIFY(page->textInterface() != nullptr);
    const QString text = page->textInterface()->text(0, page->textInterface()->characterCount());
    QVERIFY2(text.contains(u"2.\tSecondo"_s), qPrintable(text));
}

void tst_HelpPage::itIsADocumentWithLinks()
{
    Shown shown(
        u"Vedi [la *prima* pagina](https://abissora.example/a) e **poi** [altro](https://abissora.example/b)."_s);
    test::activate(shown.page);
    shown.page.setFocus();
    QAccessibleInterface* const page = QAccessible::queryAccessibleInterface(&shown.page);
    QCOMPARE(page->role(), QAccessible::Document);
    QVERIFY(page->state().readOnly && page->state().focusable);
    QCOMPARE(page->childCount(), 2);
    QAccessibleInterface* const link = page->child(0);
    QCOMPARE(link->role(), QAccessible::Link);
    QCOMPARE(link->text(QAccessible::Name), u"la prima pagina"_s);
    QCOMPARE(link->text(QAccessible::Description), u"https://abissora.example/a"_s);
    QCOMPARE(link->parent(), page);
    QCOMPARE(page->indexOfChild(page->child(1)), 1);
    const QPoint middle = link->rect().center();
    QCOMPARE(page->childAt(middle.x(), middle.y()), link);
    link->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(shown.page.textCursor().selectedText(), u"la prima pagina"_s);
    QVERIFY(link->state().focused);
    link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(shown.opener.opened(), QList<QUrl>({QUrl(u"https://abissora.example/a"_s)}));
    // Another section has other links.
    shown.page.setSection({u"sezione-1"_s, u"Altro"_s, u"Niente."_s});
    QCOMPARE(page->childCount(), 0);
}

void tst_HelpPage::itsTextIsReadAndSelectedFromOutside()
{
    Shown shown(manyParagraphs() + u"In **fondo**."_s);
    test::activate(shown.page);
    QAccessibleTextInterface* const text = QAccessible::queryAccessibleInterface(&shown.page)->textInterface();
    QCOMPARE(text->text(0, 6), u"Titolo"_s);
    QCOMPARE(text->text(0, -1), shown.page.toPlainText());
    QCOMPARE(text->characterCount(), int(shown.page.toPlainText().size()));
    text->setSelection(0, 0, 6);
    int start = -1;
    int end = -1;
    text->selection(0, &start, &end);
    QCOMPARE(QPair(start, end), QPair(0, 6));
    text->removeSelection(0);
    QCOMPARE(text->selectionCount(), 0);
    QCOMPARE(text->cursorPosition(), 6);
    const int bold = int(shown.page.toPlainText().indexOf(u"fondo"_s));
    text->scrollToSubstring(bold, bold + 5);
    QVERIFY(shown.page.verticalScrollBar()->value() > 0);
    QCOMPARE(text->offsetAtPoint(text->characterRect(bold).topLeft() + QPoint(1, 3)), bold);
    QVERIFY(text->attributes(bold, &start, &end).contains(u"bold"_s));
    QCOMPARE(QPair(start, end), QPair(bold, bold + 5));
    for (const int beyond : {-5, 1'000'000}) {
        text->setCursorPosition(beyond);
        text->characterRect(beyond);
        text->attributes(beyond, &start, &end);
    }
    QCOMPARE(text->cursorPosition(), text->characterCount());
}

ABISSORA_TEST(tst_HelpPage);
#include "tst_HelpPage.moc"
