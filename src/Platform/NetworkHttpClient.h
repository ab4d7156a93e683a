// SPDX-License-Identifier: MIT
#pragma once

#include "HttpClient.h"

#include <QObject>
#include <chrono>

class QNetworkRequest;

namespace abissora {

struct HttpLimits
{
    std::chrono::milliseconds time = std::chrono::minutes(1); ///< for a whole request, redirections included
    qint64 bodyBytes = 1024 * 1024;                           ///< after decompression
};

/// Follows redirections, never from https to http. Keeps no cookies, no cache and no connection from one request to the
/// next, and creates nothing before the first.
class NetworkHttpClient final : public HttpClient
{
public:
    explicit NetworkHttpClient(HttpLimits limits = {});
    ~NetworkHttpClient() override;
    Q_DISABLE_COPY_MOVE(NetworkHttpClient)

    [[nodiscard]] QCoro::Task<HttpResult> get(QUrl url) override;

    /// A request is under way, or was until the events that are being handled.
    [[nodiscard]] bool isBusy() const { return !m_transfers.children().isEmpty(); }

    [[nodiscard]] static QNetworkRequest request(const QUrl& url);

private:
    HttpLimits m_limits;
    QObject m_transfers; ///< owns those under way, and nothing else
};

} // namespace abissora
