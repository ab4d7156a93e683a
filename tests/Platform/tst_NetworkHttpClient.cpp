// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "LocalServer.h"
#include "NetworkHttpClient.h"
#include "TestRunner.h"

#include <QTest>
#include <QThread>

using namespace abissora;
using namespace std::chrono_literals;
using test::LocalServer;

namespace {

constexpr HttpLimits patient{.time = 60s, .bodyBytes = 1024};
constexpr HttpLimits hurried{.time = 100ms, .bodyBytes = 1024};
constexpr HttpLimits never{.time = std::chrono::hours(24), .bodyBytes = 1024};

const QByteArray body(R"({"version":"1.3.0"})");

} // namespace

class tst_NetworkHttpClient : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPlainGet()
    {
        LocalServer server;
        server.next(LocalServer::answers("200 OK", body));
        QCOMPARE(get(server, patient), HttpResult(HttpResponse{200, body}));
        QCOMPARE(server.requests().size(), 1);
        const QList<QByteArray> lines = server.requests().first().split('\n');
        QCOMPARE(lines.first(), QByteArray("GET /version.json HTTP/1.1\r"));
        for (const QByteArray& line : lines.mid(1)) {
            const QByteArray name = line.left(line.indexOf(':')).toLower();
            QVERIFY2(QList<QByteArray>({"host", "accept", "accept-encoding", "user-agent"}).contains(name),
                     line.constData());
        }
        QVERIFY(!server.requests().first().contains("issora"));
    }

    void everyStatusIsAnAnswer_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("status");
        for (const char* line : {"200 OK",
                                 "201 Created",
                                 "203 Non-Authoritative Information",
                                 "206 Partial Content",
                                 "300 Multiple Choices",
                                 "400 Bad Request",
                                 "401 Unauthorized",
                                 "403 Forbidden",
                                 "404 Not Found",
                                 "405 Method Not Allowed",
                                 "409 Conflict",
                                 "410 Gone",
                                 "418 Teapot",
                                 "451 Unavailable",
                                 "500 Internal Server Error",
                                 "501 Not Implemented",
                                 "502 Bad Gateway",
                                 "503 Service Unavailable",
                                 "504 Gateway Timeout",
                                 "599 Unknown"})
            QTest::newRow(line) << QByteArray(line) << QByteArray(line).left(3).toInt();
    }

    void everyStatusIsAnAnswer()
    {
        QFETCH(QByteArray, line);
        QFETCH(int, status);
        LocalServer server;
        server.next(LocalServer::answers(line, body));
        QCOMPARE(get(server, patient), HttpResult(HttpResponse{status, body}));
    }

    void answersWithoutABody_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("status");
        QTest::newRow("empty") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n") << 200;
        QTest::newRow("no length") << QByteArray("HTTP/1.1 200 OK\r\n\r\n") << 200;
        QTest::newRow("no content") << QByteArray("HTTP/1.1 204 No Content\r\n\r\n") << 204;
        QTest::newRow("not modified") << QByteArray("HTTP/1.1 304 Not Modified\r\n\r\n") << 304;
        QTest::newRow("not found") << QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n") << 404;
        QTest::newRow("redirection to nowhere") << QByteArray("HTTP/1.1 302 Found\r\nContent-Length: 0\r\n\r\n") << 302;
    }

    void answersWithoutABody()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, status);
        LocalServer server;
        server.next(LocalServer::sends(bytes));
        QCOMPARE(get(server, patient), HttpResult(HttpResponse{status, QByteArray()}));
    }

    void bodiesInPieces()
    {
        LocalServer server;
        server.next(LocalServer::sends("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                                       "3\r\nabc\r\n5\r\ndefgh\r\n0\r\n\r\n"));
        QCOMPARE(get(server, patient), HttpResult(HttpResponse{200, QByteArray("abcdefgh")}));
        server.next(LocalServer::sends("HTTP/1.0 200 OK\r\n\r\nuntil the end"));
        QCOMPARE(get(server, patient), HttpResult(HttpResponse{200, QByteArray("until the end")}));
    }

    void redirectionsAreFollowed()
    {
        LocalServer server;
        server.next(LocalServer::redirectsTo(server.url(u"/elsewhere.json"_s)));
        server.next(LocalServer::answers("200 OK", body));
        QCOMPARE(get(server, patient), HttpResult(HttpResponse{200, body}));
        QCOMPARE(server.requests().size(), 2);
        QVERIFY(server.requests().at(1).startsWith("GET /elsewhere.json "));
    }

    void redirectionsThatAreNot_data()
    {
        QTest::addColumn<QUrl>("target");
        QTest::newRow("file") << QUrl(u"file:///etc/hostname"_s);
        QTest::newRow("resource") << QUrl(u"qrc:/appicon/abissora.svg"_s);
        QTest::newRow("ftp") << QUrl(u"ftp://127.0.0.1/x"_s);
    }

    void redirectionsThatAreNot()
    {
        QFETCH(QUrl, target);
        LocalServer server;
        server.next(LocalServer::redirectsTo(target));
        const HttpResult result = get(server, patient);
        QVERIFY(result.has_value());
        QCOMPARE(result->status, 302);
        QCOMPARE(server.requests().size(), 1);
    }

    void aRedirectionToNobody()
    {
        LocalServer server;
        LocalServer gone;
        gone.close();
        server.next(LocalServer::redirectsTo(gone.url()));
        QCOMPARE(failure(get(server, patient)), HttpError::Kind::Transfer);
    }

    void redirectionsInACircleEnd()
    {
        LocalServer server;
        for (int i = 0; i < 100; ++i)
            server.next(LocalServer::redirectsTo(server.url()));
        const HttpResult result = get(server, patient);
        QVERIFY(result.has_value());
        QCOMPARE(result->status, 302);
        QVERIFY(server.requests().size() < 100);
    }

    void nothingLeadsFromHttpsToHttp()
    {
        const QUrl safe(u"https://abissora.example/"_s);
        const QUrl unsafe(u"http://abissora.example/"_s);
        QVERIFY(NetworkHttpClient::mayRedirect(safe, safe));
        QVERIFY(NetworkHttpClient::mayRedirect(unsafe, safe));
        QVERIFY(NetworkHttpClient::mayRedirect(unsafe, unsafe));
        QVERIFY(!NetworkHttpClient::mayRedirect(safe, unsafe));
        for (const char* text : {"", "https://", "https:///x", "file:///etc/hostname", "version.json"})
            QVERIFY2(!NetworkHttpClient::mayRedirect(unsafe, QUrl(QLatin1String(text))), text);
    }

    void nothingIsKept()
    {
        LocalServer server;
        NetworkHttpClient client(patient);
        server.next(LocalServer::answers("200 OK", body, "Set-Cookie: a=b\r\nCache-Control: max-age=9999\r\n"));
        server.next(LocalServer::answers("200 OK", body));
        QVERIFY(QCoro::waitFor(client.get(server.url())).has_value());
        QVERIFY(QCoro::waitFor(client.get(server.url())).has_value());
        QCOMPARE(server.requests().size(), 2);
        QVERIFY(!server.requests().at(1).toLower().contains("cookie"));
    }

    void theBodyHasALimit_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("whole");
        QTest::newRow("just fits") << QByteArray("Content-Length: 1024\r\n") << 1024 << true;
        QTest::newRow("just fits, no length") << QByteArray() << 1024 << true;
        QTest::newRow("a byte too much") << QByteArray("Content-Length: 1025\r\n") << 1025 << false;
        QTest::newRow("a byte too much, no length") << QByteArray() << 1025 << false;
        QTest::newRow("far too much") << QByteArray("Content-Length: 50000000\r\n") << 5'000'000 << false;
        QTest::newRow("far too much, no length") << QByteArray() << 5'000'000 << false;
    }

    void theBodyHasALimit()
    {
        QFETCH(QByteArray, head);
        QFETCH(int, size);
        QFETCH(bool, whole);
        LocalServer server;
        const QByteArray bytes(size, 'x');
        server.next(LocalServer::sends("HTTP/1.1 200 OK\r\n" + head + "\r\n" + bytes));
        QCOMPARE(get(server, patient), HttpResult(HttpResponse{200, whole ? std::optional(bytes) : std::nullopt}));
    }

    void theHeadHasALimit()
    {
        HttpLimits limits = patient;
        limits.headBytes = 2000;
        LocalServer server;
        server.next(LocalServer::answers("200 OK", body, "X-More: " + QByteArray(1900, 'x') + "\r\n"));
        QCOMPARE(get(server, limits), HttpResult(HttpResponse{200, body}));
        server.next(LocalServer::answers("200 OK", body, "X-More: " + QByteArray(2000, 'x') + "\r\n"));
        QCOMPARE(failure(get(server, limits)), HttpError::Kind::Transfer);
    }

    void aBodyWithoutEndIsGivenUp()
    {
        LocalServer server;
        server.next(LocalServer::dripsAfter("HTTP/1.1 404 Not Found\r\n\r\n"));
        QCOMPARE(get(server, never), HttpResult(HttpResponse{404, std::nullopt}));
    }

    void aPackedBodyCountsUnpacked()
    {
        // 4 MiB of zeros in 4 KiB.
        QByteArray packed = qCompress(QByteArray(qsizetype{4} * 1024 * 1024, '\0'), 9).mid(4);
        LocalServer server;
        server.next(LocalServer::answers("200 OK", packed, "Content-Encoding: deflate\r\n"));
        const HttpResult result = get(server, patient);
        QCOMPARE(result, HttpResult(HttpResponse{200, std::nullopt}));
    }

    void brokenConnections_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing at all") << QByteArray();
        QTest::newRow("half a head") << QByteArray("HTTP/1.1 200 OK\r\nContent-Le");
        QTest::newRow("half a body") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n{\"version\"");
        QTest::newRow("mail") << QByteArray("220 mail.example ESMTP\r\n");
        QTest::newRow("bytes") << QByteArray("\x16\x03\x01\x00\x05\x01\x00\x00\x01\x00\r\n\r\n", 14);
        QTest::newRow("bare manifest") << body + "\r\n\r\n";
        QTest::newRow("no body") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n");
    }

    void brokenConnections()
    {
        QFETCH(QByteArray, bytes);
        LocalServer server;
        server.next(LocalServer::sends(bytes));
        const HttpResult result = get(server, patient);
        QCOMPARE(failure(result), HttpError::Kind::Transfer);
        QVERIFY(!result.error().reason.isEmpty());
    }

    void nobodyListens()
    {
        LocalServer server;
        server.close();
        QCOMPARE(failure(get(server, patient)), HttpError::Kind::Transfer);
    }

    void addressesThatAreNone()
    {
        for (const char* text : {"", "version.json", "ftp://127.0.0.1/", "http://"}) {
            NetworkHttpClient client(patient);
            QVERIFY2(!QCoro::waitFor(client.get(QUrl(QLatin1String(text)))), text);
        }
    }

    void serversThatNeverEnd_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("drips");
        const QByteArray head("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n");
        QTest::newRow("silent") << QByteArray() << false;
        QTest::newRow("silent after half a head") << QByteArray("HTTP/1.1 200") << false;
        QTest::newRow("silent after the head") << head << false;
        QTest::newRow("silent after half a body") << head + "{" << false;
        QTest::newRow("dripping") << head << true;
        QTest::newRow("dripping head") << QByteArray("HTTP/1.1 200 OK\r\nX: ") << true;
    }

    void serversThatNeverEnd()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, drips);
        LocalServer server;
        server.next(drips ? LocalServer::dripsAfter(bytes) : LocalServer::hangsAfter(bytes));
        // A limit that no drop reaches.
        QCOMPARE(failure(get(server, {.time = hurried.time, .bodyBytes = 1'000'000})), HttpError::Kind::TimedOut);
    }

    void aClientThatGoesAwayAnswers()
    {
        LocalServer server;
        server.next(LocalServer::hangsAfter("HTTP/1.1 200 OK\r\n"));
        server.next(LocalServer::hangsAfter({}));
        auto client = std::make_unique<NetworkHttpClient>(never);
        auto first = client->get(server.url());
        auto second = client->get(server.url());
        QTRY_COMPARE(server.requests().size(), 2);
        QVERIFY(!first.isReady() && !second.isReady());
        QVERIFY(client->isBusy());
        client.reset();
        QVERIFY(first.isReady() && second.isReady());
        QCOMPARE(failure(QCoro::waitFor(first)), HttpError::Kind::Cancelled);
        QCOMPARE(failure(QCoro::waitFor(second)), HttpError::Kind::Cancelled);
    }

    void nobodyNeedsToWait()
    {
        LocalServer server;
        server.next(LocalServer::answers("200 OK", body));
        NetworkHttpClient client(patient);
        QVERIFY(!client.isBusy());
        bool answered = false;
        const auto ask = [&]() -> QCoro::Task<> { answered = (co_await client.get(server.url())).has_value(); };
        ask();
        QTRY_VERIFY(answered);
        QTRY_VERIFY(!client.isBusy());
    }

    void requestsAtTheSameTimeAreApart()
    {
        LocalServer server;
        server.next(LocalServer::answers("200 OK", "first"));
        server.next(LocalServer::answers("500 Oops", "second"));
        NetworkHttpClient client(patient);
        auto first = client.get(server.url());
        QTRY_COMPARE(server.requests().size(), 1);
        auto second = client.get(server.url());
        QCOMPARE(QCoro::waitFor(second), HttpResult(HttpResponse{500, QByteArray("second")}));
        QCOMPARE(QCoro::waitFor(first), HttpResult(HttpResponse{200, QByteArray("first")}));
    }

private:
    static HttpResult get(const LocalServer& server, const HttpLimits& limits)
    {
        NetworkHttpClient client(limits);
        return QCoro::waitFor(client.get(server.url()));
    }

    static HttpError::Kind failure(const HttpResult& result)
    {
        if (result)
            qFatal("answered with status %d", result->status);
        return result.error().kind;
    }
};

ABISSORA_TEST(tst_NetworkHttpClient);
#include "tst_NetworkHttpClient.moc"
