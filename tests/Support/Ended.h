// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QCoroTask>

namespace abissora::test {

/// A task that has ended before anybody waits for it.
inline QCoro::Task<IoResult<void>> ended(IoResult<void> outcome)
{
    co_return outcome;
}

} // namespace abissora::test
