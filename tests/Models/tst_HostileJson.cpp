// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QByteArray valid()
{
    return encode(QList{test::equipmentWith(1, {test::maintenance(2)})}).value();
}

QByteArray withName(const QByteArray& quoted)
{
    return valid().replace("\"Erogatore di prova\"", quoted);
}

QByteArray times(const QByteArray& part, qsizetype count)
{
    return part.repeated(count);
}

QString errorOf(const QByteArray& json)
{
    const auto decoded = decodeEquipment(json);
    return decoded ? QString() : decoded.error().description();
}

constexpr qsizetype deep = 100'000;

} // namespace

/// Whatever lies in the file, there is an error to print and never a crash.
class tst_HostileJson : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textThatIsNoJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const QByteArray& json, const char* error) {
            QTest::newRow(name) << json << QString::fromUtf8(error);
        };
        row("nothing", "", "unexpected end of input");
        row("white space", " \n", "unexpected end of input");
        row("words", "che bello", "parse error at line 1, column 1");
        row("cut short", valid().chopped(1), "unexpected end of input");
        row("cut in the middle", valid().left(100), "parse error at line 1");
        row("trailing words", valid() + "x", "expected end of input");
        row("a second document", valid() + valid(), "expected end of input");
        row("a second line", valid() + "\n[]", "line 2");
        row("trailing comma", "[1,]", "unexpected ']'");
        row("comment", "[/* nothing */]", "parse error");
        row("single quotes", "['a']", "parse error");
        row("bare words", "[NaN]", "parse error");
        row("leading zero", "[01]", "parse error");
        row("hexadecimal", "[0x1]", "parse error");
        row("plus sign", "[+1]", "parse error");
        row("number beyond any", "[1e400]", "number overflow");
        row("such a number nobody asked for", R"([{"future":1e400}])", "number overflow");
        row("line feed in a text", withName("\"a\nb\""), "control character");
        row("byte order mark", "\xEF\xBB\xBF" + valid(), "the text begins with a byte order mark");
        row("byte order mark inside", "[\xEF\xBB\xBF]", "parse error");
        row("UTF-16", QByteArray("\xFF\xFE[\0]\0", 6), "the text holds a NUL byte at position 3");
        row("trailing NUL", valid() + '\0', "the text holds a NUL byte at position");
        row("NUL in a text", withName(QByteArray("\"a\0b\"", 5)), "the text holds a NUL byte at position");
        row("NUL alone", QByteArray(1, '\0'), "the text holds a NUL byte at position 0");
        row("Latin-1", withName("\"perch\xE9\""), "ill-formed UTF-8");
        row("overlong", withName("\"\xC0\xAF\""), "ill-formed UTF-8");
        row("surrogate in UTF-8", withName("\"\xED\xA0\x80\""), "ill-formed UTF-8");
        row("beyond Unicode", withName("\"\xF4\x90\x80\x80\""), "ill-formed UTF-8");
        row("character cut short", withName("\"\xF0\x9F\xA4\""), "ill-formed UTF-8");
        row("invalid UTF-8 in a name nobody knows", "[{\"\xFF\":1}]", "ill-formed UTF-8");
        row("lone high surrogate", withName(R"("\uD83E")"), "surrogate");
        row("lone low surrogate", withName(R"("\uDD3F")"), "surrogate");
        row("surrogates in the wrong order", withName(R"("\uDD3F\uD83E")"), "surrogate");
        row("such an escape nobody asked for", R"([{"future":"\uD83E"}])", "surrogate");
        row("escape cut short", withName(R"("\u00")"), "'\\u' must be followed by 4 hex digits");
        row("unknown escape", withName(R"("\x41")"), "forbidden character after backslash");
    }

    void textThatIsNoJson()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);
        const QString found = errorOf(json);
        QVERIFY2(found.contains(error), qPrintable(found));
        QVERIFY2(!found.contains(u'\n') && !found.startsWith(u'['), qPrintable(found));
        QVERIFY(found.size() <= 301);
    }

    void pairsOfSurrogatesAreOneCharacter()
    {
        const auto decoded = decodeEquipment(withName(R"("\uD83E\uDD3F \u0000")"));
        QVERIFY(decoded);
        QCOMPARE(decoded->at(0).name, u"🤿 "_s + QChar(0));
    }

    void deepNesting_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        const QByteArray lists = times("[", deep) + times("]", deep);
        const QByteArray objects = times(R"({"a":)", deep) + "1" + times("}", deep);
        QTest::newRow("lists") << lists << u"[0]: expected an object, found an array"_s;
        QTest::newRow("objects") << objects << u"expected an array, found an object"_s;
        QTest::newRow("never closed") << times("[", deep) << u"unexpected end of input"_s;
        QTest::newRow("objects never closed") << times(R"({"a":)", deep) << u"unexpected end of input"_s;
        QTest::newRow("closed wrongly") << times("[", deep) + "}" << u"unexpected '}'"_s;
        QTest::newRow("unknown member") << valid().insert(2, R"("future":)" + lists + ',') << QString();
        QTest::newRow("unknown objects") << valid().insert(2, R"("future":)" + objects + ',') << QString();
        QTest::newRow("text expected") << withName(lists) << u"[0].name: expected a string, found an array"_s;
        QTest::newRow("number expected") << valid().replace("120.5", objects)
                                         << u"[0].maintenanceHistory[0].cost: expected a number, found an object"_s;
        QTest::newRow("record expected") << valid().replace(R"("maintenanceHistory":[)",
                                                            QByteArray(R"("maintenanceHistory":[)" + lists + ','))
                                         << u"[0].maintenanceHistory[0]: expected an object, found an array"_s;
    }

    void deepNesting()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);
        const QString found = errorOf(json);
        QVERIFY2(error.isEmpty() ? found.isEmpty() : found.contains(error), qPrintable(found));
    }

    void manyBadElements()
    {
        QCOMPARE(errorOf('[' + times("{},", 1'000'000) + "{}]"), u"[0].id: the member is missing"_s);
        QCOMPARE(errorOf('[' + valid().mid(1).chopped(1) + ',' + times("1,", 1'000'000) + "1]"),
                 u"[1]: expected an object, found a number"_s);
    }

    void longTextsAreNotQuotedWhole()
    {
        const QString type = errorOf(valid().replace("\"GAV\"", QByteArray('"' + times("x", 100'000) + '"')));
        QCOMPARE(type, u"[0].type: expected one of the known names, found a string"_s);
        QVERIFY(errorOf('[' + times("x", 100'000) + ']').size() <= 301);
        QVERIFY(errorOf("[\"" + times("x", 100'000)).size() <= 301);
    }

    void everyBeginningOfADocumentIsAnError()
    {
        const QByteArray json = valid();
        for (qsizetype length = 0; length < json.size(); ++length)
            QVERIFY2(!decodeEquipment(json.left(length)), json.left(length).constData());
    }

    void everyByteMayBeWrong()
    {
        const QByteArray json = valid();
        for (const char wrong : {'\0', '"', '}', ']', '\\', '\xFF', '0'}) {
            for (qsizetype at = 0; at < json.size(); ++at) {
                QByteArray broken = json;
                broken[at] = wrong;
                const auto decoded = decodeEquipment(broken);
                QVERIFY(decoded ? decoded->size() == 1 : !decoded.error().message.isEmpty());
            }
        }
    }
};

ABISSORA_TEST(tst_HostileJson);
#include "tst_HostileJson.moc"
