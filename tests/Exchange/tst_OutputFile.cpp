// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "OutputFile.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;

namespace {

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

} // namespace

class tst_OutputFile : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void replacesWhatWasThere()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.csv"_s);
        QVERIFY(OutputFile::write(path, "one, longer"));
        QVERIFY(OutputFile::write(path, "two"));
        QCOMPARE(content(path), QByteArray("two"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"a.csv"_s));
    }

    void isReadableAsOtherNewFiles()
    {
        const QTemporaryDir folder;
        QFile usual(folder.filePath(u"usual"_s));
        QVERIFY(usual.open(QIODevice::WriteOnly));
        QVERIFY(OutputFile::write(folder.filePath(u"a.csv"_s), "x"));
        QCOMPARE(QFile::permissions(folder.filePath(u"a.csv"_s)), usual.permissions());
    }

    void whatFailsLeavesWhatWasThere()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.csv"_s);
        QVERIFY(OutputFile::write(path, "one"));
        const auto written = OutputFile::write(path, [](QIODevice& file) -> IoResult<void> {
            file.write("half of");
            return tl::unexpected(IoError{u"no more"_s});
        });
        QVERIFY(!written);
        QCOMPARE(written.error().reason, u"no more"_s);
        QCOMPARE(content(path), QByteArray("one"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"a.csv"_s));
    }

    void aFullDeviceIsAnError()
    {
        const auto written = OutputFile::write(u"/dev/full"_s, QByteArray(100'000, 'x'));
        QVERIFY(!written);
        QCOMPARE(written.error().reason, u"No space left on device"_s);
        QVERIFY(!QFileInfo(u"/dev/full"_s).isFile());
    }

    void aFolderAndAMissingOneAreErrors()
    {
        const QTemporaryDir folder;
        QCOMPARE(OutputFile::write(folder.path(), "x").error().reason, u"Is a directory"_s);
        QVERIFY(!OutputFile::write(folder.filePath(u"none/a.csv"_s), "x"));
        QCOMPARE(OutputFile::failure(u"/a.csv"_s, {u"why"_s}), u"Non è stato possibile scrivere «/a.csv»: why"_s);
    }
};

ABISSORA_TEST(tst_OutputFile);
#include "tst_OutputFile.moc"
