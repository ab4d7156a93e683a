// SPDX-License-Identifier: MIT
#include "Gui.h"
#include "Painting.h"
#include "Picture.h"
#include "ShownHelp.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

const QString everyBackdrop = u"Un paragrafo.\n"
                              "### Sottotitolo\n"
                              "> Una citazione.\n"
                              "```\ncodice\n```\n"
                              "Sopra la riga\n"
                              "---\n"
                              "Sotto la riga\n"
                              "- Punto\n"
                              "Un [rimando](https://abissora.example/).\n"_s;

/// A page that shows everything it has.
struct Page
{
    Page()
        : page(opener)
    {
        page.resize(600, 700);
        page.setSection({u"sezione-0"_s, u"Titolo"_s, everyBackdrop});
    }

    /// Where the lines of the block with that text stand.
    [[nodiscard]] QRectF words(const QString& text) const
    {
        const QTextBlock block = page.document()->find(text).block();
        static_cast<void>(page.document()->documentLayout()->blockBoundingRect(block)); // lays it out
        QRectF lines;
        for (int line = 0; line < block.layout()->lineCount(); ++line)
            lines |= block.layout()->lineAt(line).naturalTextRect();
        return lines.translated(block.layout()->position());
    }

    RecordingOpener opener;
    HelpPage page;
};

} // namespace

class tst_HelpPagePainting : public PictureTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreInTheirColors()
    {
        Page shown;
        const Picture page = drawn(shown.page);
        for (const auto* text : {"Titolo", "Un paragrafo", "Sottotitolo", "Sopra", "Sotto"})
            QCOMPARE(page.inked(shown.words(QString::fromUtf8(text)), tokens().window, tokens().text), fine);
        const QRectF bullet = shown.words(u"Punto"_s);
        QCOMPARE(page.inked(QRectF(bullet.left(), bullet.top(), 12, bullet.height()), tokens().window,
                            tokens().named(NamedColor::blue)),
                 fine);
        QVERIFY(page.amount(shown.words(u"rimando"_s), tokens().accentInk) > 20);
    }

    void aSubheadingHasABarFromBlueToCyan()
    {
        Page shown;
        const Picture page = drawn(shown.page);
        const QRectF text = shown.words(u"Sottotitolo"_s);
        const Ink bar = page.ink(QRectF(text.left() - 20, text.top() - 5, 16, text.height() + 10), tokens().window);
        QVERIFY(bar.bounds.height() >= text.height() - 2 && bar.bounds.width() < 8);
        const qreal middle = bar.bounds.center().x();
        const auto near = [&](qreal y, NamedColor color) {
            return page.inked(QRectF(middle - 0.5, y - 1.5, 1, 4), tokens().window, tokens().named(color));
        };
        QCOMPARE(near(bar.bounds.top() + 4, NamedColor::blue), fine);
        QCOMPARE(near(bar.bounds.bottom() - 4, NamedColor::cyan), fine);
        QCOMPARE(page.ink(QRectF(0, shown.words(u"Un paragrafo"_s).top(), 28, 10), tokens().window).area, 0);
    }

    void panelsStandBehindQuotesAndCode_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quote") << u"Una citazione"_s;
        QTest::newRow("code") << u"codice"_s;
    }

    void panelsStandBehindQuotesAndCode()
    {
        QFETCH(const QString, text);
        const bool isQuote = text != u"codice"_s;
        Page shown;
        const Picture page = drawn(shown.page);
        const QColor ground = isQuote ? tokens().accentTint : mix(tokens().window, tokens().text, 0.06);
        const QRectF words = shown.words(text);
        // Around the words, across the page, and not beyond its margins.
        QCOMPARE(page.filled(words.adjusted(-8, -8, 0, 8), ground, 0.8), fine);
        QCOMPARE(page.inked(words, ground, isQuote ? tokens().secondaryText : tokens().text), fine);
        const Ink panel = page.ink(QRectF(0, words.top(), 600, words.height()), tokens().window);
        QVERIFY(panel.bounds.width() > 500 && panel.bounds.width() < 560);
        QVERIFY(std::abs(panel.bounds.center().x() - 300) < 12);
        const QRectF mark(panel.bounds.left() + 4, words.top(), words.left() - panel.bounds.left() - 8, words.height());
        if (isQuote)
            QCOMPARE(page.inked(mark, ground, tokens().named(NamedColor::blue)), fine);
        else
            QCOMPARE(page.bare(mark, ground), fine);
        QCOMPARE(page.bare(QRectF(panel.bounds.left(), words.top() - 20, 1, 4), tokens().window), fine);
    }

    void theRuleIsAHairline()
    {
        Page shown;
        const Picture page = drawn(shown.page);
        const qreal above = shown.words(u"Sopra la riga"_s).bottom() + 2;
        const qreal below = shown.words(u"Sotto la riga"_s).top() - 2;
        const Ink rule = page.ink(QRectF(0, above, 600, below - above), tokens().window);
        QCOMPARE(rule.core, tokens().border);
        QCOMPARE(rule.bounds.height(), 1);
        QVERIFY(rule.bounds.width() > 500 && rule.bounds.width() < 560);
    }

    void whatStandsBehindScrollsWithTheText()
    {
        Page shown;
        shown.page.resize(600, 200);
        shown.page.show();
        const int scrolled = 40;
        shown.page.verticalScrollBar()->setValue(scrolled);
        QCOMPARE(shown.page.verticalScrollBar()->value(), scrolled);
        const QRectF quote = shown.words(u"Una citazione"_s).translated(0, -scrolled);
        QCOMPARE(drawn(shown.page).filled(quote.adjusted(-8, -8, 0, 8), tokens().accentTint, 0.8), fine);
    }

    void theFocusIsARing()
    {
        Page shown;
        const Picture focused = drawnFocused(shown.page);
        const QRectF page = QRectF(shown.page.viewport()->geometry());
        QCOMPARE(focused.framed(page, tokens().accentInk, 2), fine);
        Page another;
        QVERIFY(drawn(another.page).framed(page, tokens().accentInk, 2) != fine);
    }

    void rowsOfTheIndexShowTheirTitle_data()
    {
        QTest::addColumn<int>("state");
        QTest::newRow("usual") << 0;
        QTest::newRow("selected") << int{QStyle::State_Selected};
    }

    void rowsOfTheIndexShowTheirTitle()
    {
        QFETCH(const int, state);
        QList<HelpSection> sections = threeSections();
        sections[1].title = QString(60, u'l');
        ShownHelp help(sections);
        const QColor ground = state != 0 ? tokens().accentFill : tokens().sidebar;
        const QSize size(150, 30);
        const auto row = [&](int number) {
            return drawnItem(help.list, help.list.model()->index(number, 0), size, tokens().sidebar,
                             QStyle::State(state));
        };
        const Picture usual = row(0);
        QCOMPARE(usual.contained(), fine);
        QCOMPARE(usual.filled(usual.rect(), ground), fine);
        const QRect inside = usual.rect().adjusted(8, 3, -8, -3);
        QCOMPARE(usual.inked(inside, ground, state != 0 ? tokens().onFill : tokens().text), fine);
        QVERIFY(!usual.endsInDots(inside, ground));
        const Picture tooLong = row(1);
        QCOMPARE(tooLong.contained(), fine);
        QVERIFY(tooLong.endsInDots(inside, ground));
    }

    void theIndexStandsOnTheSidebarsColor()
    {
        ShownHelp help;
        help.view.show();
        settle();
        const Picture view = drawn(help.view);
        const QWidget& part = existing(help.view, "helpIndex");
        const QRect index(part.mapTo(&help.view, QPoint()), part.size());
        QVERIFY(view.amount(index, tokens().sidebar) > index.width() * index.height() / 2.0);
        QCOMPARE(view.filled(QRect(index.right(), index.top(), 1, index.height()), tokens().border, 1), fine);
    }
};

ABISSORA_TEST(tst_HelpPagePainting);
#include "tst_HelpPagePainting.moc"
