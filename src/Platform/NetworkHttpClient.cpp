// SPDX-License-Identifier: MIT
#include "NetworkHttpClient.h"

#include "HttpClientTransfer.h"

#include <QNetworkRequest>

namespace abissora {

NetworkHttpClient::NetworkHttpClient(HttpLimits limits)
    : m_limits(limits)
{}

NetworkHttpClient::~NetworkHttpClient()
{
    for (HttpClientTransfer* transfer : m_transfers.findChildren<HttpClientTransfer*>())
        transfer->cancel();
}

QCoro::Task<HttpResult> NetworkHttpClient::get(QUrl url)
{
    // It is resumed from inside the transfer, which therefore goes away later.
    const std::unique_ptr<HttpClientTransfer, QScopedPointerDeleteLater> transfer(
        new HttpClientTransfer(request(url), m_limits, &m_transfers));
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
