// SPDX-License-Identifier: MIT
#include "IoError.h"

#include <cstring>
#include <system_error>

namespace abissora {

IoError IoError::fromErrno(int error)
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 32)
    // Unlike strerror(), never translated: the log reads the same on every desktop.
    if (const char* description = strerrordesc_np(error))
        return {QString::fromLatin1(description)};
#endif
    return {QString::fromStdString(std::generic_category().message(error))};
}

} // namespace abissora
