// SPDX-License-Identifier: MIT
#include "ProcessSetup.h"
#include "TestRunner.h"

#include <QTest>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace abissora;

namespace {

/// Runs `check` in a process of its own and gives what it returns, at most 255, or less than 0 for what killed it.
int inAProcess(const std::function<int()>& check)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit noPicture{0, 0};
        ::setrlimit(RLIMIT_CORE, &noPicture);
        ::_exit(check());
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child)
        qFatal("no process");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

bool isNullDevice(int descriptor)
{
    struct stat status
    {};
    struct stat null
    {};
    return ::fstat(descriptor, &status) == 0 && ::stat("/dev/null", &null) == 0 && status.st_rdev == null.st_rdev;
}

} // namespace

class tst_ProcessSetup : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void closedStreamsGoToTheNullDevice_data()
    {
        QTest::addColumn<QList<int>>("closed");
        QTest::newRow("input") << QList<int>{0};
        QTest::newRow("output") << QList<int>{1};
        QTest::newRow("error") << QList<int>{2};
        QTest::newRow("output and error") << QList<int>{1, 2};
        QTest::newRow("all") << QList<int>{0, 1, 2};
    }

    void closedStreamsGoToTheNullDevice()
    {
        QFETCH(QList<int>, closed);
        const int outcome = inAProcess([&closed] {
            std::array<int, 2> ends{};
            if (::pipe(ends.data()) != 0)
                return 1;
            for (const int stream : {0, 1, 2}) {
                ::dup2(ends[1], stream);
                if (closed.contains(stream))
                    ::close(stream);
            }
            ProcessSetup::openStandardStreams();
            for (const int stream : {0, 1, 2}) {
                if (isNullDevice(stream) != closed.contains(stream))
                    return 2;
            }
            char byte = 'x';
            if (closed.contains(0) && ::read(0, &byte, 1) != 0)
                return 3;
            if (::write(1, &byte, 1) != 1 || ::write(2, &byte, 1) != 1)
                return 4;
            // What is started inherits them.
            return (::fcntl(1, F_GETFD) & FD_CLOEXEC) != 0 ? 5 : 0;
        });
        QCOMPARE(outcome, 0);
    }

    void failedWritesAreErrors()
    {
        const int outcome = inAProcess([] {
            ProcessSetup::outliveFailedWrites();
            std::array<int, 2> ends{};
            if (::pipe(ends.data()) != 0 || ::close(ends[0]) != 0)
                return 1;
            if (::write(ends[1], "x", 1) != -1 || errno != EPIPE)
                return 2;
            return writeBeyondALimit() == EFBIG ? 0 : 3;
        });
        QCOMPARE(outcome, 0);
    }

    void theSignalsComeBack_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("broken pipe") << SIGPIPE;
        QTest::newRow("file too large") << SIGXFSZ;
    }

    void theSignalsComeBack()
    {
        QFETCH(int, number);
        const int outcome = inAProcess([number] {
            ProcessSetup::outliveFailedWrites();
            if (::raise(number) != 0)
                return 1;
            ProcessSetup::restoreSignals();
            ::raise(number);
            return 2;
        });
        QCOMPARE(outcome, -number);
    }

private:
    /// The number of the error.
    static int writeBeyondALimit()
    {
        std::array<char, 32> name{"/tmp/abissora-test-XXXXXX"};
        const int file = ::mkstemp(name.data());
        if (file < 0 || ::unlink(name.data()) != 0)
            return 0;
        const rlimit limit{0, RLIM_INFINITY};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0 || ::write(file, "x", 1) != -1)
            return 0;
        return errno;
    }
};

ABISSORA_TEST(tst_ProcessSetup);
#include "tst_ProcessSetup.moc"
