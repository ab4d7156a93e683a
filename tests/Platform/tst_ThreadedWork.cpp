// SPDX-License-Identifier: MIT
#include "ThreadedWork.h"

#include "Fakes.h"
#include "IoChecks.h"
#include "TestRunner.h"

#include <QSemaphore>
#include <QThread>
#include <cerrno>

using namespace abissora;
using namespace abissora::test;

namespace {

using namespace std::chrono_literals;

const IoResult<void> fileTooLarge = tl::unexpected(IoError::fromErrno(EFBIG));

QCoro::Task<> runInto(std::optional<IoResult<void>>& outcome, LongWork& work, LongWork::Function function,
                      std::shared_ptr<WorkProgress> progress = std::make_shared<WorkProgress>())
{
    outcome = co_await work.run(u"Prova…"_s, std::move(function), std::move(progress));
}

IoResult<void> untilCancelled(WorkProgress& progress)
{
    while (!progress.isCancelled())
        QThread::yieldCurrentThread();
    return tl::unexpected(IoError::fromErrno(ECANCELED));
}

} // namespace

class tst_ThreadedWork : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void runsElsewhereAndAnswersHere()
    {
        FakeProgressPanel panel;
        ThreadedWork work(panel);
        QThread* there = nullptr;
        QThread* here = nullptr;
        const auto task = [&]() -> QCoro::Task<> {
            co_await work.run(
                u"Prova…"_s,
                [&there](WorkProgress&) {
                    there = QThread::currentThread();
                    return IoResult<void>();
                },
                std::make_shared<WorkProgress>());
            here = QThread::currentThread();
        };
        const auto running = task();
        QVERIFY(!running.isReady());
        QTRY_VERIFY(running.isReady());
        QCOMPARE(here, QThread::currentThread());
        QVERIFY(there != nullptr && there != here);
    }

    void theOutcomeIsTheFunctions()
    {
        FakeProgressPanel panel;
        ThreadedWork work(panel);
        std::optional<IoResult<void>> outcome;
        runInto(outcome, work, [](WorkProgress&) { return fileTooLarge; });
        QTRY_VERIFY(outcome);
        VERIFY_FAILED(*outcome, EFBIG);
    }

    void isShownWhileItLasts()
    {
        FakeProgressPanel panel;
        ThreadedWork work(panel);
        QSemaphore told;
        QSemaphore gate;
        std::optional<IoResult<void>> outcome;
        runInto(outcome, work, [&](WorkProgress& progress) {
            progress.setFraction(0.25);
            told.release();
            gate.acquire();
            return IoResult<void>();
        });
        QCOMPARE(panel.titles(), QStringList{u"Prova…"_s});
        told.acquire();
        QCOMPARE(panel.shown().size(), 1);
        QCOMPARE(panel.shown().first()->fraction(), 0.25);
        gate.release();
        QTRY_VERIFY(outcome);
        VERIFY_OK(*outcome);
        QVERIFY(panel.shown().isEmpty());
    }

    void everythingGoesOnMeanwhile()
    {
        FakeProgressPanel panel;
        ThreadedWork work(panel);
        QSemaphore gate;
        std::optional<IoResult<void>> outcome;
        runInto(outcome, work, [&gate](WorkProgress&) {
            gate.acquire();
            return IoResult<void>();
        });
        int turns = 0;
        for (int turn = 0; turn < 3; ++turn)
            QMetaObject::invokeMethod(
                this, [&turns] { ++turns; }, Qt::QueuedConnection);
        QTRY_COMPARE(turns, 3);
        QVERIFY(!outcome);
        gate.release();
        QTRY_VERIFY(outcome);
    }

    void severalAtATime()
    {
        FakeProgressPanel panel;
        ThreadedWork work(panel);
        QSemaphore gate;
        std::optional<IoResult<void>> first;
        std::optional<IoResult<void>> second;
        runInto(first, work, [&gate](WorkProgress&) {
            gate.acquire();
            return IoResult<void>();
        });
        runInto(second, work, [](WorkProgress&) { return fileTooLarge; });
        QTRY_VERIFY(second);
        QVERIFY(!first);
        QCOMPARE(panel.shown().size(), 1);
        gate.release();
        QTRY_VERIFY(first);
    }

    void thePersonCancels()
    {
        FakeProgressPanel panel;
        ThreadedWork work(panel);
        std::optional<IoResult<void>> outcome;
        runInto(outcome, work, untilCancelled);
        panel.shown().first()->cancel();
        QTRY_VERIFY(outcome);
        VERIFY_FAILED(*outcome, ECANCELED);
    }

    void whatIsUnderWayEndsWithIt()
    {
        FakeProgressPanel panel;
        auto work = std::make_unique<ThreadedWork>(panel, 1min);
        std::atomic<int> ended = 0;
        std::optional<IoResult<void>> first;
        std::optional<IoResult<void>> second;
        runInto(first, *work, [&ended](WorkProgress& progress) {
            auto cancelled = untilCancelled(progress);
            ++ended;
            return cancelled;
        });
        runInto(second, *work, [&ended](WorkProgress& progress) {
            static_cast<void>(untilCancelled(progress));
            ++ended;
            return fileTooLarge;
        });
        work.reset();
        QCOMPARE(ended, 2);
        VERIFY_FAILED(first.value(), ECANCELED);
        VERIFY_FAILED(second.value(), EFBIG);
        QVERIFY(panel.shown().isEmpty());
    }

    void whatDoesNotEndIsLeftToItself()
    {
        FakeProgressPanel panel;
        auto work = std::make_unique<ThreadedWork>(panel, 0ms);
        QSemaphore gate;
        std::atomic<bool> ended = false;
        std::optional<IoResult<void>> outcome;
        runInto(outcome, *work, [&](WorkProgress&) {
            gate.acquire();
            ended = true;
            return IoResult<void>();
        });
        work.reset();
        QVERIFY(!ended);
        VERIFY_FAILED(outcome.value(), ECANCELED);
        gate.release();
        QTRY_VERIFY(ended);
        VERIFY_FAILED(*outcome, ECANCELED);
    }

    void whatHasEndedIsNotAskedAgain()
    {
        FakeProgressPanel panel;
        auto work = std::make_unique<ThreadedWork>(panel, 1min);
        QSemaphore done;
        std::optional<IoResult<void>> outcome;
        runInto(outcome, *work, [&done](WorkProgress&) {
            done.release();
            return fileTooLarge;
        });
        done.acquire();
        QVERIFY(!outcome); // nobody has heard of it yet
        work.reset();
        VERIFY_FAILED(outcome.value(), EFBIG);
    }
};

ABISSORA_TEST(tst_ThreadedWork);
#include "tst_ThreadedWork.moc"
