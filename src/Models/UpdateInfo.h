// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>
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

/// A newer release that is offered to the user.
struct UpdateInfo
{
    QString version;
    std::int64_t build = 0;
    QUrl downloadURL;
    std::optional<QString> releaseNotes;

    /// Nothing when the manifest's download address is none. Any scheme will do, and none at all.
    [[nodiscard]] static std::optional<UpdateInfo> from(const UpdateManifest& manifest);

    /// "1.3.0-57"
    [[nodiscard]] QString id() const;
    /// "1.3.0 (build 57)"
    [[nodiscard]] QString versionAndBuild() const;

    friend bool operator==(const UpdateInfo&, const UpdateInfo&) = default;
};

[[nodiscard]] size_t qHash(const UpdateInfo& info, size_t seed = 0) noexcept;

} // namespace abissora
