// SPDX-License-Identifier: MIT
#include "ManifestProperties.h"

#include "Literals.h"
#include "RecordJson.h"
#include "UpdateChecker.h"

namespace abissora::test {

QString faultWithManifest(const QByteArray& json)
{
    constexpr qsizetype longest = 500;
    const auto manifest = decodeManifest(json);
    if (!manifest) {
        const QString description = manifest.error().description();
        return manifest.error().message.isEmpty() || description.size() > longest
                   ? u"the error's description has the wrong length: "_s + description
                   : QString();
    }
    if (UpdateChecker::compareVersions(manifest->version, manifest->version) != 0)
        return u"a version differs from itself"_s;
    const auto info = UpdateInfo::from(*manifest);
    if (!info)
        return {};
    if (!info->id().startsWith(manifest->version) || info->build != manifest->build)
        return u"the update is not what the manifest says"_s;
    const auto again = decodeUpdateInfo(encode(*info));
    if (!again)
        return u"what was written cannot be read: "_s + again.error().description();
    if (encode(*again) != encode(*info))
        return u"the same update is written in another way"_s;
    return {};
}

} // namespace abissora::test
