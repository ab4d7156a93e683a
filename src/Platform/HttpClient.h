// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QByteArray>
#include <QCoroTask>
#include <QUrl>
#include <optional>
#include <tl/expected.hpp>

namespace abissora {

struct HttpResponse
{
    int status = 0;
    std::optional<QByteArray> body; ///< nothing when it was larger than the client takes or cannot be unpacked

    friend bool operator==(const HttpResponse&, const HttpResponse&) = default;
};

/// Why a request was not answered.
struct HttpError
{
    enum class Kind {
        Transfer, ///< no connection, a broken one, or somebody who does not speak HTTP
        TimedOut,
        Cancelled,
    };

    Kind kind = Kind::Transfer;
    QString reason; ///< in the transport's own words, which are English and not meant for the person

    [[nodiscard]] static HttpError cancelled() { return {Kind::Cancelled, u"The request was cancelled"_s}; }
    friend bool operator==(const HttpError&, const HttpError&) = default;
};

using HttpResult = tl::expected<HttpResponse, HttpError>;

class HttpClient
{
public:
    virtual ~HttpClient() = default;

    /// One plain GET without headers of its own. Completes on the calling thread, always: a client that goes away
    /// answers what is under way with HttpError::Kind::Cancelled.
    [[nodiscard]] virtual QCoro::Task<HttpResult> get(QUrl url) = 0;
};

} // namespace abissora
