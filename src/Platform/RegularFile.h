// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QByteArray>
#include <functional>

namespace abissora {

/// Files of any size and origin: what is no regular file is an error, and a pipe without a writer never holds the
/// program. Both functions may run on any thread.
namespace RegularFile {

/// The first `size` bytes; fewer only when the file has no more.
[[nodiscard]] IoResult<QByteArray> beginning(const QString& path, qsizetype size);

/// How far a copy is, in bytes: asked before the first block, after each one and before the copy gets its name. False
/// ends it.
using GoesOn = std::function<bool(qint64 copied, qint64 whole)>;

/// AtomicFile::copy for files that take a while. A copy that was ended leaves no file ("Operation canceled"). The disk
/// takes in every part before the next one is read, so that the figures are true and little is left to wait for.
[[nodiscard]] IoResult<void> copy(const QString& source, const QString& target, const GoesOn& goesOn);

} // namespace RegularFile

} // namespace abissora
