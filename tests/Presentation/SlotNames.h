// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceRecords.h"

namespace abissora::test {

inline constexpr auto receipt = DocumentSlot::Receipt;
inline constexpr auto certificate = DocumentSlot::Certificate;

} // namespace abissora::test
