// SPDX-License-Identifier: MIT
#include "NetworkHttpClient.h"

#include "Answer.h"
#include "HttpTransfer.h"

#include <QNetworkProxyFactory>
#include <QTimer>

namespace abissora {

namespace {

constexpr int mostRedirections = 20;

bool isWebAddress(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() && (url.scheme() == "https"_L1 || url.scheme() == "http"_L1);
}

QByteArray schemeOf(QNetworkProxy::ProxyType type)
{
    switch (type) {
    case QNetworkProxy::HttpProxy:
    case QNetworkProxy::HttpCachingProxy:
        return "http";
    case QNetworkProxy::Socks5Proxy:
        return "socks5h"; // which looks the name up itself
    default:
        return {};
    }
}

/// The first that the system names, as a browser would do. It may be none.
HttpProxy proxyFor(const QUrl& url)
{
    for (const QNetworkProxy& proxy : QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(url))) {
        if (proxy.type() == QNetworkProxy::NoProxy)
            break;
        QUrl address;
        address.setScheme(QString::fromLatin1(schemeOf(proxy.type())));
        address.setHost(proxy.hostName());
        address.setPort(proxy.port());
        if (!address.scheme().isEmpty() && !address.host().isEmpty())
            return {address.toEncoded(), proxy.user().toUtf8(), proxy.password().toUtf8()};
    }
    return {};
}

/// One request under way, with the transfers that it takes.
class Request : public QObject
{
public:
    Request(const QUrl& url, const HttpLimits& limits, QObject* parent);

    void cancel() { finish(tl::unexpected(HttpError::cancelled())); }

    [[nodiscard]] Answer<HttpResult>::Awaiter answer() { return m_answer.given(); }

private:
    void fetch(const QUrl& url);
    void handleEnd();
    void finish(const HttpResult& result);

    QUrl m_url;
    HttpLimits m_limits;
    tl::expected<CurlLibrary, QString> m_curl = CurlLibrary::load();
    std::unique_ptr<HttpTransfer, QScopedPointerDeleteLater> m_transfer; ///< its own signal may end its life
    QTimer m_deadline;
    int m_redirections = 0;
    Answer<HttpResult> m_answer;
};

Request::Request(const QUrl& url, const HttpLimits& limits, QObject* parent)
    : QObject(parent)
    , m_limits(limits)
{
    // A silence of its own would not do: a server that says a word now and then would never end.
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        finish(tl::unexpected(HttpError{HttpError::Kind::TimedOut, u"The request took too long"_s}));
    });
    m_deadline.start(limits.time);
    if (!m_curl)
        finish(tl::unexpected(HttpError{HttpError::Kind::Transfer, m_curl.error()}));
    else if (!isWebAddress(url))
        finish(tl::unexpected(HttpError{HttpError::Kind::Transfer, u"This is no web address"_s}));
    else
        fetch(url);
}

void Request::fetch(const QUrl& url)
{
    m_url = url;
    m_transfer.reset(new HttpTransfer(*m_curl, url, proxyFor(url), m_limits));
    connect(m_transfer.get(), &HttpTransfer::ended, this, &Request::handleEnd);
}

void Request::handleEnd()
{
    const QUrl next = m_transfer->redirection();
    if (m_redirections < mostRedirections && NetworkHttpClient::mayRedirect(m_url, next)) {
        ++m_redirections;
        fetch(next);
        return;
    }
    finish(HttpResult(m_transfer->result()));
}

void Request::finish(const HttpResult& result)
{
    m_deadline.stop();
    if (m_transfer) {
        m_transfer->disconnect(this);
        m_transfer->giveUp();
    }
    m_answer.give(result);
}

} // namespace

NetworkHttpClient::NetworkHttpClient(HttpLimits limits)
    : m_limits(limits)
{}

NetworkHttpClient::~NetworkHttpClient()
{
    const QObjectList requests = m_requests.children();
    for (QObject* request : requests)
        static_cast<Request*>(request)->cancel();
}

QCoro::Task<HttpResult> NetworkHttpClient::get(QUrl url)
{
    // It is resumed from inside the request, which therefore goes away later.
    const std::unique_ptr<Request, QScopedPointerDeleteLater> request(new Request(url, m_limits, &m_requests));
    co_return co_await request->answer();
}

bool NetworkHttpClient::mayRedirect(const QUrl& from, const QUrl& to)
{
    return isWebAddress(to) && (to.scheme() == "https"_L1 || from.scheme() == "http"_L1);
}

} // namespace abissora
