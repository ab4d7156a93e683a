// SPDX-License-Identifier: MIT
#include "HttpTransfer.h"

#include <QSocketNotifier>

namespace abissora {

namespace {

constexpr int firstFinalStatus = 200;

bool isSuccess(int status)
{
    return status >= 200 && status < 300;
}

HttpResult failure(const QString& reason)
{
    return tl::unexpected(HttpError{HttpError::Kind::Transfer, reason});
}

} // namespace

HttpTransfer::HttpTransfer(const CurlLibrary& curl, const QUrl& url, const HttpProxy& proxy, const HttpLimits& limits)
    : m_curl(curl)
    , m_limits(limits)
    , m_multi(curl.multiInit())
    , m_easy(curl.easyInit())
    , m_result(failure(u"The request is under way"_s))
{
    if (m_multi == nullptr || m_easy == nullptr)
        throw std::bad_alloc();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT, 0); });
    m_curl.setMultiOption(m_multi, CURLMOPT_SOCKETFUNCTION, &HttpTransfer::watchSocket);
    m_curl.setMultiOption(m_multi, CURLMOPT_SOCKETDATA, this);
    m_curl.setMultiOption(m_multi, CURLMOPT_TIMERFUNCTION, &HttpTransfer::setTimer);
    m_curl.setMultiOption(m_multi, CURLMOPT_TIMERDATA, this);
    request(url, proxy);
    m_curl.add(m_multi, m_easy); // sets the timer that begins
}

HttpTransfer::~HttpTransfer()
{
    giveUp();
}

void HttpTransfer::request(const QUrl& url, const HttpProxy& proxy)
{
    const auto set = [this](CURLoption option, auto value) { m_curl.setOption(m_easy, option, value); };
    set(CURLOPT_URL, url.toEncoded(QUrl::RemoveFragment).constData());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    // A request of the newer protocol, or over a connection that was used before, would be sent again when it is lost.
    set(CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    set(CURLOPT_FRESH_CONNECT, 1L);
    set(CURLOPT_FORBID_REUSE, 1L);
    set(CURLOPT_FOLLOWLOCATION, 0L);
    set(CURLOPT_SSLVERSION, long(CURL_SSLVERSION_TLSv1_2));
    set(CURLOPT_ACCEPT_ENCODING, "gzip, deflate");
    set(CURLOPT_USERAGENT, "Mozilla/5.0"); // some servers turn away who has no name
    // An empty address is no proxy whatever the environment says, which was asked already.
    set(CURLOPT_PROXY, proxy.address.constData());
    set(CURLOPT_NOPROXY, "");
    if (!proxy.user.isEmpty()) {
        set(CURLOPT_PROXYUSERNAME, proxy.user.constData());
        set(CURLOPT_PROXYPASSWORD, proxy.password.constData());
    }
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L); // leaves the look-up of a name to end by itself
    set(CURLOPT_HEADERFUNCTION, &HttpTransfer::takeHeader);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_WRITEFUNCTION, &HttpTransfer::takeBody);
    set(CURLOPT_WRITEDATA, this);
    set(CURLOPT_VERBOSE, 1L); // tells the function of every byte
    set(CURLOPT_DEBUGFUNCTION, &HttpTransfer::countBytes);
    set(CURLOPT_DEBUGDATA, this);
}

int HttpTransfer::watchSocket(CURL*, curl_socket_t socket, int what, void* self, void*)
{
    auto* transfer = static_cast<HttpTransfer*>(self);
    Watch& watch = transfer->m_watches[socket];
    // It may be one of those being heard just now.
    for (auto* old : {&watch.incoming, &watch.outgoing}) {
        if (*old) {
            (*old)->setEnabled(false);
            old->release()->deleteLater();
        }
    }
    if (what == CURL_POLL_REMOVE) {
        transfer->m_watches.erase(socket);
        return 0;
    }
    if ((what & CURL_POLL_IN) != 0)
        watch.incoming = transfer->notifier(socket, false);
    if ((what & CURL_POLL_OUT) != 0)
        watch.outgoing = transfer->notifier(socket, true);
    return 0;
}

std::unique_ptr<QSocketNotifier> HttpTransfer::notifier(curl_socket_t socket, bool outgoing)
{
    auto made =
        std::make_unique<QSocketNotifier>(qintptr(socket), outgoing ? QSocketNotifier::Write : QSocketNotifier::Read);
    connect(made.get(), &QSocketNotifier::activated, this,
            [=, this] { act(socket, outgoing ? CURL_CSELECT_OUT : CURL_CSELECT_IN); });
    return made;
}

int HttpTransfer::setTimer(CURLM*, long milliseconds, void* self)
{
    QTimer& timer = static_cast<HttpTransfer*>(self)->m_timer;
    if (milliseconds < 0)
        timer.stop();
    else
        timer.start(std::chrono::milliseconds(milliseconds));
    return 0;
}

std::size_t HttpTransfer::takeHeader(char* data, std::size_t, std::size_t size, void* self)
{
    auto* transfer = static_cast<HttpTransfer*>(self);
    const QByteArrayView line(data, qsizetype(size));
    transfer->m_headBytes += line.size();
    transfer->m_isHeadTooLarge = transfer->m_headBytes > transfer->m_limits.headBytes;
    if (line.startsWith("HTTP/"))
        transfer->m_hasHead = false; // several come where the first only tells to wait
    else if (line.trimmed().isEmpty())
        transfer->m_hasHead = true;
    return transfer->m_isHeadTooLarge ? 0 : size;
}

std::size_t HttpTransfer::takeBody(char* data, std::size_t, std::size_t size, void* self)
{
    auto* transfer = static_cast<HttpTransfer*>(self);
    transfer->m_isBodyTooLarge = transfer->m_body.size() + qint64(size) > transfer->m_limits.bodyBytes;
    if (transfer->m_isBodyTooLarge)
        return 0;
    transfer->m_body.append(data, qsizetype(size));
    return size;
}

int HttpTransfer::countBytes(CURL*, curl_infotype type, char*, std::size_t size, void* self)
{
    auto* transfer = static_cast<HttpTransfer*>(self);
    if (type == CURLINFO_DATA_IN)
        transfer->m_wireBytes += qint64(size);
    return 0;
}

void HttpTransfer::act(curl_socket_t socket, int events)
{
    int running = 0;
    m_curl.act(m_multi, socket, events, &running);
    int left = 0;
    if (const CURLMsg* message = m_curl.nextMessage(m_multi, &left); message != nullptr) {
        end(message->data.result);
        return;
    }
    // The library itself reads on through what wraps the pieces of a body, however much that is.
    if (m_wireBytes - m_body.size() > m_limits.bodyBytes + m_limits.headBytes) {
        m_isBodyTooLarge = true;
        end(CURLE_WRITE_ERROR);
    }
}

void HttpTransfer::end(CURLcode code)
{
    m_result = outcome(code);
    const char* target = nullptr;
    m_curl.getInfo(m_easy, CURLINFO_REDIRECT_URL, &target);
    if (m_result && target != nullptr)
        m_redirection = QUrl::fromEncoded(target);
    giveUp();
    // Whoever hears it may delete this object, in which a notifier is being heard.
    QMetaObject::invokeMethod(this, &HttpTransfer::ended, Qt::QueuedConnection);
}

void HttpTransfer::giveUp()
{
    if (m_multi == nullptr)
        return;
    m_curl.remove(m_multi, m_easy);
    m_curl.easyCleanup(m_easy);
    m_curl.multiCleanup(m_multi);
    m_multi = nullptr;
    m_timer.stop();
}

HttpResult HttpTransfer::outcome(CURLcode code) const
{
    if (m_isHeadTooLarge)
        return failure(u"The answer's head is too large"_s);
    if (status() < firstFinalStatus || !m_hasHead)
        return failure(QString::fromUtf8(m_curl.errorText(code)));
    if (m_isBodyTooLarge || code == CURLE_BAD_CONTENT_ENCODING)
        return HttpResponse{status(), std::nullopt};
    // What another status brings along does not matter.
    if (code != CURLE_OK && isSuccess(status()))
        return failure(QString::fromUtf8(m_curl.errorText(code)));
    return HttpResponse{status(), m_body};
}

int HttpTransfer::status() const
{
    long status = 0;
    m_curl.getInfo(m_easy, CURLINFO_RESPONSE_CODE, &status);
    return int(status);
}

} // namespace abissora
