// SPDX-License-Identifier: MIT
#include "HttpClientAnswer.h"

namespace abissora {

void HttpClientAnswer::give(const HttpResult& result)
{
    m_result.emplace(result);
    if (m_waiting)
        std::exchange(m_waiting, {}).resume();
}

} // namespace abissora
