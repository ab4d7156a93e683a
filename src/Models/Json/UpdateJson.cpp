// SPDX-License-Identifier: MIT
#include "UpdateJson.h"

#include "Literals.h"
#include "RecordReader.h"
#include "RecordWriter.h"

namespace abissora {

tl::expected<UpdateManifest, JsonError> decodeManifest(const QByteArray& json)
{
    UpdateManifest manifest;
    if (auto error = json::readInto(&manifest, json::SlotOf<UpdateManifest>::slot, json))
        return tl::unexpected(std::move(*error));
    return manifest;
}

QByteArray encode(const UpdateInfo& info)
{
    json::RecordWriter writer;
    writer.write(UpdateManifest{info.version, info.build,
                                QString::fromLatin1(info.downloadURL.toEncoded(QUrl::FullyEncoded)),
                                info.releaseNotes});
    return QByteArray::fromStdString(writer.text());
}

tl::expected<UpdateInfo, JsonError> decodeUpdateInfo(const QByteArray& json)
{
    const auto manifest = decodeManifest(json);
    if (!manifest)
        return tl::unexpected(manifest.error());
    if (auto info = UpdateInfo::from(*manifest))
        return std::move(*info);
    return tl::unexpected(JsonError{u".downloadURL"_s, u"expected an address"_s});
}

} // namespace abissora
