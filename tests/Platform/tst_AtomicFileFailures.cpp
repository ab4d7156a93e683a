// SPDX-License-Identifier: MIT
#include "AtomicFile.h"
#include "FailingCalls.h"
#include "IoChecks.h"
#include "Literals.h"
#include "OwnersFile.h"
#include "TestRunner.h"
#include "Umask.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace abissora;

/// What AtomicFile makes of calls of the system that fail.
class tst_AtomicFileFailures : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
        VERIFY_OK(AtomicFile::replace(at("old"), "old bytes"));
    }

    void signalsInterruptNothing_data()
    {
        QTest::addColumn<QByteArray>("call");
        for (const char* call :
             {"open", "create", "write", "fsync", "rename", "renameat2", "link", "unlink", "mkdir", "read"})
            QTest::newRow(call) << QByteArray(call);
    }

    void signalsInterruptNothing()
    {
        QFETCH(QByteArray, call);
        const QByteArray plan = call + "@1=EINTR";
        const auto done = [this, &plan](const auto& act) { return failing(plan, act); };
        VERIFY_OK(done([this] { return AtomicFile::replace(at("replaced"), "bytes"); }));
        VERIFY_OK(done([this] { return AtomicFile::copy(at("old"), at("copied")); }));
        VERIFY_OK(done([this] { return AtomicFile::link(at("old"), at("linked")); }));
        VERIFY_OK(done([this] { return AtomicFile::move(at("copied"), at("moved")); }));
        VERIFY_OK(done([this] { return AtomicFile::makeFolder(at("folder/inner")); }));
        VERIFY_OK(done([this] { return AtomicFile::remove(at("linked")); }));
        VERIFY_OK(done([this] { return AtomicFile::read(at("old")); }));
        QCOMPARE(content("replaced"), QByteArray("bytes"));
        QCOMPARE(content("moved"), QByteArray("old bytes"));
        QCOMPARE(names(), (QStringList{u"folder"_s, u"moved"_s, u"old"_s, u"replaced"_s}));
    }

    void nothingIsLeftOfAFailure_data()
    {
        QTest::addColumn<QByteArray>("plan");
        QTest::addColumn<int>("error");
        QTest::newRow("no temporary file") << QByteArray("create@1+=EACCES") << EACCES;
        QTest::newRow("every name is taken") << QByteArray("create@1+=EEXIST") << EEXIST;
        QTest::newRow("full disk") << QByteArray("write@1=ENOSPC") << ENOSPC;
        QTest::newRow("full disk in the middle") << QByteArray("write@1=short write@2=ENOSPC") << ENOSPC;
        QTest::newRow("a write that writes nothing") << QByteArray("write@1=zero") << EIO;
        QTest::newRow("not synced") << QByteArray("fsync@1=EIO") << EIO;
        QTest::newRow("no folder") << QByteArray("open@1=EMFILE") << EMFILE;
    }

    void nothingIsLeftOfAFailure()
    {
        QFETCH(QByteArray, plan);
        QFETCH(int, error);
        for (const auto& write : writers()) {
            VERIFY_FAILED(failing(plan, write), error);
            QCOMPARE(content("old"), QByteArray("old bytes"));
            QCOMPARE(names(), QStringList{u"old"_s});
        }
    }

    void anotherNameIsTriedWhenOneIsTaken()
    {
        VERIFY_OK(failing("create@1=EEXIST create@2=EEXIST", [this] { return AtomicFile::replace(at("a"), "bytes"); }));
        QCOMPARE(content("a"), QByteArray("bytes"));
    }

    void shortWritesAreContinued()
    {
        for (const auto& write : writers()) {
            VERIFY_OK(failing("write@1=short write@2=short", write));
            QCOMPARE(content("new"), QByteArray("old bytes"));
            QVERIFY(QFile::remove(at("new")));
        }
    }

    void aFileThatCannotBePutIntoPlace()
    {
        VERIFY_FAILED(failing("rename@1=EIO", [this] { return AtomicFile::replace(at("old"), "new bytes"); }), EIO);
        VERIFY_FAILED(failing("renameat2@1=EIO", [this] { return AtomicFile::copy(at("old"), at("new")); }), EIO);
        QCOMPARE(content("old"), QByteArray("old bytes"));
        QCOMPARE(names(), QStringList{u"old"_s});
    }

    void aFolderThatIsNotSynced()
    {
        // Then the new file already stands there, whole.
        VERIFY_FAILED(failing("fsync@2=EIO", [this] { return AtomicFile::replace(at("old"), "new bytes"); }), EIO);
        QCOMPARE(content("old"), QByteArray("new bytes"));
        QCOMPARE(names(), QStringList{u"old"_s});
        // Some file systems have no way to do it.
        for (const char* plan : {"fsync@2=EINVAL", "fsync@2=ENOTSUP"})
            VERIFY_OK(failing(plan, [this] { return AtomicFile::replace(at("old"), "newer"); }));
    }

    void whatCannotBeRead()
    {
        VERIFY_FAILED(failing("read@1=EIO", [this] { return AtomicFile::read(at("old")); }), EIO);
        VERIFY_FAILED(failing("read@2=EIO", [this] { return AtomicFile::read(at("old")); }), EIO);
        VERIFY_FAILED(failing("read@2=EIO", [this] { return AtomicFile::copy(at("old"), at("new")); }), EIO);
        QCOMPARE(names(), QStringList{u"old"_s});
    }

    void shortReadsAreContinued()
    {
        const auto bytes = failing("read@1=short", [this] { return AtomicFile::read(at("old")); });
        QCOMPARE(bytes.value(), QByteArray("old bytes"));
    }

    void aFileThatGrowsWhileItIsReadIsReadToItsEnd()
    {
        const QByteArray more(200'000, 'm');
        const auto grow = [this, &more] {
            QFile file(at("old"));
            QVERIFY(file.open(QIODevice::Append));
            QCOMPARE(file.write(more), more.size());
        };
        const test::FailingCalls failing("read@2=hook", path(), grow);
        const auto bytes = AtomicFile::read(at("old"));
        QVERIFY(bytes.value() == "old bytes" + more);
    }

    void withoutRenamingToNewNamesALinkDoes_data()
    {
        QTest::addColumn<QByteArray>("refusal");
        QTest::newRow("file system") << QByteArray("renameat2@1=EINVAL");
        QTest::newRow("kernel") << QByteArray("renameat2@1=ENOSYS");
    }

    void withoutRenamingToNewNamesALinkDoes()
    {
        QFETCH(QByteArray, refusal);
        const auto copy = [this] { return AtomicFile::copy(at("old"), at("new")); };
        VERIFY_OK(failing(refusal, copy));
        QCOMPARE(content("new"), QByteArray("old bytes"));
        QCOMPARE(names(), (QStringList{u"new"_s, u"old"_s}));
        VERIFY_FAILED(failing(refusal, copy), EEXIST);
        VERIFY_OK(failing(refusal + " link@1=EINTR unlink@1=EINTR",
                          [this] { return AtomicFile::move(at("new"), at("moved")); }));
        QCOMPARE(names(), (QStringList{u"moved"_s, u"old"_s}));
    }

    void modesAreTheSameWhateverTheUmask()
    {
        for (const mode_t mask : {0U, 0022U, 0277U, 0377U, 0777U}) {
            const test::Umask umask(mask);
            VERIFY_OK(AtomicFile::replace(at("a"), "x"));
            VERIFY_OK(AtomicFile::copy(at("a"), at("b")));
            VERIFY_OK(AtomicFile::makeFolder(at("c/d")));
            QCOMPARE(mode("a"), mode_t{0600});
            QCOMPARE(mode("b"), mode_t{0600});
            QCOMPARE(mode("c"), mode_t{0700});
            QCOMPARE(mode("c/d"), mode_t{0700});
            QVERIFY(QFile::remove(at("b")) && QDir(at("c")).removeRecursively());
        }
    }

    void whatTheToolkitWritesHasTheSameModes()
    {
        for (const mode_t mask : {0U, 0022U, 0277U, 0777U}) {
            const test::Umask umask(mask);
            makeOwnersFile(at("c/d/new"));
            QCOMPARE(mode("c"), mode_t{0700});
            QCOMPARE(mode("c/d"), mode_t{0700});
            QCOMPARE(mode("c/d/new"), mode_t{0600});
            // One that an earlier version left.
            QCOMPARE(::chmod(at("c/d/new").toLocal8Bit().constData(), 0666), 0);
            makeOwnersFile(at("c/d/new"));
            QCOMPARE(mode("c/d/new"), mode_t{0600});
            QVERIFY(QDir(at("c")).removeRecursively());
        }
        VERIFY_OK(AtomicFile::replace(at("a"), "x"));
        makeOwnersFile(at("a"));
        QCOMPARE(AtomicFile::read(at("a")).value(), QByteArray("x"));
        makeOwnersFile(at("a/below a file")); // the toolkit says why not
    }

    void aFileSystemWithoutModesIsNoError()
    {
        const test::Umask umask(0777);
        VERIFY_OK(failing("chmod@1+=EPERM", [this] { return AtomicFile::replace(at("a"), "x"); }));
        VERIFY_OK(failing("chmod@1+=EPERM", [this] { return AtomicFile::makeFolder(at("b")); }));
    }

    void everyKillLeavesAWholeFile_data()
    {
        QTest::addColumn<QByteArray>("moment");
        QTest::newRow("before") << QByteArray("kill-before");
        QTest::newRow("after") << QByteArray("kill-after");
    }

    void everyKillLeavesAWholeFile()
    {
        QFETCH(QByteArray, moment);
        unsigned changes = 0;
        {
            const test::FailingCalls counting("change@1000=EIO", path());
            VERIFY_OK(AtomicFile::replace(at("old"), "old bytes"));
            changes = counting.changes();
        }
        QVERIFY(changes >= 5); // created, written, synced, renamed, the folder synced
        for (unsigned number = 1; number <= changes; ++number) {
            VERIFY_OK(AtomicFile::replace(at("old"), "old bytes"));
            const QByteArray plan = "change@" + QByteArray::number(number) + '=' + moment;
            const pid_t child = ::fork();
            if (child == 0) {
                const test::FailingCalls failing(plan.constData(), path());
                ::_exit(AtomicFile::replace(at("old"), "new bytes") ? 0 : 1);
            }
            int status = 0;
            QCOMPARE(::waitpid(child, &status, 0), child);
            QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
            const QByteArray left = content("old");
            QVERIFY2(left == "old bytes" || left == "new bytes", plan.constData());
            AtomicFile::removeLeftovers(path());
            QCOMPARE(names(), QStringList{u"old"_s});
        }
    }

private:
    using Write = std::function<IoResult<void>()>;

    template <typename Act>
    auto failing(const QByteArray& plan, const Act& act) const -> decltype(act())
    {
        const test::FailingCalls calls(plan.constData(), path());
        return act();
    }

    /// The ways to write a whole new file of the old bytes.
    [[nodiscard]] QList<Write> writers() const
    {
        return {[this] { return AtomicFile::replace(at("new"), "old bytes"); },
                [this] { return AtomicFile::copy(at("old"), at("new")); }};
    }

    [[nodiscard]] QString path() const { return m_folder->path(); }
    [[nodiscard]] QString at(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    [[nodiscard]] QByteArray content(const char* name) const
    {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    [[nodiscard]] mode_t mode(const char* name) const { return test::modeOf(at(name)); }

    [[nodiscard]] QStringList names() const
    {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }

    std::optional<QTemporaryDir> m_folder;
};

ABISSORA_TEST(tst_AtomicFileFailures);
#include "tst_AtomicFileFailures.moc"
