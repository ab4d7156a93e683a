// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstring>
#include <system_error>
#include <tl/expected.hpp>

namespace abissora {

/// Why an operation on the file system failed, in the operating system's own words ("No space left on device").
struct IoError
{
    QString reason;

    [[nodiscard]] static IoError fromErrno(int error)
    {
#if defined(__GLIBC__) && (__GLIBC__ > 2 || (__GLIBC__ == 2 && __GLIBC_MINOR__ >= 32))
        // Unlike strerror(), never translated: the log reads the same on every desktop.
        if (const char* description = strerrordesc_np(error))
            return {QString::fromLatin1(description)};
#endif
        return {QString::fromStdString(std::generic_category().message(error))};
    }

    friend bool operator==(const IoError&, const IoError&) = default;
};

template <typename T>
using IoResult = tl::expected<T, IoError>;

} // namespace abissora
