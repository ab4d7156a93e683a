// SPDX-License-Identifier: MIT
#include "NetworkHttpClient.h"

#include "Answer.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace abissora {

namespace {

/// For the toolkit statuses from 400 on and redirections that it does not follow are errors, too.
bool isAnswer(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::NoError || error >= QNetworkReply::ContentAccessDenied ||
           error == QNetworkReply::TooManyRedirectsError || error == QNetworkReply::InsecureRedirectError;
}

bool isSuccess(int status)
{
    return status >= 200 && status < 300;
}

/// One request under way. It has a network of its own, so that nothing is left of it.
class Transfer : public QObject
{
public:
    Transfer(QNetworkRequest request, const HttpLimits& limits, QObject* parent);

    void cancel();

    [[nodiscard]] Answer<HttpResult>::Awaiter answer() { return m_answer.given(); }

private:
    void readBody();
    void handleFinished();
    void finish(const HttpResult& result);
    void end();
    [[nodiscard]] bool isCutShort() const;
    [[nodiscard]] int status() const;

    QNetworkAccessManager m_network;
    QNetworkReply* m_reply;
    QTimer m_deadline;
    qint64 m_bodyLimit;
    QByteArray m_body;
    Answer<HttpResult> m_answer;
};

Transfer::Transfer(QNetworkRequest request, const HttpLimits& limits, QObject* parent)
    : QObject(parent)
    , m_bodyLimit(limits.bodyBytes)
{
    // What unpacks to much more than it weighs is given up before it is whole.
    request.setDecompressedSafetyCheckThreshold(limits.bodyBytes);
    m_reply = m_network.get(request);
    connect(m_reply, &QNetworkReply::readyRead, this, &Transfer::readBody);
    connect(m_reply, &QNetworkReply::finished, this, &Transfer::handleFinished);
    // The request's own time-out counts the silence only: a server that says a word now and then would never end.
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        finish(tl::unexpected(HttpError{HttpError::Kind::TimedOut, u"The request took too long"_s}));
    });
    m_deadline.start(limits.time);
}

void Transfer::cancel()
{
    end();
    m_answer.give(tl::unexpected(HttpError::cancelled()));
}

void Transfer::readBody()
{
    m_body += m_reply->read(m_bodyLimit - m_body.size() + 1);
    if (m_body.size() > m_bodyLimit)
        finish(HttpResponse{status(), std::nullopt});
}

void Transfer::handleFinished()
{
    readBody();
    const auto error = m_reply->error();
    if (status() == 0 || !isAnswer(error))
        finish(tl::unexpected(HttpError{HttpError::Kind::Transfer, m_reply->errorString()}));
    else if (isSuccess(status()) && isCutShort())
        finish(tl::unexpected(HttpError{HttpError::Kind::Transfer, u"The answer is incomplete"_s}));
    else if (error != QNetworkReply::NoError && isSuccess(status())) // packed in a way that cannot be unpacked
        finish(HttpResponse{status(), std::nullopt});
    else
        finish(HttpResponse{status(), m_body});
}

void Transfer::finish(const HttpResult& result)
{
    end();
    m_answer.give(result);
}

void Transfer::end()
{
    m_deadline.stop();
    m_reply->disconnect(this); // the connection ends when this object goes away
}

bool Transfer::isCutShort() const
{
    // The toolkit itself does not always notice. It takes the length of what it unpacks away.
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() && m_body.size() < length.toLongLong();
}

int Transfer::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace

NetworkHttpClient::NetworkHttpClient(HttpLimits limits)
    : m_limits(limits)
{}

NetworkHttpClient::~NetworkHttpClient()
{
    const QObjectList transfers = m_transfers.children();
    for (QObject* transfer : transfers)
        static_cast<Transfer*>(transfer)->cancel();
}

QCoro::Task<HttpResult> NetworkHttpClient::get(QUrl url)
{
    // It is resumed from inside the transfer, which therefore goes away later.
    const std::unique_ptr<Transfer, QScopedPointerDeleteLater> transfer(
        new Transfer(request(url), m_limits, &m_transfers));
    co_return co_await transfer->answer();
}

QNetworkRequest NetworkHttpClient::request(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    return request;
}

} // namespace abissora
