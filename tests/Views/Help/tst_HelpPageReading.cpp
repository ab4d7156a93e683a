// SPDX-License-Identifier: MIT
#include "ShownPage.h"
#include "Tokens.h"

#include <QScrollBar>
#include <QTextBlock>

using namespace abissora;
using namespace abissora::test;

/// The page under the keyboard, under a search and to screen readers.
class tst_HelpPageReading : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { applyTheme(*qApp, Scheme::Light); }

    void theKeysMoveTheCaret_data();
    void theKeysMoveTheCaret();
    void theCaretIsSeen();
    void whatWasSearchedIsMarked_data();
    void whatWasSearchedIsMarked();
    void theFirstMatchComesIntoView();
    void shiftedKeysSelect();
    void escapeIsLeftToOthers();
    void itIsReadAsTextWithTheSectionsName();
    void itIsADocumentWithLinks();
    void itsTextIsReadAndSelectedFromOutside();
};

void tst_HelpPageReading::theKeysMoveTheCaret_data()
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

void tst_HelpPageReading::theKeysMoveTheCaret()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const int, least);
    QFETCH(const int, most);
    ShownPage shown(manyParagraphs());
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

void tst_HelpPageReading::theCaretIsSeen()
{
    ShownPage shown(manyParagraphs());
    test::activate(shown.page);
    sendKey(shown.page, Qt::Key_Down);
    sendKey(shown.page, Qt::Key_End);
    const QRect caret = shown.page.cursorRect();
    const QColor ink = shown.page.viewport()->grab().toImage().pixelColor(caret.left(), caret.center().y());
    const QColor ground = Tokens::of(Scheme::Light).window;
    QVERIFY2(ink.lightness() < ground.lightness() - 100, qPrintable(ink.name()));
}

void tst_HelpPageReading::whatWasSearchedIsMarked_data()
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

void tst_HelpPageReading::whatWasSearchedIsMarked()
{
    QFETCH(const QString, text);
    QFETCH(const int, count);
    ShownPage shown(QString::fromUtf8(everyKind));
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

void tst_HelpPageReading::theFirstMatchComesIntoView()
{
    ShownPage shown(manyParagraphs() + u"In fondo uno scontrino."_s);
    test::activate(shown.page);
    shown.page.setSearchText(u"riga"_s);
    QCOMPARE(shown.page.verticalScrollBar()->value(), 0);
    shown.page.setSearchText(u"scontrino"_s);
    QVERIFY(shown.page.verticalScrollBar()->value() > 0);
    QCOMPARE(shown.page.textCursor().position(), 0);
    shown.page.goToFirstMatch();
    QCOMPARE(shown.page.textCursor().position(), at(shown.page, u"scontrino"_s).selectionStart());
}

void tst_HelpPageReading::shiftedKeysSelect()
{
    ShownPage shown(manyParagraphs());
    test::activate(shown.page);
    sendKey(shown.page, Qt::Key_Down, Qt::ShiftModifier);
    sendKey(shown.page, Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(shown.page.textCursor().selectedText().startsWith(u"Titolo\u2029Una riga di testo.\u2029"_s));
    QCOMPARE(shown.page.verticalScrollBar()->value(), 0);
}

void tst_HelpPageReading::escapeIsLeftToOthers()
{
    ShownPage shown(manyParagraphs());
    test::activate(shown.page);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&shown.page, &escape);
    QVERIFY(!escape.isAccepted());
}

void tst_HelpPageReading::itIsReadAsTextWithTheSectionsName()
{
    ShownPage shown(QString::fromUtf8(everyKind));
    test::activate(shown.page);
    QCOMPARE(nameOf(shown.page), u"Titolo"_s);
    QAccessibleInterface* const page = QAccessible::queryAccessibleInterface(&shown.page);
    QVERIFY(page->textInterface() != nullptr);
    const QString text = page->textInterface()->text(0, page->textInterface()->characterCount());
    QVERIFY2(text.contains(u"2.\tSecondo"_s), qPrintable(text));
}

void tst_HelpPageReading::itIsADocumentWithLinks()
{
    ShownPage shown(
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

void tst_HelpPageReading::itsTextIsReadAndSelectedFromOutside()
{
    ShownPage shown(manyParagraphs() + u"In **fondo**."_s);
    test::activate(shown.page);
    QAccessibleTextInterface* const text = QAccessible::queryAccessibleInterface(&shown.page)->textInterface();
    QCOMPARE(text->text(0, 6), u"Titolo"_s);
    QCOMPARE(text->text(0, -1), shown.page.toPlainText());
    QCOMPARE(text->characterCount(), int(shown.page.toPlainText().size()));
    text->setSelection(0, 0, 6);
    int start = -1;
    int end = -1;
    text->selection(0, &start, &end);
    QCOMPARE(std::pair(start, end), std::pair(0, 6));
    text->removeSelection(0);
    QCOMPARE(text->selectionCount(), 0);
    QCOMPARE(text->cursorPosition(), 6);
    const int bold = int(shown.page.toPlainText().indexOf(u"fondo"_s));
    text->scrollToSubstring(bold, bold + 5);
    QVERIFY(shown.page.verticalScrollBar()->value() > 0);
    QCOMPARE(text->offsetAtPoint(text->characterRect(bold).topLeft() + QPoint(1, 3)), bold);
    QVERIFY(text->attributes(bold, &start, &end).contains(u"bold"_s));
    QCOMPARE(std::pair(start, end), std::pair(bold, bold + 5));
    for (const int beyond : {-5, 1'000'000}) {
        text->setCursorPosition(beyond);
        text->characterRect(beyond);
        text->attributes(beyond, &start, &end);
    }
    QCOMPARE(text->cursorPosition(), text->characterCount());
}

ABISSORA_TEST(tst_HelpPageReading);
#include "tst_HelpPageReading.moc"
