// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "LocalServer.h"
#include "NetworkHttpClient.h"
#include "TestRunner.h"

#include <QSemaphore>
#include <QTest>
#include <dlfcn.h>
#include <netdb.h>

using namespace abissora;
using namespace std::chrono_literals;
using test::LocalServer;

namespace {

constexpr HttpLimits patient{60s, 1024, 4096};
constexpr HttpLimits hurried{100ms, 1024, 4096};

const QByteArray okHead("HTTP/1.1 200 OK\r\n");
const QByteArray chunked = okHead + "Transfer-Encoding: chunked\r\n\r\n";
const QByteArray kilobyte(1024, 'x');

constexpr auto nobodysName = "nobody.invalid";
QSemaphore nameIsAnswered;

} // namespace

/// In the place of the system's own, for the transport: one name is not answered for until the test says so.
extern "C" int getaddrinfo(const char* name, const char* service, const addrinfo* hints, addrinfo** found)
{
    if (name != nullptr && qstrcmp(name, nobodysName) == 0) {
        nameIsAnswered.acquire();
        return EAI_NONAME;
    }
    const auto system = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return system(name, service, hints, found);
}

/// What one press costs the server: whatever it does, it is asked once, and what was given up is over.
class tst_HttpOneRequest : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneRequestWhateverHappens_data()
    {
        QTest::addColumn<LocalServer::Behaviour>("behaviour");
        QTest::addColumn<HttpLimits>("limits");
        QTest::addColumn<std::optional<int>>("status");
        const auto row = [](const char* name, const LocalServer::Behaviour& behaviour, const HttpLimits& limits,
                            std::optional<int> status) { QTest::newRow(name) << behaviour << limits << status; };
        const auto fails = std::nullopt;
        row("answers", LocalServer::answers("200 OK", "x"), patient, 200);
        row("closes", LocalServer::closes(), patient, fails);
        row("resets", LocalServer::resets(), patient, fails);
        row("half a head", LocalServer::sends("HTTP/1.1 200 OK\r\nContent-Le"), patient, fails);
        row("only tells to wait", LocalServer::sends("HTTP/1.1 100 Continue\r\n\r\n"), patient, fails);
        row("half a body", LocalServer::sends(okHead + "Content-Length: 9\r\n\r\n{"), patient, fails);
        row("half a piece", LocalServer::sends(chunked + "9\r\n{"), patient, fails);
        row("half an error", LocalServer::sends("HTTP/1.1 500 Oops\r\nContent-Length: 9\r\n\r\n{"), patient, 500);
        row("half an error's head", LocalServer::sends("HTTP/1.1 500 Oops\r\nContent-Le"), patient, fails);
        row("foreign", LocalServer::sends("SSH-2.0-OpenSSH_9.2\r\n"), patient, fails);
        row("bytes", LocalServer::sends(QByteArray("\x16\x03\x01\x00\x05\x01\r\n\r\n", 10)), patient, fails);
        row("a proxy's password", LocalServer::answers("407 Proxy Authentication Required", "x"), patient, 407);
        row("a proxy's password, named",
            LocalServer::answers("407 Proxy Authentication Required", "x", "Proxy-Authenticate: Basic realm=\"a\"\r\n"),
            patient, 407);
        row("a password", LocalServer::answers("401 Unauthorized", "x", "WWW-Authenticate: Digest realm=\"a\"\r\n"),
            patient, 401);
        row("too busy", LocalServer::answers("503 Service Unavailable", "x", "Retry-After: 0\r\n"), patient, 503);
        row("too early", LocalServer::answers("425 Too Early", "x"), patient, 425);
        row("took too long", LocalServer::answers("408 Request Timeout", "x", "Connection: close\r\n"), patient, 408);
        row("never answers", LocalServer::hangsAfter({}), hurried, fails);
        row("stops within the head", LocalServer::hangsAfter(okHead), hurried, fails);
        row("endless headers", LocalServer::floodsAfter(okHead, "X-More: " + kilobyte + "\r\n"), patient, fails);
        row("an endless header", LocalServer::floodsAfter(okHead + "X-More: ", kilobyte), patient, fails);
        row("endless first line", LocalServer::floodsAfter("HTTP/1.1 200 ", kilobyte), patient, fails);
        row("endless heads", LocalServer::floodsAfter({}, "HTTP/1.1 100 Continue\r\n\r\n"), patient, fails);
        row("endless trailers", LocalServer::floodsAfter(chunked + "0\r\n", "X-More: " + kilobyte + "\r\n"), patient,
            fails);
        row("an endless extension", LocalServer::floodsAfter(chunked + "1;x=", kilobyte), patient, 200);
        row("endless extensions", LocalServer::floodsAfter(chunked, "1;x=" + kilobyte + "\r\na\r\n"), patient, 200);
        row("an error's endless extension",
            LocalServer::floodsAfter("HTTP/1.1 500 Oops\r\nTransfer-Encoding: chunked\r\n\r\n1;x=", kilobyte), patient,
            500);
        row("endless body", LocalServer::floodsAfter(okHead + "\r\n", kilobyte), patient, 200);
        row("endless error", LocalServer::floodsAfter("HTTP/1.1 500 Oops\r\n\r\n", kilobyte), patient, 500);
    }

    void oneRequestWhateverHappens()
    {
        QFETCH(LocalServer::Behaviour, behaviour);
        QFETCH(HttpLimits, limits);
        QFETCH(std::optional<int>, status);
        LocalServer server;
        for (int i = 0; i < 10; ++i) // for whoever comes again
            server.next(behaviour);
        NetworkHttpClient client(limits);
        const HttpResult result = QCoro::waitFor(client.get(server.url()));
        QCOMPARE(result.has_value(), status.has_value());
        if (status)
            QCOMPARE(result->status, *status);
        // The client is still there, its connection is not.
        QTRY_COMPARE(server.open(), 0);
        QTRY_VERIFY(!client.isBusy());
        QCOMPARE(server.requests().size(), 1);
        QCOMPARE(server.connections(), 1);
    }

    void nothingIsSentToWhoSpeaksFirst_data()
    {
        QTest::addColumn<LocalServer::Behaviour>("greeting");
        QTest::newRow("closes") << LocalServer::closes();
        QTest::newRow("resets") << LocalServer::resets();
        QTest::newRow("mail") << LocalServer::sends("220 mail.example ESMTP\r\n");
        QTest::newRow("floods") << LocalServer::floodsAfter("220 ", kilobyte);
    }

    void nothingIsSentToWhoSpeaksFirst()
    {
        QFETCH(LocalServer::Behaviour, greeting);
        LocalServer server;
        server.greet(greeting);
        NetworkHttpClient client(patient);
        QVERIFY(!QCoro::waitFor(client.get(server.url())));
        QTRY_COMPARE(server.open(), 0);
        QCOMPARE(server.connections(), 1);
    }

    void aServerWithoutEncryption()
    {
        LocalServer server;
        QUrl url = server.url();
        url.setScheme(u"https"_s);
        server.greet(LocalServer::sends("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n"));
        NetworkHttpClient client(patient);
        QVERIFY(!QCoro::waitFor(client.get(url)));
        QTRY_COMPARE(server.open(), 0);
        QCOMPARE(server.connections(), 1);
        QCOMPARE(server.requests().size(), 0);
    }

    void eachStepOfARedirectionIsAskedOnce()
    {
        LocalServer server;
        server.next(LocalServer::redirectsTo(server.url(u"/next.json"_s)));
        for (int i = 0; i < 10; ++i)
            server.next(LocalServer::closes());
        NetworkHttpClient client(patient);
        QVERIFY(!QCoro::waitFor(client.get(server.url())));
        QTRY_COMPARE(server.open(), 0);
        QCOMPARE(server.requests().size(), 2);
    }

    void anEndlessLookUpIsGivenUp()
    {
        NetworkHttpClient client(hurried);
        const QUrl url(u"http://%1/version.json"_s.arg(QLatin1String(nobodysName)));
        const HttpResult result = QCoro::waitFor(client.get(url)); // which would not return if it waited for the name
        QVERIFY(!result);
        QCOMPARE(result.error().kind, HttpError::Kind::TimedOut);
        QTRY_VERIFY(!client.isBusy());
        nameIsAnswered.release();
    }

    void aConnectionEndsWithItsClient()
    {
        LocalServer server;
        server.next(LocalServer::floodsAfter(okHead, "X-More: x\r\n"));
        server.next(LocalServer::hangsAfter({}));
        auto client = std::make_unique<NetworkHttpClient>(HttpLimits{60s, 1024, 1'000'000'000});
        auto first = client->get(server.url());
        auto second = client->get(server.url());
        QTRY_COMPARE(server.requests().size(), 2);
        client.reset();
        QTRY_COMPARE(server.open(), 0);
        QVERIFY(!QCoro::waitFor(first) && !QCoro::waitFor(second));
    }
};

ABISSORA_TEST(tst_HttpOneRequest);
#include "tst_HttpOneRequest.moc"
