// SPDX-License-Identifier: MIT
#pragma once

#include "AppInfo.h"
#include "HttpClient.h"
#include "Product.h"
#include "UpdateInfo.h"

#include <memory>
#include <variant>

namespace abissora {

/// Why a check for updates failed, with a description for the user.
struct UpdateCheckError
{
    enum class Case { network, invalidResponse, invalidManifest };

    Case which = Case::network;
    std::optional<HttpError> underlying{}; ///< of Case::network

    [[nodiscard]] QString errorDescription() const;
    friend bool operator==(const UpdateCheckError&, const UpdateCheckError&) = default;
};

/// An HttpError is a transport's failure, passed on as it is.
using UpdateCheckFailure = std::variant<UpdateCheckError, HttpError>;
/// The newer release; nothing when the running one is the newest.
using UpdateCheckResult = tl::expected<std::optional<UpdateInfo>, UpdateCheckFailure>;

/// Asks the website whether a newer release exists.
class UpdateChecker
{
public:
    /// Everything passed by reference must outlive it.
    UpdateChecker(HttpClient& http, const AppInfo& info, const Product& product);

    /// An answer that comes when the checker is gone counts as cancelled.
    [[nodiscard]] QCoro::Task<UpdateCheckResult> checkForUpdates() const;

    /// 1 when `a` is newer than `b`, -1 when older, 0 when equal. Pieces between dots that are no numbers do not count.
    [[nodiscard]] static int compareVersions(const QString& a, const QString& b);
    /// Newer than the running program.
    [[nodiscard]] bool isNewer(const QString& version, std::int64_t build) const;

private:
    [[nodiscard]] UpdateCheckResult judge(const HttpResponse& response) const;

    HttpClient& m_http;
    const AppInfo& m_info;
    const Product& m_product;
    std::shared_ptr<const bool> m_alive = std::make_shared<const bool>(true); ///< dies with the checker
};

} // namespace abissora
