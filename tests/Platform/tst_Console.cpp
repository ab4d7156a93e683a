// SPDX-License-Identifier: MIT
#include "Console.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

using namespace abissora;

namespace {

class Pipe
{
public:
    Pipe() { m_open = pipe2(m_ends.data(), O_CLOEXEC) == 0; }
    ~Pipe()
    {
        closeReader();
        closeWriter();
    }
    Q_DISABLE_COPY_MOVE(Pipe)

    [[nodiscard]] bool isOpen() const { return m_open; }
    [[nodiscard]] int writer() const { return m_ends[1]; }
    void closeReader() { close(m_ends[0]); }
    void closeWriter() { close(m_ends[1]); }

    /// One read; empty at the end.
    QByteArray read() const
    {
        std::array<char, 4096> block{};
        const ssize_t count = ::read(m_ends[0], block.data(), block.size());
        return count > 0 ? QByteArray(block.data(), static_cast<qsizetype>(count)) : QByteArray();
    }

private:
    static void close(int& descriptor)
    {
        if (descriptor >= 0)
            ::close(std::exchange(descriptor, -1));
    }

    std::array<int, 2> m_ends{-1, -1};
    bool m_open = false;
};

} // namespace

class tst_Console : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void printsUtf8AndALineFeedAtOnce()
    {
        const Pipe pipe;
        QVERIFY(pipe.isOpen());
        StandardOutput output(pipe.writer());
        output.print(u"➕ Aggiunto: è"_s);
        QCOMPARE(pipe.read(), QByteArray("➕ Aggiunto: è\n"));
        output.print(u"uno\ndue"_s);
        QCOMPARE(pipe.read(), QByteArray("uno\ndue\n"));
        output.print(QString());
        QCOMPARE(pipe.read(), QByteArray("\n"));
    }

    void writesToStandardOutputByDefault()
    {
        const Pipe pipe;
        const int before = dup(STDOUT_FILENO);
        std::fflush(stdout);
        dup2(pipe.writer(), STDOUT_FILENO);
        StandardOutput().print(u"riga"_s);
        dup2(before, STDOUT_FILENO);
        ::close(before);
        QCOMPARE(pipe.read(), QByteArray("riga\n"));
    }

    void aReaderThatWentAwayIsForgottenForGood()
    {
        const auto handler = std::signal(SIGPIPE, SIG_IGN); // as the program does
        Pipe pipe;
        StandardOutput output(pipe.writer());
        pipe.closeReader();
        output.print(u"lost"_s);
        output.print(u"lost"_s);
        std::signal(SIGPIPE, handler);
    }

    void aBrokenOutputIsNotTriedAgain()
    {
        const Pipe pipe;
        const int descriptor = fcntl(pipe.writer(), F_DUPFD_CLOEXEC, 200);
        QVERIFY(descriptor >= 0);
        ::close(descriptor);
        StandardOutput output(descriptor);
        output.print(u"lost"_s); // "Bad file descriptor"
        // Somebody else's file under the same number must not receive the log.
        QCOMPARE(dup2(pipe.writer(), descriptor), descriptor);
        output.print(u"stray"_s);
        StandardOutput(pipe.writer()).print(u"end"_s);
        ::close(descriptor);
        QCOMPARE(pipe.read(), QByteArray("end\n"));
    }

    void aFullDeviceIsForgottenInSilence()
    {
        const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
        QVERIFY(full >= 0);
        StandardOutput output(full);
        output.print(u"lost"_s);
        output.print(u"lost"_s);
        ::close(full);
    }

    void aSlowReaderIsWaitedFor()
    {
        Pipe pipe;
        QCOMPARE(fcntl(pipe.writer(), F_SETFL, O_NONBLOCK), 0);
        const QString text(1'000'000, u'x'); // many times what a pipe holds
        std::thread writer([&] {
            StandardOutput(pipe.writer()).print(text);
            pipe.closeWriter();
        });
        QByteArray received;
        for (QByteArray block = pipe.read(); !block.isEmpty(); block = pipe.read())
            received += block;
        writer.join();
        QCOMPARE(received.size(), text.size() + 1);
    }
};

ABISSORA_TEST(tst_Console);
#include "tst_Console.moc"
