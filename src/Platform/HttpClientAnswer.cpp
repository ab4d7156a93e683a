// SPDX-License-Identifier: MIT
#include "HttpClientAnswer.h"

#include "Literals.h"

namespace abissora {

void HttpClientAnswer::give(const HttpResult& result)
{
    if (m_result)
        return;
    m_result.emplace(result);
    if (m_waiting)
        std::exchange(m_waiting, {}).resume();
}

void HttpClientAnswer::cancel()
{
    give(tl::unexpected(HttpError{HttpError::Kind::Cancelled, u"The request was cancelled"_s}));
}

} // namespace abissora
