// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Labels.h"
#include "Literals.h"
#include "WordWidths.h"

#include <QTextLayout>
#include <random>

using namespace abissora;

namespace {

int linesWhenLaidOut(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
        line.setLineWidth(width);
    layout.endLayout();
    return layout.lineCount();
}

QString anyText(std::mt19937& random)
{
    static const QStringList words{u"Revisione"_s, u"primo"_s, u"e"_s,      u"stadio,"_s, u"O-ring"_s,
                                   u"(a"_s,        u"bar)"_s,  u"AVATAR"_s, u"l'è"_s,     u"€12.50"_s,
                                   u"300"_s,       u"WiTo."_s, u"·"_s,      u"perché"_s,  u"sub-acqueo"_s,
                                   u"Fl-fi-ffi"_s, u"Tè"_s,    u""_s,       u"prova/e"_s, u"2-3"_s,
                                   u"–"_s,         u"日本"_s,  u"-x"_s,     u"fine-"_s};
    std::uniform_int_distribution<qsizetype> any(0, words.size() - 1);
    QStringList chosen;
    for (auto count = any(random); count >= 0; --count)
        chosen.append(words.at(any(random)));
    return chosen.join(u' ');
}

} // namespace

class tst_WordWidths : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void endsInDotsWhereTheMetricsWould()
    {
        std::mt19937 random(5);
        const QFont font = abissora::font(TextStyle::Body);
        const QFontMetrics metrics(font);
        WordWidths words(font);
        int cut = 0;
        for (int i = 0; i < 2000; ++i) {
            const QString text = anyText(random);
            const int width = std::uniform_int_distribution(10, 300)(random);
            QCOMPARE(words.elided(text, width), metrics.elidedText(text, Qt::ElideRight, width));
            cut += words.elided(text, width) == text ? 0 : 1;
        }
        QVERIFY(cut > 500);
        QVERIFY(cut < 1900);
    }

    void countsTheLinesOfALayout()
    {
        std::mt19937 random(3);
        int counted = 0;
        for (const TextStyle style : {TextStyle::Caption, TextStyle::Body, TextStyle::Headline}) {
            const QFont font = abissora::font(style);
            WordWidths words(font);
            for (int i = 0; i < 2000; ++i) {
                const QString text = anyText(random);
                const int width = std::uniform_int_distribution(60, 500)(random);
                const auto lines = words.linesOf(text, width);
                if (!lines)
                    continue;
                ++counted;
                if (*lines != linesWhenLaidOut(text, font, width))
                    QFAIL(qPrintable(u"%1 lines in %2 px: %3"_s.arg(*lines).arg(width).arg(text)));
            }
        }
        QVERIFY2(counted > 500, qPrintable(QString::number(counted)));
    }

    void heightsAreThoseOfALayout()
    {
        std::mt19937 random(4);
        const QFont font = abissora::font(TextStyle::Body);
        WordWidths words(font);
        QStringList texts;
        for (int i = 0; i < 200; ++i)
            texts.append(anyText(random) + (i % 2 == 0 ? u"\n日本"_s : QString()));
        // Each comes back in several widths, each width twice.
        for (const int width : {60, 180, 181, 60, 181, 180}) {
            for (const QString& text : texts) {
                QTextLayout layout({}, font);
                const int expected = layOutLines(layout, text, {}, width);
                QVERIFY2(std::abs(words.heightOf(text, width) - expected) <= 1, qPrintable(text));
            }
        }
    }

    void mostTextsAreCounted()
    {
        WordWidths words(abissora::font(TextStyle::Body));
        QCOMPARE(words.linesOf(u"Revisione, sostituiti gli O-ring"_s, 1000), 1);
        QVERIFY(words.linesOf(u"Revisione, sostituiti gli O-ring"_s, 120).value_or(0) > 1);
        QCOMPARE(words.linesOf(u"14 giu 2026 · Eseguito da: Officina Blu"_s, 1000), 1);
    }

    void whatOnlyALayoutCanTellIsNotCounted()
    {
        WordWidths words(abissora::font(TextStyle::Body));
        for (const QString& text : {u""_s, u"a\nb"_s, u"a/b"_s, u"2-3"_s, u"日本"_s, u"a\u00a0b"_s, u"שלום"_s})
            QVERIFY2(!words.linesOf(text, 1000), qPrintable(text));
        QVERIFY(!words.linesOf(u"precipitevolissimevolmente"_s, 40));
    }

    void noTextIsWiderThanItsMost()
    {
        std::mt19937 random(5);
        const QFont font = abissora::font(TextStyle::Caption);
        WordWidths words(font);
        for (int i = 0; i < 500; ++i) {
            const QString text = anyText(random);
            QVERIFY2(QFontMetricsF(font).horizontalAdvance(text) <= words.mostWidthOf(text), qPrintable(text));
        }
    }

    void aLabelIsAsHighAsItsLines()
    {
        std::mt19937 random(9);
        for (int i = 0; i < 300; ++i) {
            const QString text = anyText(random);
            const int width = std::uniform_int_distribution(80, 400)(random);
            WrapLabel label(TextStyle::Body, &Tokens::text, text);
            // A sign that is never counted, in a line of its own.
            const WrapLabel laidOut(TextStyle::Body, &Tokens::text, text + u"\n/"_s);
            const WrapLabel line(TextStyle::Body, &Tokens::text, u"/"_s);
            const int expected = laidOut.heightForWidth(width) - line.heightForWidth(width);
            QVERIFY2(std::abs(label.heightForWidth(width) - expected) <= 1, qPrintable(text));
        }
    }
};

ABISSORA_TEST(tst_WordWidths);
#include "tst_WordWidths.moc"
