// SPDX-License-Identifier: MIT
#include "HttpClientAnswer.h"

namespace abissora {

void HttpClientAnswer::give(HttpResult result)
{
    m_result.emplace(std::move(result));
    if (m_waiting)
        std::exchange(m_waiting, {}).resume();
}

} // namespace abissora
