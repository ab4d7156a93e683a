// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstddef>

namespace abissora {

/// How far a piece of work is and whether it shall go on: what its thread shares with those who wait for it. Every
/// member may be used on any thread.
class WorkProgress
{
public:
    /// What is done, from 0 to 1.
    [[nodiscard]] double fraction() const { return m_fraction; }
    void setFraction(double fraction) { m_fraction = fraction; }

    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }
    void cancel() { m_isCancelled = true; }

private:
    std::atomic<double> m_fraction = 0;
    std::atomic<bool> m_isCancelled = false;
};

/// A piece of work of many small steps, of which hardly any costs more than counting it.
class WorkSteps
{
public:
    /// Without a progress nobody hears of it and nothing is cancelled.
    WorkSteps(WorkProgress* progress, std::ptrdiff_t count)
        : m_progress(progress)
        , m_count(count)
    {}

    /// Before each step; false once the rest of them shall be left.
    [[nodiscard]] bool goesOn()
    {
        constexpr std::ptrdiff_t between = 64;
        if (m_progress == nullptr || m_done++ % between != 0)
            return true;
        m_progress->setFraction(static_cast<double>(m_done) / static_cast<double>(m_count));
        return !m_progress->isCancelled();
    }

private:
    WorkProgress* m_progress;
    std::ptrdiff_t m_count;
    std::ptrdiff_t m_done = 0;
};

} // namespace abissora
