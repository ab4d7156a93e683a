// SPDX-License-Identifier: MIT
#pragma once

#include "HttpClient.h"

#include <functional>
#include <memory>

namespace abissora {

/// Where newer releases are announced, and who asks there.
struct UpdateSource
{
    QUrl manifestURL;
    std::unique_ptr<HttpClient> http;
    std::function<bool()> isBusy; ///< whether an answer is awaited
};

/// Gives nothing in a program that looks for no newer releases. Called once the toolkit is there.
using OpenUpdateSource = std::function<std::optional<UpdateSource>()>;

/// In the place of a network where there is none; nobody asks it.
class NoHttpClient final : public HttpClient
{
public:
    [[nodiscard]] QCoro::Task<HttpResult> get(QUrl /*url*/) override
    {
        co_return tl::unexpected(HttpError{HttpError::Kind::Transfer, u"This program asks nobody"_s});
    }
};

} // namespace abissora
