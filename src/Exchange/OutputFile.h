// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QByteArray>
#include <functional>

class QIODevice;

namespace abissora {

/// Files that a person gets, outside the register's folder. They appear whole, in the place of an existing one, or not
/// at all; who may read them is what the person's other new files say. A link is followed. What is no regular file, as
/// a pipe, is written directly.
namespace OutputFile {

/// "Non è stato possibile scrivere «/home/x/a.csv»: No space left on device"
[[nodiscard]] QString failure(const QString& path, const IoError& error);

/// What `fill` fails with leaves what was there. A device that does not take everything is an error, too.
[[nodiscard]] IoResult<void> write(const QString& path, const std::function<IoResult<void>(QIODevice&)>& fill);
[[nodiscard]] IoResult<void> write(const QString& path, const QByteArray& bytes);

} // namespace OutputFile

} // namespace abissora
