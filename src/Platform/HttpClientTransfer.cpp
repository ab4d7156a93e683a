// SPDX-License-Identifier: MIT
#include "HttpClientTransfer.h"

#include "Literals.h"

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

} // namespace

HttpClientTransfer::HttpClientTransfer(QNetworkRequest request, const HttpLimits& limits, QObject* parent)
    : QObject(parent)
    , m_bodyLimit(limits.bodyBytes)
{
    // What unpacks to much more than it weighs is given up before it is whole.
    request.setDecompressedSafetyCheckThreshold(limits.bodyBytes);
    m_reply = m_network.get(request);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpClientTransfer::readBody);
    connect(m_reply, &QNetworkReply::finished, this, &HttpClientTransfer::handleFinished);
    // The request's own time-out counts the silence only: a server that says a word now and then would never end.
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        finish(tl::unexpected(HttpError{HttpError::Kind::TimedOut, u"The request took too long"_s}));
    });
    m_deadline.start(limits.time);
}

void HttpClientTransfer::cancel()
{
    end();
    m_answer.cancel();
}

void HttpClientTransfer::readBody()
{
    m_body += m_reply->read(m_bodyLimit - m_body.size() + 1);
    if (m_body.size() > m_bodyLimit)
        finish(HttpResponse{status(), std::nullopt});
}

void HttpClientTransfer::handleFinished()
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

void HttpClientTransfer::finish(const HttpResult& result)
{
    end();
    m_answer.give(result);
}

void HttpClientTransfer::end()
{
    m_deadline.stop();
    m_reply->disconnect(this); // the connection ends when this object goes away
}

bool HttpClientTransfer::isCutShort() const
{
    // The toolkit itself does not always notice. It takes the length of what it unpacks away.
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() && m_body.size() < length.toLongLong();
}

int HttpClientTransfer::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace abissora
