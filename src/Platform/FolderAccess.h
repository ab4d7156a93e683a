// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

namespace abissora {

/// Whether it can be told what a folder holds: it may be listed and its files looked up. "Not a directory" for what is
/// something else. Where nothing of that name is, there is nothing to be told, and that is no error.
[[nodiscard]] IoResult<void> checkFolder(const QString& path);

} // namespace abissora
