// SPDX-License-Identifier: MIT
#include "AtomicFile.h"
#include "FileSizeLimit.h"
#include "IoChecks.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace abissora;

class tst_AtomicFile : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
    }

    void replaceCreatesAndReplaces()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "one"));
        QCOMPARE(content("a"), QByteArray("one"));
        VERIFY_OK(AtomicFile::replace(at("a"), "two, longer"));
        QCOMPARE(content("a"), QByteArray("two, longer"));
        VERIFY_OK(AtomicFile::replace(at("a"), QByteArray()));
        QCOMPARE(content("a"), QByteArray());
        QCOMPARE(names(), QStringList{u"a"_s});
    }

    void replaceWritesEveryByte()
    {
        QByteArray bytes(3'000'001, '\0');
        for (qsizetype i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<char>(i * 31);
        VERIFY_OK(AtomicFile::replace(at("a"), bytes));
        QVERIFY(content("a") == bytes);
        QVERIFY(AtomicFile::read(at("a")).value() == bytes);
    }

    void newFilesAreTheOwnersOnly()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "x"));
        VERIFY_OK(AtomicFile::copy(at("a"), at("b")));
        VERIFY_OK(AtomicFile::makeFolder(at("c")));
        QCOMPARE(mode("a"), mode_t{0600});
        QCOMPARE(mode("b"), mode_t{0600});
        QCOMPARE(mode("c"), mode_t{0700});
    }

    void replaceRefusesAFolder()
    {
        QVERIFY(QDir().mkpath(at("a/inner")));
        VERIFY_FAILED(AtomicFile::replace(at("a"), "x"), EISDIR);
        QCOMPARE(names(), QStringList{u"a"_s});
        QVERIFY(QFileInfo(at("a/inner")).isDir());
    }

    void replaceNeedsItsFolder()
    {
        VERIFY_FAILED(AtomicFile::replace(at("missing/a"), "x"), ENOENT);
        QVERIFY(!QFileInfo::exists(at("missing")));
        VERIFY_OK(AtomicFile::replace(at("file"), "x"));
        VERIFY_FAILED(AtomicFile::replace(at("file/a"), "x"), ENOTDIR);
    }

    void aFullDiskLeavesTheOldFile()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "old"));
        IoResult<void> result;
        {
            const test::FileSizeLimit limit(100'000);
            result = AtomicFile::replace(at("a"), QByteArray(200'000, 'x'));
        }
        VERIFY_FAILED(result, EFBIG);
        QCOMPARE(content("a"), QByteArray("old"));
        QCOMPARE(names(), QStringList{u"a"_s});
    }

    void aLinkIsReplacedNotFollowed()
    {
        VERIFY_OK(AtomicFile::replace(at("target"), "kept"));
        QVERIFY(QFile::link(at("target"), at("a")));
        VERIFY_OK(AtomicFile::replace(at("a"), "new"));
        QCOMPARE(content("target"), QByteArray("kept"));
        QCOMPARE(content("a"), QByteArray("new"));
        QVERIFY(!QFileInfo(at("a")).isSymLink());
    }

    void aPathWithANulIsNoOtherPath()
    {
        const QString path = at("a") + QChar::Null + "b"_L1;
        VERIFY_FAILED(AtomicFile::replace(path, "x"), EINVAL);
        VERIFY_FAILED(AtomicFile::read(path), EINVAL);
        VERIFY_FAILED(AtomicFile::makeFolder(path), EINVAL);
        QCOMPARE(names(), QStringList());
    }

    void namesAreUnicode()
    {
        const QString path = at("") + u"attività 🤿"_s;
        VERIFY_OK(AtomicFile::replace(path, "x"));
        VERIFY_OK(AtomicFile::read(path));
        QVERIFY(QFileInfo::exists(path));
    }

    void aKilledProcessLeavesOneWholeValue()
    {
        const QByteArray first(150'000, 'a');
        const QByteArray second(90'000, 'b');
        VERIFY_OK(AtomicFile::replace(at("a"), first));
        for (int round = 0; round < 60; ++round) {
            const pid_t child = fork();
            QVERIFY(child >= 0);
            if (child == 0) {
                for (int i = 0; i < 100'000; ++i) {
                    if (!AtomicFile::replace(at("a"), i % 2 == 0 ? second : first))
                        _exit(1);
                }
                _exit(0);
            }
            const int reads = QRandomGenerator::global()->bounded(15);
            bool whole = true;
            for (int i = 0; i < reads; ++i) {
                const auto bytes = AtomicFile::read(at("a"));
                whole = whole && bytes && (*bytes == first || *bytes == second);
            }
            kill(child, SIGKILL);
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            QVERIFY(WIFSIGNALED(status));
            QVERIFY(whole);
            const QByteArray left = content("a");
            QVERIFY(left == first || left == second);
        }
        AtomicFile::removeLeftovers(m_folder->path());
        QCOMPARE(names(), QStringList{u"a"_s});
    }

    void leftoversAreOnlyOurs()
    {
        const QStringList others{u".abissora-notes.tmp"_s, u".hidden"_s, u"a.tmp"_s, u"savedEquipment.json"_s};
        for (const QString& name : others)
            VERIFY_OK(AtomicFile::replace(m_folder->filePath(name), "x"));
        VERIFY_OK(AtomicFile::replace(at(".abissora-0123456789abcdef.tmp"), "x"));
        AtomicFile::removeLeftovers(m_folder->path());
        QCOMPARE(names(), others);
        AtomicFile::removeLeftovers(at("missing"));
    }

    void copyCopies()
    {
        const QByteArray bytes(200'001, 'p');
        VERIFY_OK(AtomicFile::replace(at("a"), bytes));
        VERIFY_OK(AtomicFile::copy(at("a"), at("b")));
        QVERIFY(content("b") == bytes);
        QVERIFY(content("a") == bytes);
        QCOMPARE(names(), (QStringList{u"a"_s, u"b"_s}));
    }

    void copyNeverReplaces()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "new"));
        VERIFY_OK(AtomicFile::replace(at("b"), "old"));
        VERIFY_FAILED(AtomicFile::copy(at("a"), at("b")), EEXIST);
        QCOMPARE(content("b"), QByteArray("old"));
        QVERIFY(QFile::link(at("nowhere"), at("c")));
        VERIFY_FAILED(AtomicFile::copy(at("a"), at("c")), EEXIST);
        QVERIFY(QDir().mkdir(at("d")));
        VERIFY_FAILED(AtomicFile::copy(at("a"), at("d")), EEXIST);
        QCOMPARE(names().size(), 4);
    }

    void copyTakesRegularFilesOnly()
    {
        QVERIFY(QDir().mkdir(at("folder")));
        VERIFY_FAILED(AtomicFile::copy(at("folder"), at("b")), EISDIR);
        QCOMPARE(mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
        VERIFY_FAILED(AtomicFile::copy(at("pipe"), at("b")), EINVAL);
        VERIFY_FAILED(AtomicFile::copy(at("missing"), at("b")), ENOENT);
        QVERIFY(!QFileInfo::exists(at("b")));
    }

    void copyNeedsTheTargetsFolder()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "x"));
        VERIFY_FAILED(AtomicFile::copy(at("a"), at("missing/b")), ENOENT);
    }

    void aFullDiskLeavesNoHalfCopy()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), QByteArray(200'000, 'x')));
        IoResult<void> result;
        {
            const test::FileSizeLimit limit(100'000);
            result = AtomicFile::copy(at("a"), at("b"));
        }
        VERIFY_FAILED(result, EFBIG);
        QCOMPARE(names(), QStringList{u"a"_s});
    }

    void linkKeepsTheBytesThroughAReplacement()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "old"));
        VERIFY_OK(AtomicFile::link(at("a"), at("b")));
        VERIFY_OK(AtomicFile::replace(at("a"), "new"));
        QCOMPARE(content("b"), QByteArray("old"));
        VERIFY_FAILED(AtomicFile::link(at("a"), at("b")), EEXIST);
        VERIFY_FAILED(AtomicFile::link(at("missing"), at("c")), ENOENT);
        VERIFY_FAILED(AtomicFile::link(at("a"), at("missing/c")), ENOENT);
    }

    void readTellsWhyNot()
    {
        VERIFY_FAILED(AtomicFile::read(at("missing")), ENOENT);
        VERIFY_FAILED(AtomicFile::read(QString()), ENOENT);
        VERIFY_FAILED(AtomicFile::read(m_folder->path()), EISDIR);
        QCOMPARE(mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
        VERIFY_FAILED(AtomicFile::read(at("pipe")), EINVAL);
        VERIFY_FAILED(AtomicFile::read(u"/dev/null"_s), EINVAL);
    }

    void makeFolderMakesParents()
    {
        VERIFY_OK(AtomicFile::makeFolder(at("a/b/c")));
        QVERIFY(QFileInfo(at("a/b/c")).isDir());
        VERIFY_OK(AtomicFile::makeFolder(at("a/b/c")));
        VERIFY_OK(AtomicFile::makeFolder(at("d/e/")));
        QVERIFY(QFileInfo(at("d/e")).isDir());
        VERIFY_OK(AtomicFile::makeFolder(u"/"_s));
    }

    void makeFolderTellsWhyNot()
    {
        VERIFY_OK(AtomicFile::replace(at("file"), "x"));
        VERIFY_FAILED(AtomicFile::makeFolder(at("file")), EEXIST);
        VERIFY_FAILED(AtomicFile::makeFolder(at("file/a/b")), ENOTDIR);
        VERIFY_FAILED(AtomicFile::makeFolder(QString()), ENOENT);
        VERIFY_FAILED(AtomicFile::makeFolder(at("") + QString(300, u'n')), ENAMETOOLONG);
    }

private:
    QString at(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    QByteArray content(const char* name) const
    {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    mode_t mode(const char* name) const
    {
        struct stat status
        {};
        ::stat(QFile::encodeName(at(name)).constData(), &status);
        return status.st_mode & 07777;
    }

    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    std::optional<QTemporaryDir> m_folder;
};

ABISSORA_TEST(tst_AtomicFile);
#include "tst_AtomicFile.moc"
