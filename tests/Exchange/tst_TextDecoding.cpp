// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "TestRunner.h"
#include "TextDecoding.h"

#include <QStringEncoder>
#include <QTest>

using namespace abissora;

namespace {

QByteArray encoded(QStringConverter::Encoding encoding, const QString& text, bool hasMark)
{
    QStringEncoder encoder(encoding, hasMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

} // namespace

class tst_TextDecoding : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("encoding");
        const QString text = u"Nome;Città\nMuta;Forlì €😀\n"_s;
        const auto add = [&text](const char* name, const QByteArray& bytes, const QString& encoding) {
            QTest::newRow(name) << bytes << text << encoding;
        };
        add("UTF-8", text.toUtf8(), u"UTF-8"_s);
        add("UTF-8 with a mark", "\xEF\xBB\xBF" + text.toUtf8(), u"UTF-8"_s);
        add("UTF-16LE with a mark", encoded(QStringConverter::Utf16LE, text, true), u"UTF-16"_s);
        add("UTF-16BE with a mark", encoded(QStringConverter::Utf16BE, text, true), u"UTF-16"_s);
        add("UTF-16LE", encoded(QStringConverter::Utf16LE, text, false), u"UTF-16"_s);
        add("UTF-16BE", encoded(QStringConverter::Utf16BE, text, false), u"UTF-16"_s);
        QTest::newRow("Windows-1252") << QByteArray("Nome;Prezzo\nCitt\xE0;\x80 5 \x96 \x93"
                                                    "a\x94\n")
                                      << u"Nome;Prezzo\nCittà;€ 5 – “a”\n"_s << u"Windows-1252"_s;
        QTest::newRow("one letter") << QByteArray("a") << u"a"_s << u"UTF-8"_s;
        const QString replaced = u"Nome\n\uFFFD\n"_s;
        QTest::newRow("a replacement character of the text's own")
            << encoded(QStringConverter::Utf16LE, replaced, true) << replaced << u"UTF-16"_s;
    }

    void decodes()
    {
        QFETCH(QByteArray, bytes);
        const auto decoded = decodeText(bytes);
        QVERIFY2(decoded, qPrintable(decoded ? QString() : decoded.error()));
        QTEST(decoded->text, "text");
        QTEST(decoded->encoding, "encoding");
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        const auto add = [](const char* name, const QByteArray& bytes, const QString& error) {
            QTest::newRow(name) << bytes << error;
        };
        add("nothing", {}, u"Il file è vuoto."_s);
        add("blanks", " \r\n\t ", u"Il file è vuoto."_s);
        add("a mark alone", "\xEF\xBB\xBF\n", u"Il file è vuoto."_s);
        add("a mark of UTF-16 alone", "\xFF\xFE", u"Il file è vuoto."_s);
        add("a PDF", "%PDF-1.7\n", u"Il file non è una tabella: è un documento PDF."_s);
        add("a workbook", QByteArray("PK\x03\x04xyz"),
            u"Il file non è un testo: è compresso, come le cartelle di lavoro di un foglio di calcolo. Il foglio di "
            "calcolo lo può salvare come CSV."_s);
        const QString damaged = u"Il file è danneggiato: non è un testo UTF-16 intero."_s;
        const QByteArray wide = encoded(QStringConverter::Utf16LE, u"Nome;Marca"_s, true);
        add("half a character", wide.chopped(1), damaged);
        add("half a pair", wide + QByteArray("\x3D\xD8", 2), damaged);
        add("a pair the wrong way round", wide + QByteArray("\x00\xDE\x3D\xD8", 4), damaged);
    }

    void refuses()
    {
        QFETCH(QByteArray, bytes);
        const auto decoded = decodeText(bytes);
        QVERIFY(!decoded);
        QTEST(decoded.error(), "error");
    }
};

ABISSORA_TEST(tst_TextDecoding);
#include "tst_TextDecoding.moc"
