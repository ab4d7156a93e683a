// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentArchive.h"

namespace abissora::test {

/// At once, as nobody waits for it.
inline void purge(const DocumentArchive& archive)
{
    OldDocuments old = archive.oldDocuments();
    if (DocumentArchive::strikeOffNamed(old, {}))
        archive.remove(old);
}

} // namespace abissora::test
