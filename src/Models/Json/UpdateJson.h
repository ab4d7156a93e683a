// SPDX-License-Identifier: MIT
#pragma once

#include "JsonError.h"
#include "UpdateInfo.h"

#include <QByteArray>
#include <tl/expected.hpp>

namespace abissora {

/// One JSON object, read as strictly as the stored records (see RecordJson.h): the build is a whole number of 64 bits,
/// only the release notes may be missing or null.
[[nodiscard]] tl::expected<UpdateManifest, JsonError> decodeManifest(const QByteArray& json);

/// The manifest's form: the same members under the same names.
[[nodiscard]] QByteArray encode(const UpdateInfo& info);
[[nodiscard]] tl::expected<UpdateInfo, JsonError> decodeUpdateInfo(const QByteArray& json);

} // namespace abissora
