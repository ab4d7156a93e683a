// SPDX-License-Identifier: MIT
#include "ThreadedWork.h"

#include "Answer.h"

#include <QDeadlineTimer>
#include <QPointer>
#include <QThread>
#include <cerrno>

namespace abissora {

namespace {

/// One piece of work under way, seen from the thread that waits for it.
class Job : public QObject
{
public:
    Job(LongWork::Function work, std::shared_ptr<WorkProgress> progress, QObject* parent);

    void cancel() { m_progress->cancel(); }
    /// The answer is given after this, by the thread or in its place.
    void end(const QDeadlineTimer& deadline);

    [[nodiscard]] Answer<IoResult<void>>::Awaiter answer() { return m_answer.given(); }

private:
    std::shared_ptr<WorkProgress> m_progress;
    std::shared_ptr<IoResult<void>> m_outcome = std::make_shared<IoResult<void>>(); ///< the thread's until it ends
    QPointer<QThread> m_thread; ///< deletes itself once it has ended
    Answer<IoResult<void>> m_answer;
};

Job::Job(LongWork::Function work, std::shared_ptr<WorkProgress> progress, QObject* parent)
    : QObject(parent)
    , m_progress(std::move(progress))
    , m_thread(QThread::create(
          [work = std::move(work), shared = m_progress, outcome = m_outcome] { *outcome = work(*shared); }))
{
    connect(m_thread, &QThread::finished, this, [this] { m_answer.give(*m_outcome); });
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    m_thread->start();
}

void Job::end(const QDeadlineTimer& deadline)
{
    if (m_thread && !m_thread->wait(deadline)) {
        m_answer.give(tl::unexpected(IoError::fromErrno(ECANCELED)));
        return;
    }
    delete m_thread;
    m_answer.give(*m_outcome);
}

} // namespace

ThreadedWork::ThreadedWork(ProgressPanel& panel, std::chrono::milliseconds patience)
    : m_panel(panel)
    , m_patience(patience)
{}

ThreadedWork::~ThreadedWork()
{
    const QObjectList jobs = m_jobs.children();
    for (QObject* job : jobs)
        static_cast<Job*>(job)->cancel();
    const QDeadlineTimer deadline(m_patience);
    for (QObject* job : jobs)
        static_cast<Job*>(job)->end(deadline);
}

QCoro::Task<IoResult<void>> ThreadedWork::run(QString title, Function work, std::shared_ptr<WorkProgress> progress)
{
    // It is resumed from inside the job, which therefore goes away later.
    const std::unique_ptr<Job, QScopedPointerDeleteLater> job(new Job(std::move(work), progress, &m_jobs));
    const auto showing = title.isEmpty() ? nullptr : m_panel.show(title, progress);
    co_return co_await job->answer();
}

} // namespace abissora
