// SPDX-License-Identifier: MIT
#include "AtomicFile.h"
#include "FailingCalls.h"
#include "FolderLock.h"
#include "IoChecks.h"
#include "Literals.h"
#include "TestRunner.h"
#include "Umask.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <cerrno>
#include <csignal>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace abissora;
using Outcome = FolderLock::Outcome;

namespace {

int refuse(int /*descriptor*/, int /*operation*/)
{
    errno = ENOTSUP;
    return -1;
}

int breakDown(int /*descriptor*/, int /*operation*/)
{
    errno = EIO;
    return -1;
}

/// A process of its own that locks a folder and then does nothing more.
class Holder
{
public:
    explicit Holder(FolderLock& lock)
    {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0)
            qFatal("no pipe");
        m_process = ::fork();
        if (m_process == 0) {
            const char outcome = lock.acquire() == Outcome::Held ? 'y' : 'n';
            if (::write(ends[1], &outcome, 1) != 1)
                ::_exit(1);
            while (true)
                ::pause();
        }
        ::close(ends[1]);
        char outcome = 'n';
        m_holds = m_process > 0 && ::read(ends[0], &outcome, 1) == 1 && outcome == 'y';
        ::close(ends[0]);
    }
    ~Holder() { kill(); }
    Q_DISABLE_COPY_MOVE(Holder)

    [[nodiscard]] bool holds() const { return m_holds; }
    void kill()
    {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            ::waitpid(m_process, nullptr, 0);
        }
        m_process = 0;
    }

private:
    pid_t m_process = 0;
    bool m_holds = false;
};

} // namespace

class tst_FolderLock : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
    }

    void oneHoldsItAtATime_data() { calls(); }
    void oneHoldsItAtATime()
    {
        const FolderLock::Call how = call();
        FolderLock second(path(), how);
        {
            FolderLock first(path(), how);
            QCOMPARE(first.acquire(), Outcome::Held);
            QCOMPARE(first.acquire(), Outcome::Held);
            VERIFY_OK(first.mayWrite());
            QCOMPARE(second.acquire(), Outcome::HeldByAnother);
            VERIFY_FAILED(second.mayWrite(), EBUSY);
        }
        VERIFY_OK(second.mayWrite());
        QCOMPARE(FolderLock(path(), how).acquire(), Outcome::HeldByAnother);
    }

    void aKilledProcessGivesItBack_data() { calls(); }
    void aKilledProcessGivesItBack()
    {
        FolderLock theirs(path(), call());
        FolderLock ours(path(), call());
        Holder holder(theirs);
        QVERIFY(holder.holds());
        QCOMPARE(ours.acquire(), Outcome::HeldByAnother);
        holder.kill();
        QCOMPARE(ours.acquire(), Outcome::Held);
    }

    void theFileIsItsOwnersAlone()
    {
        const test::Umask umask(0);
        FolderLock lock(path(), refuse);
        QCOMPARE(lock.acquire(), Outcome::Held);
        QCOMPARE(test::modeOf(path() + "/abissora.lock"_L1), mode_t{0600});
        QCOMPARE(FolderLock(path(), refuse).acquire(), Outcome::HeldByAnother);
    }

    void whatIsStartedDoesNotKeepIt()
    {
        QProcess reader;
        {
            FolderLock lock(path());
            QCOMPARE(lock.acquire(), Outcome::Held);
            reader.start(u"cat"_s, QStringList());
            QVERIFY(reader.waitForStarted());
        }
        QCOMPARE(FolderLock(path()).acquire(), Outcome::Held);
        reader.closeWriteChannel();
        QVERIFY(reader.waitForFinished());
    }

    void aSignalDoesNotEndTheAttempt()
    {
        static int interruptions;
        interruptions = 2;
        FolderLock lock(path(), [](int, int) {
            errno = EINTR;
            return interruptions-- > 0 ? -1 : 0;
        });
        QCOMPARE(lock.acquire(), Outcome::Held);
        QCOMPARE(interruptions, -1);
    }

    void nothingIsWrittenIntoTheFolder()
    {
        FolderLock lock(path());
        QCOMPARE(lock.acquire(), Outcome::Held);
        QCOMPARE(names(), QStringList());
    }

    void aFolderThatCannotBeWrittenIsLocked()
    {
        // Nobody, whatever his rights, makes a file here.
        FolderLock lock(u"/proc/self"_s);
        QCOMPARE(lock.acquire(), Outcome::Held);
        QCOMPARE(FolderLock(u"/proc/self"_s).acquire(), Outcome::HeldByAnother);
    }

    void aMissingFolderIsMadeForItsOwner_data() { calls(); }
    void aMissingFolderIsMadeForItsOwner()
    {
        FolderLock lock(path() + "/a/b"_L1, call());
        QCOMPARE(lock.acquire(), Outcome::Held);
        for (const char* name : {"a", "a/b"}) {
            struct stat status
            {};
            QCOMPARE(::stat(QFile::encodeName(m_folder->filePath(QLatin1String(name))).constData(), &status), 0);
            QCOMPARE(status.st_mode & 07777, mode_t{0700});
        }
    }

    void aFolderThatIsMadeButNotSyncedIsLocked()
    {
        const test::FailingCalls failing("fsync@1+=EIO", path());
        FolderLock lock(path() + "/register"_L1);
        QCOMPARE(lock.acquire(), Outcome::Held);
    }

    void whereNoFolderCanBeNothingIsMade()
    {
        const QString file = path() + "/file"_L1;
        VERIFY_OK(AtomicFile::replace(file, "x"));
        const QStringList above = QDir::root().entryList();
        FolderLock lock(file + "/a/b"_L1);
        QCOMPARE(lock.acquire(), Outcome::Impossible);
        QCOMPARE(lock.reason(), IoError::fromErrno(ENOTDIR));
        VERIFY_FAILED(lock.mayWrite(), ENOTDIR);
        QCOMPARE(names(), QStringList{u"file"_s});
        QCOMPARE(QDir::root().entryList(), above);

        // Once it can be, it is had.
        QVERIFY(QFile::remove(file));
        VERIFY_OK(lock.mayWrite());
        QCOMPARE(FolderLock(file + "/a/b"_L1).acquire(), Outcome::HeldByAnother);
    }

    void aFileInItsPlaceIsNoFolder()
    {
        const QString file = path() + "/file"_L1;
        VERIFY_OK(AtomicFile::replace(file, "x"));
        FolderLock lock(file);
        VERIFY_FAILED(lock.mayWrite(), ENOTDIR);
    }

    void aCopyOfALockedFolderIsFree()
    {
        writeLockFile("elsewhere");
        FolderLock lock(path());
        QCOMPARE(lock.acquire(), Outcome::Held);
        QCOMPARE(names(), QStringList());
    }

    void anotherFolderInItsPlaceIsLockedAnew()
    {
        const QString place = path() + "/register"_L1;
        FolderLock lock(place);
        QCOMPARE(lock.acquire(), Outcome::Held);
        QVERIFY(QDir().rename(place, path() + "/away"_L1));
        {
            FolderLock other(place);
            QCOMPARE(other.acquire(), Outcome::Held);
            VERIFY_FAILED(lock.mayWrite(), EBUSY);
        }
        VERIFY_OK(lock.mayWrite());
        QCOMPARE(FolderLock(place).acquire(), Outcome::HeldByAnother);
    }

    void whereTheFileSystemRefusesAFileStandsIn()
    {
        {
            FolderLock lock(path(), refuse);
            QCOMPARE(lock.acquire(), Outcome::Held);
            QCOMPARE(names(), QStringList{u"abissora.lock"_s});
        }
        QCOMPARE(names(), QStringList());
        // Whether a process of another computer is alive cannot be told.
        writeLockFile("elsewhere");
        QCOMPARE(FolderLock(path(), refuse).acquire(), Outcome::HeldByAnother);
        QCOMPARE(names(), QStringList{u"abissora.lock"_s});
    }

    void whereNeitherCanBeHadNothingMayBeWritten()
    {
        FolderLock lock(u"/proc/self"_s, refuse);
        QCOMPARE(lock.acquire(), Outcome::Impossible);
        VERIFY_FAILED(lock.mayWrite(), ENOTSUP);
    }

    void anErrorIsNoRefusal()
    {
        FolderLock lock(path(), breakDown);
        QCOMPARE(lock.acquire(), Outcome::Impossible);
        VERIFY_FAILED(lock.mayWrite(), EIO);
        QCOMPARE(names(), QStringList());
    }

private:
    static void calls()
    {
        QTest::addColumn<bool>("refused");
        QTest::newRow("on the folder") << false;
        QTest::newRow("by a file") << true;
    }
    static FolderLock::Call call()
    {
        QFETCH(bool, refused);
        return refused ? refuse : ::flock;
    }

    [[nodiscard]] QString path() const { return m_folder->path(); }
    [[nodiscard]] QStringList names() const
    {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// As a living process of that computer leaves it: its number, name, computer, and two numbers of that computer.
    void writeLockFile(const QByteArray& computer) const
    {
        VERIFY_OK(AtomicFile::replace(path() + "/abissora.lock"_L1, "1\nabissora\n" + computer + "\n\n\n"));
    }

    std::optional<QTemporaryDir> m_folder;
};

ABISSORA_TEST(tst_FolderLock);
#include "tst_FolderLock.moc"
