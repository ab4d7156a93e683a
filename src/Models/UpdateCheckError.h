// SPDX-License-Identifier: MIT
#pragma once

#include "HttpClient.h"

namespace abissora {

/// Why a check for updates failed, with a description for the user.
struct UpdateCheckError
{
    enum class Case { network, invalidResponse, invalidManifest };

    Case which;
    std::optional<HttpError> underlying{}; ///< of Case::network

    [[nodiscard]] QString errorDescription() const;
    friend bool operator==(const UpdateCheckError&, const UpdateCheckError&) = default;
};

} // namespace abissora
