// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace abissora::test {

/// What is wrong with how `json` is read as an update manifest; empty when nothing is. A text is either refused with a
/// message of one short line, or gives an update that is written and read again as the same, and whose texts can be
/// compared and shown.
[[nodiscard]] QString faultWithManifest(const QByteArray& json);

} // namespace abissora::test
