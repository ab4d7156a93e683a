// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace abissora {

/// What the website says of the newest release, as it says it.
struct UpdateManifest
{
    QString version;
    std::int64_t build = 0;
    QString downloadURL;
    std::optional<QString> releaseNotes;

    friend bool operator==(const UpdateManifest&, const UpdateManifest&) = default;
};

} // namespace abissora
