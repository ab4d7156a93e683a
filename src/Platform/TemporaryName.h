// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora::AtomicFile {

/// ".abissora-0123456789abcdef.tmp" with random digits.
[[nodiscard]] QString temporaryName();

} // namespace abissora::AtomicFile
