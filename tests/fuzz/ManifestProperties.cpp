// SPDX-License-Identifier: MIT
#include "ManifestProperties.h"

#include "UpdateChecker.h"
#include "UpdateJson.h"

namespace abissora::test {

QString faultWithManifest(const QByteArray& json)
{
    constexpr qsizetype longest = 500;
    const auto manifest = decodeManifest(json);
    if (!manifest) {
        const QString description = manifest.error().description();
        return manifest.error().message.isEmpty() || description.size() > longest
                   ? QStringLiteral("the error's description has the wrong length: ") + description
                   : QString();
    }
    if (UpdateChecker::compareVersions(manifest->version, manifest->version) != 0)
        return QStringLiteral("a version differs from itself");
    const auto info = UpdateInfo::from(*manifest);
    if (!info)
        return {};
    if (!info->id().startsWith(manifest->version) || info->build != manifest->build)
        return QStringLiteral("the update is not what the manifest says");
    const auto again = decodeUpdateInfo(encode(*info));
    if (!again)
        return QStringLiteral("what was written cannot be read: ") + again.error().description();
    if (encode(*again) != encode(*info))
        return QStringLiteral("the same update is written in another way");
    return {};
}

} // namespace abissora::test
