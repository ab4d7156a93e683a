// SPDX-License-Identifier: MIT
#include "UpdateInfo.h"

#include "Literals.h"

#include <QHashFunctions>

namespace abissora {

std::optional<UpdateInfo> UpdateInfo::from(const UpdateManifest& manifest)
{
    const QUrl address(manifest.downloadURL, QUrl::StrictMode);
    if (!address.isValid())
        return std::nullopt;
    return UpdateInfo{manifest.version, manifest.build, address, manifest.releaseNotes};
}

QString UpdateInfo::id() const
{
    return version + u'-' + QString::number(build);
}

QString UpdateInfo::versionAndBuild() const
{
    return version + u" (build "_s + QString::number(build) + u')';
}

size_t qHash(const UpdateInfo& info, size_t seed) noexcept
{
    return qHashMulti(seed, info.version, info.build, info.downloadURL, info.releaseNotes.has_value(),
                      info.releaseNotes.value_or(QString()));
}

} // namespace abissora
