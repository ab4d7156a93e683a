// SPDX-License-Identifier: MIT
#pragma once

#include "ThreadedWork.h"

#include <QSemaphore>

namespace abissora::test {

/// Work on threads, each of which waits at the gate before it begins.
class GatedWork final : public LongWork
{
public:
    explicit GatedWork(ProgressPanel& panel)
        : m_threads(panel, std::chrono::minutes(1))
    {}
    Q_DISABLE_COPY_MOVE(GatedWork)
    ~GatedWork() override { m_gate->release(m_waiting); }

    QCoro::Task<IoResult<void>> run(QString title, Function work, std::shared_ptr<WorkProgress> progress) override
    {
        ++m_waiting;
        return m_threads.run(
            title,
            [work = std::move(work), gate = m_gate](WorkProgress& shared) {
                gate->acquire();
                return work(shared);
            },
            progress);
    }
    void open() { m_gate->release(std::exchange(m_waiting, 0)); }

private:
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
    int m_waiting = 0;
    ThreadedWork m_threads;
};

} // namespace abissora::test
