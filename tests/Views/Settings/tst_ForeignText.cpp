// SPDX-License-Identifier: MIT
#include "ForeignText.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_ForeignText : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ordinaryTextStaysAsItIs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("lines") << QStringLiteral("• Novità: «ricerca»\n\n\t– più veloce");
        QTest::newRow("emoji") << QStringLiteral("🤿 👩‍🔬 🇮🇹 ❤️");
        QTest::newRow("other scripts") << QStringLiteral("潜水 غوص צלילה");
        QTest::newRow("HTML") << QStringLiteral("<b>grassetto</b> &amp; <script>alert(1)</script>");
    }

    void ordinaryTextStaysAsItIs()
    {
        QFETCH(QString, text);
        QCOMPARE(shownText(text, 1000), text);
    }

    void whatDrawsNothingIsLeftOut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("line ends") << QStringLiteral("a\r\nb\rc\nd") << QStringLiteral("a\nb\nc\nd");
        QTest::newRow("NUL") << QStringLiteral("a") + QChar(0) + QStringLiteral("b") << QStringLiteral("ab");
        QTest::newRow("bell, escape, delete") << QStringLiteral("a\u0007\u001B[31m\u007Fb") << QStringLiteral("a[31mb");
        QTest::newRow("later controls") << QStringLiteral("a\u0085\u009Bb") << QStringLiteral("ab");
        QTest::newRow("turned around") << QStringLiteral("a\u202Eb\u2066c") << QStringLiteral("abc");
        QTest::newRow("no characters") << QStringLiteral("a\uFDD0\uFDD1\uFFFFb") << QStringLiteral("ab");
        QTest::newRow("half a pair") << QStringLiteral("a") + QChar(0xD83E) + QStringLiteral("b")
                                     << QStringLiteral("a\uFFFDb");
    }

    void whatDrawsNothingIsLeftOut()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QCOMPARE(shownText(text, 1000), shown);
    }

    void longTextsAreCut()
    {
        QCOMPARE(shownText(QStringLiteral("abcde"), 5), QStringLiteral("abcde"));
        QCOMPARE(shownText(QStringLiteral("abcdef"), 5), QStringLiteral("abcde…"));
        QCOMPARE(shownText(QStringLiteral("abcd🤿e"), 5), QStringLiteral("abcd…"));
    }

    void aLineIsOne()
    {
        QCOMPARE(shownLine(QStringLiteral(" 1.3\n\t.0\u2028 "), 20), QStringLiteral("1.3 .0"));
        QCOMPARE(shownLine(QString(1'000'000, QLatin1Char('9')), 20).size(), 21);
    }
};

ABISSORA_TEST(tst_ForeignText);
#include "tst_ForeignText.moc"
