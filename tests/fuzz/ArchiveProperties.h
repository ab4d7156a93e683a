// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace abissora::test {

/// What is wrong with how `bytes` are read as a copy of a register; empty when nothing is. They are either refused with
/// a sentence, or name only files that a register may hold, each of them once; and so when they are taken for a copy's
/// manifest, which is then written and read again as the same.
[[nodiscard]] QString faultWithArchive(const QByteArray& bytes);

} // namespace abissora::test
