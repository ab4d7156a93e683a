// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <tl/expected.hpp>

namespace abissora {

/// Why an operation on the file system failed, in the operating system's own words ("No space left on device").
struct IoError
{
    QString reason;

    [[nodiscard]] static IoError fromErrno(int error);
    friend bool operator==(const IoError&, const IoError&) = default;
};

template <typename T>
using IoResult = tl::expected<T, IoError>;

} // namespace abissora
