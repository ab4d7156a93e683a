// SPDX-License-Identifier: MIT
#include "QuitSignals.h"

#include "TestRunner.h"

#include <QTest>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>

using namespace abissora;

namespace {

using Handler = void (*)(int);

Handler handlerOf(int number)
{
    struct sigaction action
    {};
    if (::sigaction(number, nullptr, &action) != 0)
        qFatal("no such signal");
    return action.sa_handler;
}

int descriptors()
{
    int count = 0;
    for (int descriptor = 0; descriptor < 1000; ++descriptor)
        count += ::fcntl(descriptor, F_GETFD) == -1 ? 0 : 1;
    return count;
}

} // namespace

class tst_QuitSignals : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstIsAWish_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("hang-up") << SIGHUP;
        QTest::newRow("interrupt") << SIGINT;
        QTest::newRow("termination") << SIGTERM;
    }

    void theFirstIsAWish()
    {
        QFETCH(const int, number);
        int wishes = 0;
        const QuitSignals signals([&wishes] { ++wishes; });
        errno = EDOM;
        QCOMPARE(::raise(number), 0);
        QCOMPARE(errno, EDOM);
        QCOMPARE(wishes, 0); // from the event loop only
        QTRY_COMPARE(wishes, 1);
        // The next one ends the process.
        QVERIFY(handlerOf(SIGINT) == SIG_DFL);
        QVERIFY(handlerOf(SIGTERM) == SIG_DFL);
    }

    void aHangUpAfterwardsChangesNothing()
    {
        int wishes = 0;
        const QuitSignals signals([&wishes] { ++wishes; });
        for (const int number : {SIGTERM, SIGHUP, SIGHUP})
            QCOMPARE(::raise(number), 0);
        QTRY_COMPARE(wishes, 1);
        QCOMPARE(::raise(SIGHUP), 0);
        QCoreApplication::processEvents();
        QCOMPARE(wishes, 1);
    }

    void whatIsIgnoredStaysSo()
    {
        const Handler before = std::signal(SIGHUP, SIG_IGN); // as nohup does
        int wishes = 0;
        {
            const QuitSignals signals([&wishes] { ++wishes; });
            QCOMPARE(::raise(SIGHUP), 0);
            QCoreApplication::processEvents();
            QCOMPARE(wishes, 0);
            QCOMPARE(::raise(SIGTERM), 0);
            QTRY_COMPARE(wishes, 1);
            QVERIFY(handlerOf(SIGHUP) == SIG_IGN);
        }
        QVERIFY(handlerOf(SIGHUP) == SIG_IGN);
        std::signal(SIGHUP, before);
    }

    void atItsEndAllIsAsBefore()
    {
        const int open = descriptors();
        const std::array before{handlerOf(SIGHUP), handlerOf(SIGINT), handlerOf(SIGTERM)};
        {
            const QuitSignals signals([] {});
            QCOMPARE(descriptors(), open + 2);
            QCOMPARE(::raise(SIGTERM), 0);
        }
        QVERIFY((std::array{handlerOf(SIGHUP), handlerOf(SIGINT), handlerOf(SIGTERM)} == before));
        QCOMPARE(descriptors(), open);
    }
};

ABISSORA_TEST(tst_QuitSignals);
#include "tst_QuitSignals.moc"
