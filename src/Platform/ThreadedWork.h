// SPDX-License-Identifier: MIT
#pragma once

#include "LongWork.h"
#include "ProgressPanel.h"

#include <QObject>
#include <chrono>

namespace abissora {

/// Gives each piece of work a thread of its own and shows it in the panel.
class ThreadedWork final : public LongWork
{
public:
    /// `panel` must outlive it.
    explicit ThreadedWork(ProgressPanel& panel, std::chrono::milliseconds patience = std::chrono::seconds(1));
    /// Waits for what is under way no longer than its patience. A thread that the system holds even then, as for a
    /// disk that does not answer, is left to itself: it ends when the system lets it go, at the latest with the
    /// process.
    ~ThreadedWork() override;
    Q_DISABLE_COPY_MOVE(ThreadedWork)

    [[nodiscard]] QCoro::Task<IoResult<void>> run(QString title, Function work,
                                                  std::shared_ptr<WorkProgress> progress) override;

private:
    ProgressPanel& m_panel;
    std::chrono::milliseconds m_patience;
    QObject m_jobs; ///< owns those under way, and nothing else
};

} // namespace abissora
