// SPDX-License-Identifier: MIT
#include "TestRunner.h"
#include "TextSearch.h"

#include <QTest>

using namespace abissora;

class tst_TextSearch : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void foundIn_data()
    {
        QTest::addColumn<QString>("needle");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        const auto row = [](const char* name, const char16_t* needle, const char16_t* text, bool found) {
            QTest::newRow(name) << QString::fromUtf16(needle) << QString::fromUtf16(text) << found;
        };
        row("empty needle", u"", u"Apeks", true);
        row("empty needle, empty text", u"", u"", true);
        row("empty text", u"a", u"", false);
        row("ASCII", u"xtx", u"Apeks XTX50", true);
        row("ASCII at the end", u"50", u"Apeks XTX50", true);
        row("ASCII whole", u"APEKS", u"apeks", true);
        row("ASCII absent", u"mares", u"Apeks XTX50", false);
        row("longer than the text", u"apeks xtx50", u"Apeks", false);
        row("ASCII needle, other text", u"profondit", u"Profondità", true);
        row("spaces count", u"a b", u"ab", false);
        row("upper-case accent", u"ÀNCORA", u"un'àncora", true);
        row("accent absent from text", u"àncora", u"ancora", false);
        row("accent absent from needle", u"ancora", u"àncora", false);
        row("accent absent from needle, decomposed", u"ancora", u"a\u0300ncora", false);
        row("final accent absent from needle", u"caffe", u"caffè", false);
        row("final accent absent from needle, decomposed", u"caffe", u"caffe\u0300", false);
        row("accented first, plain later", u"caffe", u"caffe\u0300, caffe", true);
        row("plain letter before an accent without a composed form", u"x", u"x\u0300", false);
        row("plain letter before a supplementary accent", u"x", u"x\U0001D165", false);
        row("accent without a composed form", u"X\u0300", u"x\u0300", true);
        row("decomposed finds composed", u"A\u0300NCORA", u"àncora", true);
        row("composed finds decomposed", u"àncora", u"A\u0300NCORA", true);
        row("one accent of two", u"ạ", u"a\u0308\u0323", false);
        row("accents in another order", u"a\u0323\u0308", u"a\u0308\u0323", true);
        row("other accent", u"è", u"é", false);
        row("sharp s", u"STRASSE", u"Straße", true);
        row("sharp s in the needle", u"straße", u"STRASSE", true);
        row("capital sharp s", u"strasse", u"STRAẞE", true);
        row("sharp s finds two letters", u"ß", u"tosse", true);
        row("micro sign", u"µ", u"5 µm", true);
        row("micro sign as a Greek letter", u"μ", u"5 µm", true);
        row("diaeresis whose capital lies beyond Latin-1", u"Ÿ", u"ÿ", true);
        row("ligature", u"FILTRO", u"ﬁltro", true);
        row("final sigma", u"ΣΟΦΟΣ", u"σοφος", true);
        row("Kelvin sign", u"k", u"300 \u212A", true);
        row("dotted capital I", u"İSTANBUL", u"İstanbul", true);
        row("dotted capital I, decomposed", u"i\u0307stanbul", u"İstanbul", true);
        row("I is not dotless", u"I", u"ı", false);
        row("dotless finds dotless", u"ı", u"kapı", true);
        row("Cyrillic", u"МАСКА", u"маска", true);
        row("beyond the basic plane", u"\U00010428", u"a\U00010400", true);
        row("emoji", u"🤿", u"🤿 maschera", true);
        row("emoji with variation selector", u"❤", u"❤\uFE0F", true);
        row("Japanese", u"潜水", u"スキューバ潜水", true);
        row("pattern characters are plain", u".*", u"abc", false);
        row("hash signs", u"###", u"### Titolo", true);
    }

    /// The shortcut for Latin-1 text gives what the long way gives.
    void latin1IsNoSpecialCase()
    {
        for (char16_t a = 0x20; a < 0x100; ++a) {
            for (char16_t b = 0x20; b < 0x100; ++b) {
                const TextSearch search{QString(QChar(a))};
                const QString text{QChar(b)};
                QCOMPARE(search.foundIn(text), search.foundIn(text + QChar(0x4E00)));
            }
        }
    }

    void foundIn()
    {
        QFETCH(QString, needle);
        QFETCH(QString, text);
        QFETCH(bool, found);
        QCOMPARE(TextSearch(needle).foundIn(text), found);
    }
};

ABISSORA_TEST(tst_TextSearch);
#include "tst_TextSearch.moc"
