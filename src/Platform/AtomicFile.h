// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QByteArray>

namespace abissora {

/// Whole-file operations that survive a crash, a full disk and a power cut: a temporary file in the same folder,
/// created exclusively, is written whole and synced, then renamed into place, then the folder is synced. After a
/// failure the old file is intact and the temporary one gone; only when the very last step fails does the new file
/// already stand there, whole, without a promise that it outlives a power cut. Folders must exist. New files and
/// folders are readable by their owner only.
namespace AtomicFile {

/// Replaces what stands at `path`; a link is replaced, not followed.
[[nodiscard]] IoResult<void> replace(const QString& path, const QByteArray& bytes);

/// Copies a regular file to `target`, which must not exist ("File exists" otherwise).
[[nodiscard]] IoResult<void> copy(const QString& source, const QString& target);

/// Gives a file a second name, which must not exist. Needs neither space nor a readable file, but one file system.
[[nodiscard]] IoResult<void> link(const QString& source, const QString& target);

/// Renames a file or a folder within one file system; `target` must not exist ("File exists" otherwise). Both folders
/// are synced.
[[nodiscard]] IoResult<void> move(const QString& source, const QString& target);

/// Removes a file and syncs its folder.
[[nodiscard]] IoResult<void> remove(const QString& path);

/// Makes what was created in the folder outlive a power cut.
[[nodiscard]] IoResult<void> syncFolder(const QString& path);

/// The whole content of a regular file.
[[nodiscard]] IoResult<QByteArray> read(const QString& path);

/// Creates the folder and its missing parents; an existing folder is not an error.
[[nodiscard]] IoResult<void> makeFolder(const QString& path);

/// ".abissora-0123456789abcdef.tmp" with random digits.
[[nodiscard]] QString temporaryName();
/// Removes the temporary files and folders that a killed process left in `folder`. Nobody may be writing there.
void removeLeftovers(const QString& folder);

} // namespace AtomicFile

} // namespace abissora
