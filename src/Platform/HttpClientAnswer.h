// SPDX-License-Identifier: MIT
#pragma once

#include "HttpClient.h"

namespace abissora {

/// The answer that a coroutine waits for, once; whoever gives it resumes the coroutine. Must outlive that call.
class HttpClientAnswer
{
public:
    struct Awaiter
    {
        [[nodiscard]] bool await_ready() const noexcept { return answer->isGiven(); }
        void await_suspend(std::coroutine_handle<> waiting) const noexcept { answer->m_waiting = waiting; }
        [[nodiscard]] HttpResult await_resume() const { return *answer->m_result; }

        HttpClientAnswer* answer;
    };

    [[nodiscard]] Awaiter given() { return {this}; }
    [[nodiscard]] bool isGiven() const noexcept { return m_result.has_value(); }

    /// The first counts.
    void give(const HttpResult& result);
    void cancel();

private:
    std::optional<HttpResult> m_result;
    std::coroutine_handle<> m_waiting;
};

} // namespace abissora
