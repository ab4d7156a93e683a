// SPDX-License-Identifier: MIT
#pragma once

#include "Stopwatch.h"

#include <QObject>
#include <QSemaphore>
#include <QThread>
#include <atomic>
#include <memory>

namespace abissora::benchmark {

/// How long the thread of the interface goes without answering, as another thread sees it: that one asks, waits for the
/// answer, and asks again a moment later. Whatever keeps the event loop, and whichever loop runs, counts.
class Pulse final : public QObject
{
public:
    Pulse();
    ~Pulse() override;
    Q_DISABLE_COPY_MOVE(Pulse)

    /// What came before counts no longer.
    void begin() { m_longest = 0; }
    /// The longest wait since begin(), of the answers that were given.
    [[nodiscard]] Duration longest() const { return Duration(m_longest); }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void ask();

    std::atomic<double> m_longest = 0; ///< milliseconds
    std::atomic<bool> m_isOver = false;
    QSemaphore m_answers;
    std::unique_ptr<QThread> m_asker;
};

} // namespace abissora::benchmark
