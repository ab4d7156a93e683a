// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace abissora::test {

/// What is wrong with how `json` is read and written; empty when nothing is. A text is either refused with a message
/// of one short line, or decodes to records whose encoding decodes to the same records and is encoded the same again.
[[nodiscard]] QString faultWithEquipment(const QByteArray& json);
[[nodiscard]] QString faultWithTypes(const QByteArray& json);
[[nodiscard]] QString faultWithRegister(const QByteArray& json);

} // namespace abissora::test
