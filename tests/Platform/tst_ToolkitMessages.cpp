// SPDX-License-Identifier: MIT
#include "ToolkitMessages.h"

#include "Literals.h"
#include "TestRunner.h"

#include <QTest>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <latch>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace abissora;

namespace {

using namespace std::chrono_literals;

/// The smallest there is.
class Pipe
{
public:
    Pipe()
    {
        if (::pipe2(m_ends.data(), O_CLOEXEC) != 0 || ::fcntl(m_ends[0], F_SETPIPE_SZ, 1) < 0)
            qFatal("no pipe");
    }
    ~Pipe()
    {
        for (const int end : m_ends)
            ::close(end);
    }
    Q_DISABLE_COPY_MOVE(Pipe)

    [[nodiscard]] int writer() const { return m_ends[1]; }

    /// What can be read without waiting.
    [[nodiscard]] QByteArray read() const
    {
        QByteArray bytes;
        std::array<char, 4096> block{};
        pollfd waiting{m_ends[0], POLLIN, 0};
        while (::poll(&waiting, 1, 0) > 0 && (waiting.revents & POLLIN) != 0)
            bytes.append(block.data(), qsizetype(::read(m_ends[0], block.data(), block.size())));
        return bytes;
    }

private:
    std::array<int, 2> m_ends{-1, -1};
};

/// The test's own handler comes back.
class Installed
{
public:
    explicit Installed(int descriptor, ReaderAllowance allowance = {})
    {
        m_messages.emplace(descriptor, allowance);
        m_before = qInstallMessageHandler(ToolkitMessages::handler());
    }
    ~Installed()
    {
        m_messages.reset();
        qInstallMessageHandler(m_before);
    }
    Q_DISABLE_COPY_MOVE(Installed)

private:
    std::optional<ToolkitMessages> m_messages;
    QtMessageHandler m_before = nullptr;
};

} // namespace

class tst_ToolkitMessages : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        // Whoever waits for a reader here waits for ever.
        ::alarm(60);
    }
    void cleanup()
    {
        ::alarm(0);
        qSetMessagePattern(u"%{if-category}%{category}: %{endif}%{message}"_s);
    }

    void aMessageIsALineInItsForm()
    {
        const Pipe pipe;
        const Installed installed(pipe.writer());
        qWarning("una è");
        QCOMPARE(pipe.read(), QByteArray("una è\n"));
        qSetMessagePattern(u"%{type}: %{message}"_s);
        qInfo("due");
        QCOMPARE(pipe.read(), QByteArray("info: due\n"));
        qSetMessagePattern(QString());
        qInfo("niente");
        QCOMPARE(pipe.read(), QByteArray());
    }

    void aReaderThatStopsHoldsNobody()
    {
        const Pipe pipe;
        const Installed installed(pipe.writer());
        QByteArray expected;
        for (int i = 0; i < 1000; ++i) {
            qInfo("messaggio %d", i);
            expected += "messaggio " + QByteArray::number(i) + '\n';
        }
        QByteArray received;
        // Each one takes with it what there is room for.
        for (int i = 0; i < 10; ++i) {
            received += pipe.read();
            qInfo("dopo");
            expected += "dopo\n";
        }
        QCOMPARE(received + pipe.read(), expected);
    }

    void anyThreadMayWrite_data()
    {
        QTest::addColumn<int>("round");
        for (int round = 1; round <= 8; ++round) // two threads need not meet in one
            QTest::addRow("%d", round) << round;
    }

    void anyThreadMayWrite()
    {
        const Pipe pipe;
        constexpr qsizetype count = 5000;
        QByteArray received;
        {
            const Installed installed(pipe.writer(), {.patience = 60s});
            std::array<std::thread, 4> threads;
            std::latch together(threads.size());
            for (std::thread& thread : threads)
                thread = std::thread([&together] {
                    together.arrive_and_wait();
                    for (qsizetype i = 0; i < count; ++i)
                        qInfo("da un altro");
                });
            for (std::thread& thread : threads)
                thread.join();
            while (received.count('\n') < count * 4) {
                received += pipe.read();
                qInfo("da un altro");
            }
        }
        QCOMPARE(QByteArray(received).replace("da un altro\n", ""), QByteArray());
    }

    void aFatalMessageIsWrittenBeforeTheProcessAborts()
    {
        const Pipe pipe;
        const pid_t child = ::fork();
        if (child == 0) {
            const rlimit noPicture{0, 0};
            ::setrlimit(RLIMIT_CORE, &noPicture);
            std::signal(SIGABRT, SIG_DFL);
            const Installed installed(pipe.writer());
            qFatal("fatale");
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGABRT);
        QCOMPARE(pipe.read(), QByteArray("fatale\n"));
    }

    void theLastWordIsWaitedFor()
    {
        const Pipe pipe;
        const QString word(20'000, u'x');
        QByteArray received;
        {
            const Installed installed(pipe.writer(), {.patience = 60s});
            std::thread writer([&word] { ToolkitMessages::writeLast(word); });
            while (received.size() < word.size() + 1)
                received += pipe.read();
            writer.join();
        }
        QCOMPARE(received, word.toUtf8() + '\n');
    }

    void atTheEndMessagesGoTheToolkitsWay()
    {
        const Pipe pipe;
        const QtMessageHandler before = qInstallMessageHandler(nullptr);
        {
            const ToolkitMessages messages(pipe.writer());
            qInstallMessageHandler(ToolkitMessages::handler());
        }
        const QtMessageHandler after = qInstallMessageHandler(before);
        QVERIFY(after != ToolkitMessages::handler());
        ToolkitMessages::write(QtInfoMsg, {}, u"niente"_s);
        QCOMPARE(pipe.read(), QByteArray());
    }
};

ABISSORA_TEST(tst_ToolkitMessages);
#include "tst_ToolkitMessages.moc"
