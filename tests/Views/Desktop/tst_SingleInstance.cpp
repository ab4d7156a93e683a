// SPDX-License-Identifier: MIT
#include "EnvironmentValue.h"
#include "FolderLock.h"
#include "Literals.h"
#include "SingleInstance.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <atomic>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace abissora;
using namespace std::chrono_literals;
using Outcome = SingleInstance::Outcome;

namespace {

constexpr auto longPatience = 20s; ///< never used up
constexpr auto noPatience = 0ms;

/// How often a second start has tried to take the lock.
std::atomic<int> attempts;

int countAndLock(int descriptor, int operation)
{
    ++attempts;
    return ::flock(descriptor, operation);
}

QStringList socketsIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::System | QDir::Files);
}

/// A second start on a thread of its own, so that the first can go on meanwhile.
class SecondStart
{
public:
    /// `prepare` runs on that thread beforehand.
    SecondStart(
        const QString& folder, std::chrono::milliseconds patience, const std::function<void()>& prepare = [] {},
        const QString& wish = {})
        : m_thread(QThread::create([this, folder, patience, prepare, wish] {
            prepare();
            FolderLock lock(folder, countAndLock);
            m_outcome = SingleInstance(lock, patience).acquire(wish);
        }))
    {
        m_thread->start();
    }
    ~SecondStart() { m_thread->wait(); }
    Q_DISABLE_COPY_MOVE(SecondStart)

    [[nodiscard]] bool isOver() const { return m_thread->isFinished(); }
    /// Once it is over.
    [[nodiscard]] Outcome outcome() const { return m_outcome; }

private:
    std::atomic<Outcome> m_outcome{Outcome::Ours};
    std::unique_ptr<QThread> m_thread;
};

} // namespace

class tst_SingleInstance : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        attempts = 0;
        m_folder.emplace();
        m_lock.emplace(m_folder->path());
    }

    void cleanup()
    {
        m_lock.reset();
        m_folder.reset();
    }

    void theFirstComesForward()
    {
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(), Outcome::Ours);
        const QSignalSpy asked(&first, &SingleInstance::activationRequested);
        QVERIFY(QFile::link(m_folder->path(), m_folder->path() + "/link"_L1));
        for (int times : {1, 2}) { // whatever the folder is called
            const SecondStart second(m_folder->path() + (times == 1 ? "/."_L1 : "/link"_L1), longPatience);
            QTRY_VERIFY(second.isOver());
            QCOMPARE(second.outcome(), Outcome::CameForward);
            QCOMPARE(asked.size(), times);
        }
    }

    // A start in another sandbox of the application has its own names without files.
    void inASandboxTheFirstIsFoundInTheSharedFolder()
    {
        const QTemporaryDir runtime;
        const QString shared = runtime.filePath(u"app/org.example.Program"_s);
        QVERIFY(QDir().mkpath(shared));
        const test::EnvironmentValue folder("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
        const test::EnvironmentValue id("FLATPAK_ID", "org.example.Program");
        {
            SingleInstance first(*m_lock);
            QCOMPARE(first.acquire(), Outcome::Ours);
            QCOMPARE(socketsIn(shared).size(), 1);
            const QSignalSpy asked(&first, &SingleInstance::activationRequested);
            const SecondStart second(m_folder->path(), longPatience);
            QTRY_VERIFY(second.isOver());
            QCOMPARE(second.outcome(), Outcome::CameForward);
            QCOMPARE(asked.size(), 1);
        }
        QCOMPARE(socketsIn(shared), QStringList());
    }

    void theFirstIsToldTheWish()
    {
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(u"nobody hears this"_s), Outcome::Ours);
        QStringList heard;
        connect(&first, &SingleInstance::activationRequested, &first, [&heard] { heard.append(u"come"_s); });
        connect(&first, &SingleInstance::wished, &first, [&heard](const QString& wish) { heard.append(wish); });
        {
            const SecondStart second(
                m_folder->path(), longPatience, [] {}, u"novità"_s);
            QTRY_COMPARE(heard, QStringList({u"come"_s, u"novità"_s}));
            QTRY_VERIFY(second.isOver());
            QCOMPARE(second.outcome(), Outcome::CameForward);
        }
        const SecondStart third(m_folder->path(), longPatience);
        QTRY_VERIFY(third.isOver());
        QTRY_COMPARE(heard, QStringList({u"come"_s, u"novità"_s, u"come"_s}));
    }

    void aFirstThatAnswersAndHangsUpAtOnceIsAskedOnce()
    {
        QCOMPARE(m_lock->acquire(), FolderLock::Outcome::Held);
        QString name;
        {
            SingleInstance first(*m_lock);
            QCOMPARE(first.acquire(), Outcome::Ours);
            name = first.findChild<QLocalServer*>()->fullServerName();
        }
        constexpr int starts = 2000;
        std::atomic<int> asked = 0;
        std::atomic<bool> isListening = false;
        std::atomic<bool> isOver = false;
        const std::unique_ptr<QThread> quickFirst(QThread::create([&] {
            QLocalServer server;
            server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
            isListening = server.listen(name);
            while (!isOver) {
                if (!server.waitForNewConnection(0))
                    continue;
                const std::unique_ptr<QLocalSocket> caller(server.nextPendingConnection());
                ++asked;
                caller->putChar('\1');
                caller->flush();
                caller->waitForReadyRead();
            }
        }));
        quickFirst->start();
        const auto stop = qScopeGuard([&] {
            isOver = true;
            quickFirst->wait();
        });
        QTRY_VERIFY(isListening);
        FolderLock lock(m_folder->path());
        SingleInstance second(lock, longPatience);
        for (int start = 0; start < starts; ++start)
            QCOMPARE(second.acquire(u"show-due"_s), Outcome::CameForward);
        QCOMPARE(asked, starts);
    }

    void whatIsNotUnderstoodIsNoWish_data()
    {
        QTest::addColumn<QByteArrayList>("pieces");
        QTest::addColumn<QStringList>("wishes");
        QTest::newRow("nothing") << QByteArrayList{} << QStringList();
        QTest::newRow("no end") << QByteArrayList{"1 new-item"} << QStringList();
        QTest::newRow("in pieces") << QByteArrayList{"1 new", "-it", "em\n"} << QStringList{u"new-item"_s};
        QTest::newRow("more words") << QByteArrayList{"1 new-item like 7\n"} << QStringList{u"new-item"_s};
        QTest::newRow("another form") << QByteArrayList{"2 new-item\n"} << QStringList();
        QTest::newRow("one word") << QByteArrayList{"1\n"} << QStringList();
        QTest::newRow("an empty line") << QByteArrayList{"\n"} << QStringList();
        QTest::newRow("more lines") << QByteArrayList{"1 a\n1 b\n"} << QStringList{u"a"_s};
        QTest::newRow("no text") << QByteArrayList{QByteArray("1 \xff\0\n", 5)}
                                 << QStringList{QString::fromUtf8("\xff\0", 2)};
        QTest::newRow("endless") << QByteArrayList{QByteArray(100'000, 'x')} << QStringList();
    }

    void whatIsNotUnderstoodIsNoWish()
    {
        QFETCH(const QByteArrayList, pieces);
        QFETCH(const QStringList, wishes);
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(), Outcome::Ours);
        QStringList heard;
        connect(&first, &SingleInstance::wished, &first, [&heard](const QString& wish) { heard.append(wish); });
        QLocalSocket caller;
        caller.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        caller.connectToServer(first.findChild<QLocalServer*>()->fullServerName());
        QVERIFY(caller.waitForConnected());
        QTRY_COMPARE(caller.bytesAvailable(), 1);
        for (const QByteArray& piece : pieces) {
            caller.write(piece);
            QTRY_COMPARE(caller.bytesToWrite() == 0 || caller.state() != QLocalSocket::ConnectedState, true);
        }
        caller.disconnectFromServer();
        QTRY_COMPARE(caller.state(), QLocalSocket::UnconnectedState);
        // Whoever comes next is heard after it.
        const SecondStart second(
            m_folder->path(), longPatience, [] {}, u"end"_s);
        QTRY_VERIFY(heard.contains(u"end"_s));
        QCOMPARE(heard, wishes + QStringList{u"end"_s});
        QTRY_COMPARE(first.findChildren<QLocalSocket*>().size(), 0);
    }

    void aFirstThatDoesNothingDoesNotAnswer()
    {
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(), Outcome::Ours);
        const QSignalSpy asked(&first, &SingleInstance::activationRequested);
        FolderLock lock(m_folder->path());
        SingleInstance second(lock, noPatience);
        QCOMPARE(second.acquire(), Outcome::NoAnswer);
        QCOMPARE(asked.size(), 0);
    }

    void aFirstThatCannotBeAskedDoesNotAnswer()
    {
        QCOMPARE(m_lock->acquire(), FolderLock::Outcome::Held);
        FolderLock lock(m_folder->path());
        SingleInstance second(lock, noPatience);
        QCOMPARE(second.acquire(), Outcome::NoAnswer);
    }

    void aFirstThatIsStillStartingIsWaitedFor()
    {
        QCOMPARE(m_lock->acquire(), FolderLock::Outcome::Held);
        const SecondStart second(m_folder->path(), longPatience);
        QTRY_VERIFY(attempts > 1); // asked once in vain
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(), Outcome::Ours);
        QTRY_VERIFY(second.isOver());
        QCOMPARE(second.outcome(), Outcome::CameForward);
    }

    void aFirstThatGoesAwayIsSucceeded()
    {
        std::optional<SingleInstance> first(std::in_place, *m_lock);
        QCOMPARE(first->acquire(), Outcome::Ours);
        const SecondStart second(m_folder->path(), longPatience);
        while (attempts == 0) // without an answer
            QThread::yieldCurrentThread();
        first.reset();
        m_lock.reset();
        QTRY_VERIFY(second.isOver());
        QCOMPARE(second.outcome(), Outcome::Ours);
    }

    void oneThatDidNotAnswerMayBeTriedAgain()
    {
        QCOMPARE(m_lock->acquire(), FolderLock::Outcome::Held);
        FolderLock lock(m_folder->path());
        SingleInstance second(lock, noPatience);
        QCOMPARE(second.acquire(), Outcome::NoAnswer);
        m_lock.reset();
        QCOMPARE(second.acquire(), Outcome::Ours);
        QCOMPARE(second.acquire(), Outcome::Ours);
        const SecondStart third(m_folder->path(), longPatience);
        QTRY_VERIFY(third.isOver());
        QCOMPARE(third.outcome(), Outcome::CameForward);
    }

    void otherRegistersAreFree()
    {
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(), Outcome::Ours);
        const QTemporaryDir elsewhere;
        FolderLock lock(elsewhere.path());
        SingleInstance other(lock, noPatience);
        QCOMPARE(other.acquire(), Outcome::Ours);
    }

    void aRegisterThatCannotBeLockedIsNotRefused()
    {
        QFile file(m_folder->filePath(u"file"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        FolderLock lock(file.fileName() + "/register"_L1);
        SingleInstance first(lock, noPatience);
        QCOMPARE(first.acquire(), Outcome::Ours);
        QVERIFY(!lock.mayWrite());
    }

    void nothingIsMadeOnTheDisk()
    {
        const auto files = [](const QString& folder) {
            return QDir(folder).entryList({u"abissora-*"_s}, QDir::AllEntries | QDir::System);
        };
        const QStringList before = files(QDir::tempPath());
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(), Outcome::Ours);
        QCOMPARE(files(QDir::tempPath()), before);
        QCOMPARE(files(m_folder->path()), QStringList());
    }

    void peopleAreNotDisturbedByOthers()
    {
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        SingleInstance first(*m_lock);
        QCOMPARE(first.acquire(), Outcome::Ours);
        const QSignalSpy asked(&first, &SingleInstance::activationRequested);
        // Only the system's administrator can be somebody else for a while; then for that thread alone.
        std::atomic<bool> isSomebodyElse = false;
        const auto patience = ::geteuid() == 0 ? 1s : longPatience;
        const SecondStart second(m_folder->path(), patience, [&isSomebodyElse] {
            constexpr uid_t nobody = 65534;
            isSomebodyElse = ::syscall(SYS_setresuid, -1, nobody, -1) == 0;
        });
        QTRY_VERIFY(second.isOver());
        QCOMPARE(second.outcome(), isSomebodyElse ? Outcome::NoAnswer : Outcome::CameForward);
        QCOMPARE(asked.isEmpty(), isSomebodyElse.load());
    }

private:
    std::optional<QTemporaryDir> m_folder;
    std::optional<FolderLock> m_lock;
};

ABISSORA_TEST(tst_SingleInstance);

#include "tst_SingleInstance.moc"
