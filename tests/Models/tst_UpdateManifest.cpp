// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QTest>
#include <limits>

using namespace abissora;

namespace {

QByteArray manifest(const QByteArray& version, const QByteArray& build, const QByteArray& address,
                    const QByteArray& more = {})
{
    return "{\"version\":" + version + ",\"build\":" + build + ",\"downloadURL\":" + address + more + "}";
}

/// JSON written with the other quotation marks.
QByteArray quoted(QByteArray text)
{
    return text.replace('\'', '"');
}

QByteArray withBuild(const QByteArray& build)
{
    return manifest("\"1.3.0\"", quoted(build), "\"https://abissora.example/\"");
}

QByteArray withMore(const QByteArray& more)
{
    return manifest("\"1.3.0\"", "57", "\"https://abissora.example/\"", quoted(more));
}

QByteArray withAddress(const QByteArray& address)
{
    return manifest("\"1.3.0\"", "57", address);
}

} // namespace

class tst_UpdateManifest : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsItsMembers()
    {
        const auto read = decodeManifest(" {\n\"releaseNotes\" : \"Novità\",\r\n\t\"build\":57, \"version\":\"1.3.0\","
                                         "\"downloadURL\":\"https://abissora.example/scarica\"} \n");
        QCOMPARE(read.value(), (UpdateManifest{u"1.3.0"_s, 57, u"https://abissora.example/scarica"_s, u"Novità"_s}));
    }

    void notesMayBeMissing_data()
    {
        QTest::addColumn<QByteArray>("more");
        QTest::addColumn<std::optional<QString>>("notes");
        const auto row = [](const char* name, const char* more, const std::optional<QString>& notes) {
            QTest::newRow(name) << QByteArray(more) << notes;
        };
        row("missing", "", std::nullopt);
        row("null", ",'releaseNotes':null", std::nullopt);
        row("empty", ",'releaseNotes':''", QString());
        row("text", ",'releaseNotes':'a\\nb'", u"a\nb"_s);
        row("text, then null", ",'releaseNotes':'a','releaseNotes':null", std::nullopt);
        row("null, then text", ",'releaseNotes':null,'releaseNotes':'a'", u"a"_s);
        row("other case", ",'ReleaseNotes':'a','releasenotes':'a','release_notes':'a'", std::nullopt);
    }

    void notesMayBeMissing()
    {
        QFETCH(QByteArray, more);
        QFETCH(std::optional<QString>, notes);
        const auto read = decodeManifest(withMore(more));
        QVERIFY2(read.has_value(), read ? "" : qPrintable(read.error().description()));
        QCOMPARE(read->releaseNotes, notes);
    }

    void otherMembersAreIgnored()
    {
        QVERIFY(decodeManifest(withMore(",'Version':1,'BUILD':'x','sha256':[{'a':[]}],'':null")).has_value());
        QVERIFY(decodeManifest(withMore(",\"deep\":" + QByteArray(100'000, '[') + QByteArray(100'000, ']'))));
    }

    void theLastOfEqualMembersCounts()
    {
        QCOMPARE(decodeManifest(withMore(",'version':'2.0','build':58")),
                 (UpdateManifest{u"2.0"_s, 58, u"https://abissora.example/"_s, {}}));
        QVERIFY(decodeManifest(withBuild("'57','build':57")).has_value());
        QVERIFY(!decodeManifest(withBuild("57,'build':'57'")).has_value());
    }

    void builds_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<std::optional<qlonglong>>("build");
        const auto row = [](const char* text, std::optional<qlonglong> build) {
            QTest::newRow(text) << QByteArray(text) << build;
        };
        row("57", 57);
        row("57.0", 57);
        row("5.7e1", 57);
        row("570e-1", 57);
        row("0", 0);
        row("-0", 0);
        row("-12", -12);
        row("9223372036854775807", std::numeric_limits<qlonglong>::max());
        row("-9223372036854775808", std::numeric_limits<qlonglong>::min());
        row("57.5", {});
        row("\"57\"", {});
        row("true", {});
        row("null", {});
        row("[57]", {});
        row("{}", {});
        row("9223372036854775808", {});
        row("-9223372036854775809", {});
        row("18446744073709551616", {});
        row("1e19", {});
        row("1e400", {});
        row("+57", {});
        row("057", {});
        row("0x39", {});
        row("57.", {});
        row("NaN", {});
        row("Infinity", {});
        row("", {});
    }

    void builds()
    {
        QFETCH(QByteArray, text);
        QFETCH(std::optional<qlonglong>, build);
        const auto read = decodeManifest(withBuild(text));
        QCOMPARE(read.has_value(), build.has_value());
        if (build)
            QCOMPARE(qlonglong(read->build), *build);
    }

    void textsThatAreNoManifest_data()
    {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, const QByteArray& text) { QTest::newRow(name) << text; };
        const QByteArray good = withMore({});
        row("empty", "");
        row("spaces", " \n");
        row("page", "<!DOCTYPE html><html><body>404</body></html>");
        row("cut", good.chopped(1));
        row("more after it", good + "x");
        row("two", good + good);
        row("in a list", '[' + good + ']');
        row("list", "[]");
        row("text", "\"1.3.0\"");
        row("number", "57");
        row("null", "null");
        row("nothing in it", "{}");
        row("no version", quoted("{'build':57,'downloadURL':'https://abissora.example/'}"));
        row("no build", quoted("{'version':'1.3.0','downloadURL':'https://abissora.example/'}"));
        row("no address", quoted("{'version':'1.3.0','build':57}"));
        row("other case", quoted("{'Version':'1.3.0','build':57,'downloadURL':'https://abissora.example/'}"));
        row("other spelling", quoted("{'version':'1.3.0','build':57,'download_url':'https://abissora.example/'}"));
        row("version is a number", manifest("1.3", "57", "\"https://abissora.example/\""));
        row("version is null", manifest("null", "57", "\"https://abissora.example/\""));
        row("address is null", withAddress("null"));
        row("address is a number", withAddress("5"));
        row("address is a list", withAddress("[\"https://abissora.example/\"]"));
        row("notes are a number", withMore(",'releaseNotes':5"));
        row("notes are a list", withMore(",'releaseNotes':['a']"));
        row("comma too much", withMore(","));
        row("comment", good + "// end");
        row("byte order mark", "\xEF\xBB\xBF" + good);
        row("NUL at the end", good + '\0');
        row("NUL in a text", manifest(QByteArray("\"1\0\"", 4), "57", "\"https://abissora.example/\""));
        row("UTF-16", QByteArray("\xFF\xFE{\0}\0", 6));
        row("Latin-1", withMore(",\"releaseNotes\":\"Novit\xE0\""));
        row("half a surrogate pair", withMore(",'releaseNotes':'\\uD83E'"));
        row("line feed in a text", withMore(",\"releaseNotes\":\"a\nb\""));
        row("lists in lists", QByteArray(100'000, '['));
        row("closed lists in lists", QByteArray(100'000, '[') + QByteArray(100'000, ']'));
        row("objects in objects", QByteArray("{\"a\":").repeated(100'000));
        row("version in lists",
            manifest(QByteArray(100'000, '[') + QByteArray(100'000, ']'), "57", "\"https://a.b/\""));
    }

    void textsThatAreNoManifest()
    {
        QFETCH(QByteArray, text);
        const auto read = decodeManifest(text);
        QVERIFY(!read.has_value());
        QVERIFY(!read.error().message.isEmpty());
    }

    void addresses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isOne");
        const auto row = [](const QString& text, bool isOne) { QTest::newRow(qPrintable(text)) << text << isOne; };
        row(u"https://abissora.example/"_s, true);
        row(u"http://abissora.example:8080/a/b.html?c=d&e=%20#f"_s, true);
        row(u"https://è.example/perché"_s, true);
        row(u"ftp://abissora.example/a.deb"_s, true);
        row(u"mailto:info@abissora.example"_s, true);
        row(u"file:///a"_s, true);
        row(u"scarica.html"_s, true);
        row(QString(), false);
        row(u" "_s, false);
        row(u" https://abissora.example/"_s, false);
        row(u"https://abissora.example/ "_s, false);
        row(u"https://abissora.example/a b"_s, false);
        row(u"https://abissora.example/\n"_s, false);
        row(u"https://abissora.example/\u0001"_s, false);
        row(u"https://abissora .example/"_s, false);
        row(u"https://[::1"_s, false);
        row(u"https://abissora.example:99999/"_s, false);
        row(u"https://abissora.example/%zz"_s, false);
        row(u"questo non è un indirizzo"_s, false);
        row(u"ht tp://abissora.example/"_s, false);
        row(u"://abissora.example/"_s, false);
    }

    void addresses()
    {
        QFETCH(QString, text);
        QFETCH(bool, isOne);
        const UpdateManifest manifest{u"1.3.0"_s, 57, text, u"Note"_s};
        const auto info = UpdateInfo::from(manifest);
        QCOMPARE(info.has_value(), isOne);
        if (info)
            QCOMPARE(*info, (UpdateInfo{manifest.version, 57, QUrl(text), manifest.releaseNotes}));
    }
};

ABISSORA_TEST(tst_UpdateManifest);
#include "tst_UpdateManifest.moc"
