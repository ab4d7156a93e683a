// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QByteArray>

namespace abissora {

/// Whole-file operations that survive a crash, a full disk and a power cut: a temporary file in the same folder,
/// created exclusively, is written whole and synced, then renamed into place, then the folder is synced. After a
/// failure the old file is intact and the temporary one gone. Folders must exist.
namespace AtomicFile {

/// Replaces what stands at `path`.
[[nodiscard]] IoResult<void> replace(const QString& path, const QByteArray& bytes);

/// Copies a regular file to `target`, which must not exist ("File exists" otherwise).
[[nodiscard]] IoResult<void> copy(const QString& source, const QString& target);

/// The whole content of a regular file.
[[nodiscard]] IoResult<QByteArray> read(const QString& path);

/// Creates the folder and its missing parents; an existing folder is not an error.
[[nodiscard]] IoResult<void> makeFolder(const QString& path);

} // namespace AtomicFile

} // namespace abissora
