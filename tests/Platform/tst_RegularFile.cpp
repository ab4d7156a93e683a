// SPDX-License-Identifier: MIT
#include "RegularFile.h"

#include "AtomicFile.h"
#include "FileSizeLimit.h"
#include "IoChecks.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <sys/stat.h>

using namespace abissora;

namespace {

bool always(qint64 /*copied*/, qint64 /*whole*/)
{
    return true;
}

QByteArray manyBytes(qsizetype size)
{
    QByteArray bytes(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 31 + i / 255);
    return bytes;
}

} // namespace

class tst_RegularFile : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
    }

    void beginnings_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("beginning");
        QTest::newRow("longer") << QByteArray("abcdef") << 3 << QByteArray("abc");
        QTest::newRow("as long") << QByteArray("abc") << 3 << QByteArray("abc");
        QTest::newRow("shorter") << QByteArray("ab") << 3 << QByteArray("ab");
        QTest::newRow("empty") << QByteArray() << 3 << QByteArray();
        QTest::newRow("nothing wanted") << QByteArray("abc") << 0 << QByteArray();
    }

    void beginnings()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, size);
        VERIFY_OK(AtomicFile::replace(at("a"), content));
        const auto read = RegularFile::beginning(at("a"), size);
        VERIFY_OK(read);
        QTEST(*read, "beginning");
    }

    void noBeginning()
    {
        QCOMPARE(mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
        VERIFY_FAILED(RegularFile::beginning(at("pipe"), 3), EINVAL);
        VERIFY_FAILED(RegularFile::beginning(at("missing"), 3), ENOENT);
        VERIFY_FAILED(RegularFile::beginning(m_folder->path(), 3), EISDIR);
        VERIFY_FAILED(RegularFile::beginning(u"/dev/zero"_s, 3), EINVAL);
        VERIFY_FAILED(RegularFile::beginning(u"/proc/self/mem"_s, 3), EIO);
    }

    void copyCopiesEveryByte_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {0, 1, 262'143, 262'144, 262'145, 17'000'001})
            QTest::addRow("%d", size) << size;
    }

    void copyCopiesEveryByte()
    {
        QFETCH(int, size);
        const QByteArray bytes = manyBytes(size);
        VERIFY_OK(AtomicFile::replace(at("a"), bytes));
        VERIFY_OK(RegularFile::copy(at("a"), at("b"), always));
        QVERIFY(AtomicFile::read(at("b")).value() == bytes);
        QVERIFY(AtomicFile::read(at("a")).value() == bytes);
        QCOMPARE(names(), QStringList({u"a"_s, u"b"_s}));
    }

    void aCopyIsTheOwnersOnly()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "x"));
        QVERIFY(QFile::setPermissions(at("a"), QFile::Permissions(0x7777)));
        VERIFY_OK(RegularFile::copy(at("a"), at("b"), always));
        QCOMPARE(QFile::permissions(at("b")) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    void copyTellsHowFarItIs()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), manyBytes(600'000)));
        QList<qint64> told;
        QStringList seen;
        VERIFY_OK(RegularFile::copy(at("a"), at("b"), [&](qint64 copied, qint64 whole) {
            told.append(copied);
            seen.append(names());
            return whole == 600'000;
        }));
        QCOMPARE(told, QList<qint64>({0, 262'144, 524'288, 600'000, 600'000}));
        QVERIFY(!seen.contains(u"b"_s)); // not before it is whole
    }

    void anEndedCopyLeavesNothing_data()
    {
        QTest::addColumn<int>("questions");
        QTest::newRow("before the first block") << 0;
        QTest::newRow("after it") << 1;
        QTest::newRow("after the last one") << 3;
        QTest::newRow("before it gets its name") << 4;
    }

    void anEndedCopyLeavesNothing()
    {
        QFETCH(int, questions);
        VERIFY_OK(AtomicFile::replace(at("a"), manyBytes(600'000)));
        int asked = 0;
        const auto goesOn = [&](qint64, qint64) { return asked++ != questions; };
        VERIFY_FAILED(RegularFile::copy(at("a"), at("b"), goesOn), ECANCELED);
        QCOMPARE(asked, questions + 1);
        QCOMPARE(names(), QStringList{u"a"_s});
    }

    void aFileThatGrowsMeanwhileIsCopiedWhole()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "old"));
        qint64 last = 0;
        VERIFY_OK(RegularFile::copy(at("a"), at("b"), [&](qint64 copied, qint64 whole) {
            QFile file(at("a"));
            if (copied == 3 && file.size() == 3 && file.open(QIODevice::Append))
                file.write(" and new");
            last = copied;
            return whole == 3;
        }));
        QCOMPARE(AtomicFile::read(at("b")).value(), QByteArray("old and new"));
        QCOMPARE(last, 11);
    }

    void copyNeverReplaces()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "new"));
        VERIFY_OK(AtomicFile::replace(at("b"), "old"));
        VERIFY_FAILED(RegularFile::copy(at("a"), at("b"), always), EEXIST);
        QCOMPARE(AtomicFile::read(at("b")).value(), QByteArray("old"));
        QVERIFY(QFile::link(at("nowhere"), at("c")));
        VERIFY_FAILED(RegularFile::copy(at("a"), at("c"), always), EEXIST);
        QCOMPARE(names(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    }

    void copyTakesRegularFilesOnly()
    {
        QVERIFY(QDir().mkdir(at("folder")));
        QCOMPARE(mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
        VERIFY_FAILED(RegularFile::copy(at("folder"), at("b"), always), EISDIR);
        VERIFY_FAILED(RegularFile::copy(at("pipe"), at("b"), always), EINVAL);
        VERIFY_FAILED(RegularFile::copy(at("missing"), at("b"), always), ENOENT);
        VERIFY_FAILED(RegularFile::copy(u"/proc/self/mem"_s, at("b"), always), EIO);
        QCOMPARE(names(), QStringList({u"folder"_s, u"pipe"_s}));
    }

    void copyNeedsAPlaceForTheCopy()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), "x"));
        VERIFY_FAILED(RegularFile::copy(at("a"), at("missing/b"), always), ENOENT);
        VERIFY_FAILED(RegularFile::copy(at("a"), at("a/b"), always), ENOTDIR);
        VERIFY_FAILED(RegularFile::copy(at("a"), at("b") + QChar::Null + "c"_L1, always), EINVAL);
        QCOMPARE(names(), QStringList{u"a"_s});
    }

    void aFullDiskLeavesNoHalfCopy()
    {
        VERIFY_OK(AtomicFile::replace(at("a"), QByteArray(600'000, 'x')));
        IoResult<void> result;
        {
            const test::FileSizeLimit limit(300'000);
            result = RegularFile::copy(at("a"), at("b"), always);
        }
        VERIFY_FAILED(result, EFBIG);
        QCOMPARE(names(), QStringList{u"a"_s});
    }

private:
    QString at(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    std::optional<QTemporaryDir> m_folder;
};

ABISSORA_TEST(tst_RegularFile);
#include "tst_RegularFile.moc"
