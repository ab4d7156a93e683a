// SPDX-License-Identifier: MIT
#pragma once

#include "HttpClient.h"
#include "HttpLimits.h"

#include <QObject>

namespace abissora {

/// Sends each request once. Follows redirections, never from https to http, and uses the system's proxies. Keeps no
/// cookies, no cache and no connection from one request to the next, and creates nothing before the first.
class NetworkHttpClient final : public HttpClient
{
public:
    explicit NetworkHttpClient(HttpLimits limits = {});
    ~NetworkHttpClient() override;
    Q_DISABLE_COPY_MOVE(NetworkHttpClient)

    [[nodiscard]] QCoro::Task<HttpResult> get(QUrl url) override;

    /// A request is under way, or was until the events that are being handled.
    [[nodiscard]] bool isBusy() const { return !m_requests.children().isEmpty(); }

    [[nodiscard]] static bool mayRedirect(const QUrl& from, const QUrl& to);

private:
    HttpLimits m_limits;
    QObject m_requests; ///< owns those under way, and nothing else
};

} // namespace abissora
