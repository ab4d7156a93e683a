// SPDX-License-Identifier: MIT
#include "GuideProperties.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray document(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const QString fault = abissora::test::faultWithGuide(document); !fault.isEmpty())
        qFatal("%s", qPrintable(fault));
    return 0;
}
