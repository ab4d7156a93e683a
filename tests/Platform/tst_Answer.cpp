// SPDX-License-Identifier: MIT
#include "Answer.h"
#include "TestRunner.h"

#include <QCoroTask>
#include <QTest>

using namespace abissora;

namespace {

QCoro::Task<> receive(Answer<int>& answer, std::optional<int>& received)
{
    received = co_await answer.given();
}

/// The answer's life ends with the coroutine that waits for it.
QCoro::Task<int> wait(Answer<int>*& waitedFor)
{
    Answer<int> own;
    waitedFor = &own;
    co_return co_await own.given();
}

} // namespace

class tst_Answer : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comesLater()
    {
        Answer<int> answer;
        std::optional<int> received;
        receive(answer, received);
        QVERIFY(!received);
        answer.give(7);
        QCOMPARE(received, 7);
    }

    void isThereAlready()
    {
        Answer<int> answer;
        answer.give(7);
        std::optional<int> received;
        receive(answer, received);
        QCOMPARE(received, 7);
    }

    void theFirstCounts()
    {
        Answer<int> answer;
        answer.give(7);
        answer.give(8);
        std::optional<int> received;
        receive(answer, received);
        QCOMPARE(received, 7);
    }

    void mayEndWithTheCoroutine()
    {
        Answer<int>* waitedFor = nullptr;
        const auto task = wait(waitedFor);
        QVERIFY(!task.isReady());
        waitedFor->give(7);
        QVERIFY(task.isReady());
    }
};

ABISSORA_TEST(tst_Answer);
#include "tst_Answer.moc"
