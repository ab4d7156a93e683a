// SPDX-License-Identifier: MIT
#include "Console.h"
#include "FailingCalls.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <future>
#include <poll.h>
#include <sys/socket.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

using namespace abissora;

namespace {

using namespace std::chrono_literals;

constexpr auto longPatience = 60s; ///< never used up

/// Something that is written at one end and read at the other.
class Channel
{
public:
    enum class Kind { Pipe, Socket, Terminal, ControlledTerminal };

    explicit Channel(Kind kind = Kind::Pipe)
    {
        bool open = false;
        switch (kind) {
        case Kind::Pipe:
            open = ::pipe2(m_ends.data(), O_CLOEXEC) == 0;
            break;
        case Kind::Socket:
            open = ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, m_ends.data()) == 0;
            break;
        case Kind::Terminal:
            open = openTerminal(m_ends[0], m_ends[1]);
            break;
        case Kind::ControlledTerminal:
            open = openTerminal(m_ends[1], m_ends[0]);
            break;
        }
        if (!open)
            qFatal("no channel");
    }
    ~Channel()
    {
        closeReader();
        closeWriter();
    }
    Q_DISABLE_COPY_MOVE(Channel)

    [[nodiscard]] int writer() const { return m_ends[1]; }
    void closeReader() { close(m_ends[0]); }
    void closeWriter() { close(m_ends[1]); }
    /// Of a pipe: the smallest there is.
    [[nodiscard]] qsizetype shrink() const { return ::fcntl(m_ends[0], F_SETPIPE_SZ, 1); }

    /// One read; empty at the end.
    QByteArray read() const
    {
        std::array<char, 4096> block{};
        const ssize_t count = ::read(m_ends[0], block.data(), block.size());
        return count > 0 ? QByteArray(block.data(), static_cast<qsizetype>(count)) : QByteArray();
    }

    /// What can be read without waiting.
    QByteArray readWhatIsThere() const
    {
        QByteArray bytes;
        pollfd waiting{m_ends[0], POLLIN, 0};
        while (::poll(&waiting, 1, 0) > 0 && (waiting.revents & POLLIN) != 0)
            bytes += read();
        return bytes;
    }

private:
    /// Neither side changes what passes.
    static bool openTerminal(int& controlling, int& terminal)
    {
        controlling = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (controlling < 0 || ::grantpt(controlling) != 0 || ::unlockpt(controlling) != 0)
            return false;
        terminal = ::open(::ptsname(controlling), O_RDWR | O_NOCTTY | O_CLOEXEC);
        termios raw{};
        if (terminal < 0 || ::tcgetattr(terminal, &raw) != 0)
            return false;
        ::cfmakeraw(&raw);
        return ::tcsetattr(terminal, TCSANOW, &raw) == 0;
    }
    static void close(int& descriptor)
    {
        if (descriptor >= 0)
            ::close(std::exchange(descriptor, -1));
    }

    std::array<int, 2> m_ends{-1, -1};
};

QStringList manyLines(int count)
{
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines.append(u"riga %1 "_s.arg(i).leftJustified(99, u'.'));
    return lines;
}

} // namespace

class tst_Console : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        // Whoever waits for a reader here waits for ever.
        ::alarm(60);
    }
    void cleanup() { ::alarm(0); }

    void printsUtf8AndALineFeedAtOnce()
    {
        const Channel pipe;
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
        const Channel pipe;
        const int before = dup(STDOUT_FILENO);
        if (before < 0)
            QFAIL("no descriptor is left");
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
        Channel pipe;
        StandardOutput output(pipe.writer());
        pipe.closeReader();
        output.print(u"lost"_s);
        output.print(u"lost"_s);
        std::signal(SIGPIPE, handler);
    }

    void aBrokenOutputIsNotTriedAgain()
    {
        const Channel pipe;
        const int descriptor = fcntl(pipe.writer(), F_DUPFD_CLOEXEC, 200);
        if (descriptor < 0)
            QFAIL("no descriptor is left");
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

    void anOutputThatTakesNothingIsForgotten()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"log"_s));
        QVERIFY(file.open(QIODevice::ReadWrite));
        StandardOutput output(file.handle());
        {
            const test::FailingCalls failing("write@1+=zero", folder.path());
            output.print(u"lost"_s);
            QCOMPARE(failing.changes(), 1U);
        }
        output.print(u"lost"_s);
        QCOMPARE(file.size(), 0);
    }

    void signalsAndShortWritesLoseNothing()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"log"_s));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const test::FailingCalls failing("write@1=EINTR write@2=short write@3=EAGAIN", folder.path());
        StandardOutput output(file.handle());
        output.print(u"una riga"_s);
        output.print(u"due"_s);
        QVERIFY(file.seek(0));
        QCOMPARE(file.readAll(), QByteArray("una riga\ndue\n"));
    }

    void aReaderThatStopsHoldsNobody_data()
    {
        QTest::addColumn<Channel::Kind>("kind");
        QTest::addColumn<QByteArray>("opening");
        QTest::newRow("pipe") << Channel::Kind::Pipe << QByteArray();
        QTest::newRow("pipe of somebody else") << Channel::Kind::Pipe << QByteArray("open@1=EACCES");
        QTest::newRow("socket") << Channel::Kind::Socket << QByteArray();
        QTest::newRow("terminal") << Channel::Kind::Terminal << QByteArray();
        QTest::newRow("terminal of somebody else") << Channel::Kind::Terminal << QByteArray("open@1=EACCES");
        QTest::newRow("a terminal's other side") << Channel::Kind::ControlledTerminal << QByteArray();
    }

    void aReaderThatStopsHoldsNobody()
    {
        QFETCH(Channel::Kind, kind);
        QFETCH(QByteArray, opening);
        const Channel channel(kind);
        const test::FailingCalls failing(opening.constData(), u"/proc/self/fd"_s);
        StandardOutput output(channel.writer());
        const QStringList lines = manyLines(6000); // several times what any of them holds
        for (const QString& line : lines)
            output.print(line);
        // Others may go on waiting.
        QCOMPARE(::fcntl(channel.writer(), F_GETFL) & O_NONBLOCK, 0);
        // What was kept follows by itself.
        const QByteArray expected = lines.join(u'\n').toUtf8() + '\n';
        QByteArray received;
        QTRY_COMPARE(received.append(channel.readWhatIsThere()).size(), expected.size());
        QVERIFY(received == expected);
        output.print(u"fine"_s);
        QCOMPARE(channel.read(), QByteArray("fine\n"));
    }

    void withoutAnEventLoopTheNextCallWritesTheRest()
    {
        const Channel pipe;
        QByteArray received;
        std::thread([&] {
            StandardOutput output(pipe.writer());
            output.print(manyLines(1000).join(u'\n')); // more than a pipe holds, less than twice
            received += pipe.readWhatIsThere();
            output.print(u"fine"_s);
            received += pipe.readWhatIsThere();
        }).join();
        QCOMPARE(received, manyLines(1000).join(u'\n').toUtf8() + "\nfine\n");
    }

    void whatIsTooMuchIsOmittedAndTold_data()
    {
        QTest::addColumn<bool>("oneCall");
        QTest::newRow("line by line") << false;
        QTest::newRow("in one call") << true;
    }

    void whatIsTooMuchIsOmittedAndTold()
    {
        QFETCH(bool, oneCall);
        const Channel pipe;
        const qsizetype held = pipe.shrink();
        const qsizetype kept = 2500;
        StandardOutput output(pipe.writer(), {.kept = kept});
        const QStringList lines = manyLines(1000);
        for (const QString& text : oneCall ? QStringList{lines.join(u'\n')} : lines)
            output.print(text);

        QByteArray received;
        QTRY_VERIFY(received.append(pipe.readWhatIsThere()).contains("passo\n"));
        output.print(u"dopo"_s);
        received += pipe.read();
        QStringList passed = QString::fromUtf8(received).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(passed.takeLast(), u"dopo"_s);
        const QString notice = passed.takeLast();
        QVERIFY(passed == lines.first(passed.size()));
        QCOMPARE(notice, u"… %1 righe omesse: chi legge non tiene il passo"_s.arg(lines.size() - passed.size()));
        const auto bytes = passed.size() * 100;
        QVERIFY2(bytes <= held + kept && bytes > kept, QByteArray::number(bytes).constData());
    }

    void oneOmittedLineIsOne()
    {
        const Channel pipe;
        const QString line(pipe.shrink() * 2, u'x'); // begun, so it is kept to its end
        StandardOutput output(pipe.writer(), {.kept = 10});
        output.print(line);
        output.print(u"omessa"_s);
        const QByteArray expected = line.toUtf8() + "\n… 1 riga omessa: chi legge non tiene il passo\n";
        QByteArray received;
        QTRY_COMPARE(received.append(pipe.readWhatIsThere()).size(), expected.size());
        QCOMPARE(received, expected);
    }

    void afterAnOmittedLineAllAreUntilItIsTold()
    {
        const Channel pipe;
        const QString line(pipe.shrink() * 2 - 1, u'x');
        QByteArray received;
        std::thread([&] {
            StandardOutput output(pipe.writer(), {.kept = line.size()});
            output.print(line); // half of it stands in the pipe
            output.print(line); // too much
            output.print(u"breve"_s);
            for (const QString& later : {u"dopo"_s, u"fine"_s}) {
                received += pipe.readWhatIsThere();
                output.print(later);
            }
            received += pipe.readWhatIsThere();
        }).join();
        QCOMPARE(received, line.toUtf8() + "\n… 2 righe omesse: chi legge non tiene il passo\ndopo\nfine\n");
    }

    void aFileGetsEverything()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"log"_s));
        QVERIFY(file.open(QIODevice::ReadWrite));
        StandardOutput output(file.handle(), {.kept = 50});
        const QString text = manyLines(5000).join(u'\n');
        output.print(text);
        output.print(u"breve"_s);
        QVERIFY(file.seek(0));
        QCOMPARE(file.readAll(), text.toUtf8() + "\nbreve\n");
    }

    void atItsEndASlowReaderIsWaitedFor()
    {
        Channel pipe;
        const QString text(1'000'000, u'x'); // many times what a pipe holds
        std::promise<void> printed;
        std::thread writer([&] {
            {
                StandardOutput output(pipe.writer(), {.patience = longPatience});
                output.print(text);
                printed.set_value();
            }
            pipe.closeWriter();
        });
        printed.get_future().wait();
        QByteArray received;
        for (QByteArray block = pipe.read(); !block.isEmpty(); block = pipe.read())
            received += block;
        writer.join();
        QCOMPARE(received.size(), text.size() + 1);
    }

    void atItsEndAReaderThatStoppedIsGivenUp()
    {
        const Channel pipe;
        StandardOutput(pipe.writer()).print(QString(200'000, u'x'));
    }

    void aReaderThatStopsAndLeavesIsForgotten()
    {
        const auto handler = std::signal(SIGPIPE, SIG_IGN); // as the program does
        Channel pipe;
        {
            StandardOutput output(pipe.writer(), {.patience = longPatience});
            output.print(QString(200'000, u'x'));
            pipe.closeReader();
            output.print(u"lost"_s);
        }
        std::signal(SIGPIPE, handler);
    }
};

ABISSORA_TEST(tst_Console);
#include "tst_Console.moc"
