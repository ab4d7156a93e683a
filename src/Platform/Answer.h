// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>
#include <optional>
#include <utility>

namespace abissora {

/// The answer that one coroutine waits for, once; whoever gives it resumes the coroutine.
template <typename T>
class Answer
{
public:
    struct Awaiter
    {
        [[nodiscard]] bool await_ready() const noexcept { return answer->m_value.has_value(); }
        void await_suspend(std::coroutine_handle<> waiting) const noexcept { answer->m_waiting = waiting; }
        [[nodiscard]] T await_resume() const { return answer->m_value.value(); }

        Answer* answer;
    };

    [[nodiscard]] Awaiter given() { return {this}; }

    /// The first counts. The coroutine may end the answer's own life.
    void give(const T& value)
    {
        if (m_value)
            return;
        m_value.emplace(value);
        if (m_waiting)
            std::exchange(m_waiting, {}).resume();
    }

private:
    std::optional<T> m_value;
    std::coroutine_handle<> m_waiting;
};

} // namespace abissora
