// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "RegisterFixture.h"

#include <QTest>

namespace abissora::test {

class ScreenFixture : public RegisterFixture
{
public:
    using RegisterFixture::RegisterFixture;

    AppContext context{equipment, types,  settings, updates, console,  clock,        ids,
                       documents, opener, info,     product, calendar, almanac.dates};
};

} // namespace abissora::test
