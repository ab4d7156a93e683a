// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QTest>

namespace abissora::test {

template <typename T>
QString reason(const IoResult<T>& result)
{
    return result ? QString() : result.error().reason;
}

} // namespace abissora::test

/// Whatever the result, QCOMPARE shows the reason.
#define VERIFY_OK(result) QCOMPARE(abissora::test::reason(result), QString())
#define VERIFY_FAILED(result, number)                                                                                  \
    QCOMPARE(abissora::test::reason(result), abissora::IoError::fromErrno(number).reason)
