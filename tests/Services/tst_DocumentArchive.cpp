// SPDX-License-Identifier: MIT
#include "AtomicFile.h"
#include "FailingCalls.h"
#include "IoChecks.h"
#include "Purge.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace std::chrono_literals;

namespace {

const QString folder = u"MaintenanceDocuments"_s;
const QString archive = u"backups/documents"_s;
const QString name = u"00000000-0000-4000-8000-000000000001.pdf"_s;
const QString other = u"00000000-0000-4000-8000-000000000002.PDF"_s;

QString in(const QString& where, const QString& what)
{
    return where + u'/' + what;
}

} // namespace

class tst_DocumentArchive : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDeletedDocumentComesBack()
    {
        test::TemporaryRegister files;
        files.write(in(folder, name), "one");
        files.archive.archive(name);
        QCOMPARE(files.names(folder), QStringList());
        QCOMPARE(files.names(archive), QStringList{u"20260615T100000.000Z-"_s + name});
        QCOMPARE(files.archive.archived(), QSet{name});

        files.archive.settle({name});
        QCOMPARE(files.names(archive), QStringList());
        QCOMPARE(files.content(in(folder, name)), QByteArray("one"));
    }

    void whatNoRecordNamesGoes()
    {
        test::TemporaryRegister files;
        files.write(in(folder, name), "one");
        files.write(in(folder, other), "two");
        files.write(in(folder, u"libretto.pdf"_s), "put there by hand");
        files.archive.settle({other});
        QCOMPARE(files.names(folder), QStringList({other, u"libretto.pdf"_s}));
        QCOMPARE(files.archive.archived(), QSet{name});
    }

    void aFileThatIsThereIsNotReplaced()
    {
        test::TemporaryRegister files;
        files.write(in(folder, name), "old");
        files.archive.archive(name);
        files.write(in(folder, name), "new");
        files.archive.settle({name});
        QCOMPARE(files.content(in(folder, name)), QByteArray("new"));
        QCOMPARE(files.archive.archived(), QSet{name});
    }

    void namesOfOtherProgramsComeBackToo()
    {
        test::TemporaryRegister files;
        files.write(in(folder, u"libretto.pdf"_s), "x");
        files.archive.archive(u"libretto.pdf"_s);
        QCOMPARE(files.names(folder), QStringList());
        files.archive.settle({u"libretto.pdf"_s});
        QCOMPARE(files.names(folder), QStringList{u"libretto.pdf"_s});
    }

    void nothingToArchive()
    {
        test::TemporaryRegister files;
        files.archive.archive(name);
        QVERIFY(!QFileInfo::exists(files.path(archive)));
    }

    void afterThirtyDaysWhatNothingNamesIsDeleted()
    {
        test::TemporaryRegister files;
        files.write(in(folder, name), "one");
        files.write(in(folder, other), "two");
        files.archive.archive(name);
        files.archive.archive(other);
        files.write(u"backups/20260615T100000.000Z-deleted-record/savedEquipment.json"_s,
                    "[\"" + other.toUtf8() + "\"]");
        files.clock.advance(24h * 30 - 1ms);
        test::purge(files.archive);
        QCOMPARE(files.archive.archived(), QSet({name, other}));
        files.clock.advance(1ms);
        test::purge(files.archive);
        QCOMPARE(files.archive.archived(), QSet{other});
    }

    /// It may name any of them.
    void aStateThatCannotBeReadKeepsAll()
    {
        test::TemporaryRegister files;
        files.write(in(folder, name), "one");
        files.archive.archive(name);
        files.write(u"backups/20260615T100000.000Z-deleted-record/savedEquipment.json"_s, "[]");
        files.clock.advance(24h * 100);
        {
            const test::FailingCalls calls("read@1+=EIO", files.path(u"backups"_s));
            test::purge(files.archive);
        }
        QCOMPARE(files.archive.archived(), QSet{name});
        test::purge(files.archive);
        QCOMPARE(files.archive.archived(), QSet<QString>());
    }

    void aFileOfSeveralStatesIsReadOnce()
    {
        test::TemporaryRegister files;
        putOld(files, name);
        files.write(u"backups/20260615T100000.000Z-deleted-record/savedEquipment.json"_s, "[]");
        QVERIFY(QDir().mkpath(files.path(u"backups/20260615T100000.001Z-types-reset"_s)));
        VERIFY_OK(AtomicFile::link(files.path(u"backups/20260615T100000.000Z-deleted-record/savedEquipment.json"_s),
                                   files.path(u"backups/20260615T100000.001Z-types-reset/savedEquipment.json"_s)));
        OldDocuments old = files.archive.oldDocuments();
        QCOMPARE(old.registers.size(), 2);
        const test::FailingCalls calls("open@2+=EIO", files.path(u"backups"_s));
        VERIFY_OK(DocumentArchive::strikeOffNamed(old, {}));
        QCOMPARE(old.paths.size(), 1);
    }

    void whereNothingIsLeftNothingIsRead()
    {
        test::TemporaryRegister files;
        putOld(files, name);
        for (const char* state : {"20260615T100000.000Z-import", "20260615T100000.001Z-import"})
            files.write(u"backups/%1/savedEquipment.json"_s.arg(QLatin1String(state)), name.toUtf8());
        OldDocuments old = files.archive.oldDocuments();
        QCOMPARE(old.registers.size(), 2);
        const test::FailingCalls calls("open@2+=EIO", files.path(u"backups"_s));
        VERIFY_OK(DocumentArchive::strikeOffNamed(old, {}));
        QVERIFY(old.paths.isEmpty());
    }

    void whileNothingIsOldNobodyLooks()
    {
        test::TemporaryRegister files;
        files.write(in(folder, name), "one");
        files.archive.archive(name);
        files.write(test::registerFile, "[]");
        QVERIFY(files.archive.oldDocuments().registers.isEmpty());
    }

    void whatIsNamedMeanwhileStays_data()
    {
        QTest::addColumn<QString>("named");
        QTest::newRow("by the register") << test::registerFile;
        QTest::newRow("by a new state") << u"backups/20260615T100000.000Z-import/savedEquipment.json"_s;
    }

    void whatIsNamedMeanwhileStays()
    {
        QFETCH(QString, named);
        test::TemporaryRegister files;
        putOld(files, name);
        files.write(test::registerFile, "[]");
        OldDocuments old = files.archive.oldDocuments();
        VERIFY_OK(DocumentArchive::strikeOffNamed(old, {}));
        QCOMPARE(old.paths.size(), 1);
        files.write(named, name.toUtf8());
        files.archive.remove(old);
        QCOMPARE(files.archive.archived(), QSet{name});
    }

    void whatIsCancelledDeletesNothing()
    {
        test::TemporaryRegister files;
        putOld(files, name);
        files.write(test::registerFile, "[]");
        OldDocuments old = files.archive.oldDocuments();
        WorkProgress progress;
        progress.cancel();
        VERIFY_FAILED(DocumentArchive::strikeOffNamed(old, progress), ECANCELED);
    }

    void theRegisterItselfKeepsItsDocuments()
    {
        test::TemporaryRegister files;
        files.write(in(folder, name), "one");
        files.archive.archive(name);
        files.write(test::registerFile, "\"" + name.toUtf8().toLower() + "\" \"" + name.toUtf8() + "\"");
        files.clock.advance(24h * 100);
        test::purge(files.archive);
        QCOMPARE(files.archive.archived(), QSet{name});
    }

    void withoutPermissionNothingMoves()
    {
        class Refusal final : public WritePermission
        {
            IoResult<void> mayWrite() override { return tl::unexpected(IoError::fromErrno(ENOLCK)); }
        };
        test::TemporaryRegister files;
        Refusal refusal;
        const DocumentArchive refused(files.directories, files.clock, refusal);
        files.write(in(folder, name), "one");
        refused.archive(name);
        refused.settle({});
        QCOMPARE(files.names(folder), QStringList{name});
    }

    void documentNamesAreRecognised()
    {
        QVERIFY(isDocumentName(name));
        QVERIFY(isDocumentName(u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F.p d f"_s));
        for (const char* no :
             {"", "a.pdf", "00000000-0000-4000-8000-000000000001", "00000000-0000-4000-8000-000000000001.",
              "x00000000-0000-4000-8000-000000000001.pdf", "00000000-0000-4000-8000-000000000001.a/b"})
            QVERIFY2(!isDocumentName(QLatin1String(no)), no);
    }

private:
    /// One that went to the archive long ago.
    static void putOld(const test::TemporaryRegister& files, const QString& document)
    {
        files.write(archive + u"/20260101T100000.000Z-"_s + document, "old");
    }
};

ABISSORA_TEST(tst_DocumentArchive);
#include "tst_DocumentArchive.moc"
