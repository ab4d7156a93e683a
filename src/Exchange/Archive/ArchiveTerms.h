// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QString>
#include <tl/expected.hpp>

/// What reading and writing copies of a register have in common.
namespace abissora::archived {

/// Bytes that are read, packed or written at a time.
inline constexpr int blockSize = 256 * 1024;

/// The sentence is for the person.
inline tl::unexpected<IoError> refused(const QString& sentence)
{
    return tl::unexpected(IoError{sentence});
}

} // namespace abissora::archived
