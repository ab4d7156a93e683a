// SPDX-License-Identifier: MIT
#include "Fakes.h"
#include "Literals.h"
#include "LocalServer.h"
#include "NetworkHttpClient.h"
#include "TestRunner.h"
#include "UpdateChecker.h"

#include <QTest>
#include <QTimeZone>

using namespace abissora;
using namespace std::chrono_literals;
using test::LocalServer;

namespace {

const QByteArray newer(R"({"version":"1.3.0","build":57,"downloadURL":"https://abissora.example/"})");
const QByteArray running = QByteArray(newer).replace("1.3.0", "1.2");
const QByteArray older = QByteArray(newer).replace("1.3.0", "1.1.9");
const QByteArray endless("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n");

} // namespace

/// The check as a whole, from the server's answer to what becomes of it.
class tst_UpdateCheckOverHttp : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void outcomes_data()
    {
        QTest::addColumn<LocalServer::Behaviour>("behaviour");
        QTest::addColumn<QString>("outcome");
        const auto row = [](const char* name, const LocalServer::Behaviour& behaviour, const char* outcome) {
            QTest::newRow(name) << behaviour << QString::fromLatin1(outcome);
        };
        row("newer", LocalServer::answers("200 OK", newer), "1.3.0-57");
        row("equal", LocalServer::answers("200 OK", QByteArray(running).replace("57", "42")), "current");
        row("equal, later build", LocalServer::answers("200 OK", running), "1.2-57");
        row("older", LocalServer::answers("200 OK", older), "current");
        row("padded to the limit", LocalServer::answers("200 OK", newer + QByteArray(1'000'000, ' ')), "1.3.0-57");
        row("beyond the limit", LocalServer::answers("200 OK", newer + QByteArray(2'000'000, ' ')), "invalidManifest");
        row("beyond the limit, no length",
            LocalServer::sends("HTTP/1.1 200 OK\r\n\r\n" + newer + QByteArray(2'000'000, ' ')), "invalidManifest");
        row("error beyond the limit", LocalServer::answers("404 Not Found", QByteArray(2'000'000, ' ')),
            "invalidResponse");
        row("not found with a manifest", LocalServer::answers("404 Not Found", newer), "invalidResponse");
        row("server error", LocalServer::answers("500 Internal Server Error", "{}"), "invalidResponse");
        row("no content", LocalServer::sends("HTTP/1.1 204 No Content\r\n\r\n"), "invalidResponse");
        row("not modified", LocalServer::sends("HTTP/1.1 304 Not Modified\r\n\r\n"), "invalidResponse");
        row("accepted with a manifest", LocalServer::answers("202 Accepted", newer), "invalidResponse");
        row("password wanted",
            LocalServer::answers("401 Unauthorized", newer, "WWW-Authenticate: Basic realm=\"a\"\r\n"),
            "invalidResponse");
        row("a proxy's password", LocalServer::answers("407 Proxy Authentication Required", newer), "invalidResponse");
        row("empty", LocalServer::answers("200 OK", {}), "invalidManifest");
        row("page", LocalServer::answers("200 OK", "<html></html>", "Content-Type: text/html\r\n"), "invalidManifest");
        row("cut manifest", LocalServer::answers("200 OK", newer.chopped(5)), "invalidManifest");
        row("byte order mark", LocalServer::answers("200 OK", "\xEF\xBB\xBF" + newer), "invalidManifest");
        row("brackets", LocalServer::answers("200 OK", QByteArray(100'000, '[')), "invalidManifest");
        row("any media type", LocalServer::answers("200 OK", newer, "Content-Type: image/png\r\n"), "1.3.0-57");
        row("cut on the way", LocalServer::sends(endless + newer), "transport");
        row("badly packed", LocalServer::answers("200 OK", newer, "Content-Encoding: gzip\r\n"), "invalidManifest");
        row("hanging", LocalServer::hangsAfter(endless), "transport");
        row("dripping", LocalServer::dripsAfter(endless + newer), "transport");
    }

    void outcomes()
    {
        QFETCH(LocalServer::Behaviour, behaviour);
        QFETCH(QString, outcome);
        LocalServer server;
        server.next(behaviour);
        // Only what never ends meets the limit.
        QCOMPARE(check(server, outcome == "transport"_L1 ? 200ms : 60s), outcome);
        QCOMPARE(server.requests().size(), 1);
    }

    void afterARedirection()
    {
        LocalServer server;
        server.next(LocalServer::redirectsTo(server.url(u"/a/version.json"_s)));
        server.next(LocalServer::answers("200 OK", newer));
        QCOMPARE(check(server, 60s), u"1.3.0-57"_s);
        server.next(LocalServer::redirectsTo(server.url(u"/gone"_s)));
        server.next(LocalServer::answers("404 Not Found", newer));
        QCOMPARE(check(server, 60s), u"invalidResponse"_s);
    }

    void aPieceCutShortIsNoManifest()
    {
        LocalServer server;
        server.next(
            LocalServer::sends("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nff\r\n" + newer.chopped(1)));
        QCOMPARE(check(server, 60s), u"transport"_s);
    }

    void nobodySpeaksHttp()
    {
        LocalServer server;
        server.next(LocalServer::sends("SSH-2.0-OpenSSH_9.2\r\n"));
        QCOMPARE(check(server, 60s), u"transport"_s);
        QCOMPARE(server.connections(), 1);
    }

    void nobodyListens()
    {
        LocalServer server;
        server.close();
        QCOMPARE(check(server, 60s), u"transport"_s);
    }

private:
    static QString check(const LocalServer& server, std::chrono::milliseconds time)
    {
        HttpLimits limits;
        limits.time = time;
        NetworkHttpClient http(limits);
        const test::FakePackageInformation package = test::release(u"1.2"_s, u"42"_s);
        const test::FixedClock clock;
        const AppInfo info(package, clock, Calendar(QTimeZone::utc()));
        const Product product{{}, {}, server.url()};
        const UpdateChecker checker(http, info, product);
        const UpdateCheckResult result = QCoro::waitFor(checker.checkForUpdates());
        if (result)
            return *result ? (*result)->id() : u"current"_s;
        const auto* error = std::get_if<UpdateCheckError>(&result.error());
        if (error == nullptr)
            return u"transport"_s;
        return error->which == UpdateCheckError::Case::invalidResponse ? u"invalidResponse"_s : u"invalidManifest"_s;
    }
};

ABISSORA_TEST(tst_UpdateCheckOverHttp);
#include "tst_UpdateCheckOverHttp.moc"
