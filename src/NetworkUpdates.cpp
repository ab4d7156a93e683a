// SPDX-License-Identifier: MIT
#include "NetworkUpdates.h"

#include "NetworkHttpClient.h"
#include "ProductAddress.h"

namespace abissora {

UpdateSource networkUpdates()
{
    return networkUpdatesWithin({});
}

UpdateSource networkUpdatesWithin(const HttpLimits& limits)
{
    auto http = std::make_unique<NetworkHttpClient>(limits);
    const NetworkHttpClient& client = *http;
    return {webAddress(QStringLiteral(ABISSORA_MANIFEST_URL)), std::move(http), [&client] { return client.isBusy(); }};
}

} // namespace abissora
