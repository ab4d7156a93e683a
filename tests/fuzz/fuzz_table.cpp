// SPDX-License-Identifier: MIT
#include "TableProperties.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const QString fault = abissora::test::faultWithImport(file); !fault.isEmpty())
        qFatal("%s", qPrintable(fault));
    return 0;
}
