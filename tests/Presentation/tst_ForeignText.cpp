// SPDX-License-Identifier: MIT
#include "ForeignText.h"
#include "Literals.h"
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
        QTest::newRow("lines") << u"• Novità: «ricerca»\n\n\t– più veloce"_s;
        QTest::newRow("emoji") << u"🤿 👩‍🔬 🇮🇹 ❤️"_s;
        QTest::newRow("other scripts") << u"潜水 غوص צלילה"_s;
        QTest::newRow("HTML") << u"<b>grassetto</b> &amp; <script>alert(1)</script>"_s;
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
        QTest::newRow("line ends") << u"a\r\nb\rc\nd"_s << u"a\nb\nc\nd"_s;
        QTest::newRow("NUL") << u"a"_s + QChar(0) + u"b"_s << u"ab"_s;
        QTest::newRow("bell, escape, delete") << u"a\u0007\u001B[31m\u007Fb"_s << u"a[31mb"_s;
        QTest::newRow("later controls") << u"a\u0085\u009Bb"_s << u"ab"_s;
        QTest::newRow("turned around") << u"a\u202Eb\u2066c"_s << u"abc"_s;
        QTest::newRow("no characters") << u"a\uFDD0\uFDD1\uFFFFb"_s << u"ab"_s;
        QTest::newRow("half a pair") << u"a"_s + QChar(0xD83E) + u"b"_s << u"a\uFFFDb"_s;
    }

    void whatDrawsNothingIsLeftOut()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QCOMPARE(shownText(text, 1000), shown);
    }

    void longTextsAreCut()
    {
        QCOMPARE(shownText(u"abcde"_s, 5), u"abcde"_s);
        QCOMPARE(shownText(u"abcdef"_s, 5), u"abcde…"_s);
        QCOMPARE(shownText(u"abcd🤿e"_s, 5), u"abcd…"_s);
    }

    void aLineIsOne()
    {
        QCOMPARE(shownLine(u" 1.3\n\t.0\u2028 "_s, 20), u"1.3 .0"_s);
        QCOMPARE(shownLine(QString(1'000'000, u'9'), 20).size(), 21);
    }

    void onlyWebPagesOpenInABrowser_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isOpened");
        QTest::newRow("https") << u"https://abissora.example/a%20b?c#d"_s << true;
        QTest::newRow("http") << u"http://abissora.example:8080/"_s << true;
        QTest::newRow("upper case") << u"HTTPS://ABISSORA.EXAMPLE/"_s << true;
        QTest::newRow("nothing") << QString() << false;
        for (const char* text :
             {"file:///etc/passwd", "file://server/share/a.exe", "javascript:alert(1)", "data:text/html,a", "scarica",
              "//abissora.example/", "mailto:a@b.example", "smb://server/share", "ms-msdt:/id", "https:scarica",
              "https:///etc/passwd", "qrc:/appicon/abissora.svg", "-a"})
            QTest::newRow(text) << QString::fromLatin1(text) << false;
    }

    void onlyWebPagesOpenInABrowser()
    {
        QFETCH(QString, text);
        QTEST(opensInBrowser(QUrl(text, QUrl::StrictMode)), "isOpened");
    }
};

ABISSORA_TEST(tst_ForeignText);
#include "tst_ForeignText.moc"
