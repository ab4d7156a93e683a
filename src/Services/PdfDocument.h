// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

namespace abissora {

/// Told by the file's beginning, whatever its name. The reason is the operating system's when the file cannot be read
/// or is no regular file, else "Not a PDF document". May run on any thread.
[[nodiscard]] IoResult<void> checkPdf(const QString& path);
[[nodiscard]] bool isPdf(const QString& path);

} // namespace abissora
