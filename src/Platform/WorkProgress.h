// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

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

} // namespace abissora
