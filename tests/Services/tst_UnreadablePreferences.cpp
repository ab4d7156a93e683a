// SPDX-License-Identifier: MIT
#include "FailingCalls.h"
#include "FileSizeLimit.h"
#include "IoChecks.h"
#include "Restoration.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "UnreadableCopy.h"

#include <QTest>

using namespace abissora;
using test::backups;
using test::copy;

namespace {

const QString key = registerKey;

} // namespace

/// Data that its owner cannot decode is a state of its own, kept before anything overwrites it.
class tst_UnreadablePreferences : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unreadableBytesAreKept()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "{broken");
        VERIFY_OK(files.preferences.preserveUnreadable(key));
        QCOMPARE(files.content(copy), QByteArray("{broken"));
        VERIFY_OK(files.preferences.setData(key, "[]"));
        QCOMPARE(files.content(copy), QByteArray("{broken"));
    }

    void nothingStoredNeedsNoCopy()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.preserveUnreadable(key));
        QVERIFY(!QFileInfo::exists(files.path(backups)));
        VERIFY_OK(files.preferences.setData(key, "[]"));
    }

    void theSameBytesAreKeptOnce()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "{broken");
        VERIFY_OK(files.preferences.preserveUnreadable(key));
        files.clock.advance(std::chrono::hours{1});
        VERIFY_OK(files.preferences.preserveUnreadable(key));
        QCOMPARE(files.names(backups).size(), 1);
        files.write(test::typesFile, "{broken");
        VERIFY_OK(files.preferences.preserveUnreadable(typesKey));
        QCOMPARE(files.names(backups).size(), 2);
    }

    void bothAtOnceAreOneState()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "{broken");
        files.write(test::typesFile, "too");
        VERIFY_OK(files.preferences.preserveUnreadable(key));
        VERIFY_OK(files.preferences.preserveUnreadable(typesKey));
        QCOMPARE(files.names(backups).size(), 1);
        QCOMPARE(files.generations.list().constFirst().files.size(), 2);
    }

    void aFullDiskKeepsTheBytesUnderASecondName()
    {
        test::TemporaryRegister files;
        const QByteArray broken(100'000, '{');
        files.write(test::registerFile, broken);
        files.write(test::typesFile, broken);
        IoResult<void> result;
        {
            const test::FileSizeLimit limit(50'000);
            result = files.preferences.preserveUnreadable(key);
        }
        VERIFY_OK(result);
        VERIFY_OK(files.preferences.setData(key, "[]"));
        QVERIFY(files.content(copy) == broken);
    }

    void whatAnotherProgramLeftUnreadableIsKeptForEver_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("register") << registerKey;
        QTest::newRow("types") << typesKey;
    }

    void whatAnotherProgramLeftUnreadableIsKeptForEver()
    {
        QFETCH(QString, key);
        test::TemporaryRegister files;
        for (const QString& stored : {registerKey, typesKey})
            VERIFY_OK(files.preferences.setData(stored, "[]"));
        const QString file = u"preferences/%1.json"_s.arg(key);
        files.write(file, "of a sync tool");
        VERIFY_OK(files.preferences.setData(key, "[ ]"));
        const QString kept = u"backups/%1/%2.json"_s.arg(unreadableStates(files).value(0), key);
        QCOMPARE(files.content(kept), QByteArray("of a sync tool"));
        for (int i = 0; i < 25; ++i)
            VERIFY_OK(files.preferences.setData(registerKey, "[" + QByteArray(i, ' ') + "]", Occasion::deletedItem));
        QCOMPARE(unreadableStates(files).size(), 1);
        QCOMPARE(files.content(kept), QByteArray("of a sync tool"));
    }

    void whatIsKeptForEverIsForeignOnly()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "{broken");
        VERIFY_OK(files.preferences.preserveUnreadable(key));
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        files.write(test::typesFile, "[ ]");
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        QCOMPARE(files.names(backups),
                 QStringList({u"20260615T100000.000Z-unreadable"_s, u"20260615T100000.001Z-foreign"_s}));
    }

    /// The register was saved meanwhile, and a state of that holds them too.
    void aStateThatGoesIsNoCopy()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "[]"));
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        files.write(test::typesFile, "of a sync tool");
        VERIFY_OK(files.generations.keep(Occasion::deletedItem));
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        QCOMPARE(unreadableStates(files).size(), 1);
    }

    void aRestorationKeepsItForEverToo()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "[]"));
        VERIFY_OK(files.generations.keep(Occasion::deletedItem));
        const EarlierState state = files.generations.list().constFirst();
        files.write(test::registerFile, "of a sync tool");
        VERIFY_OK(Restoration(files.directories, files.generations).restore(state));
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QCOMPARE(unreadableStates(files).size(), 1);
    }

    void aProcessThatEndedBeforeItsSaveLeavesTheCopy()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "[]"));
        files.write(test::registerFile, "of a sync tool");
        {
            const test::FailingCalls calls("rename@1+=EIO", files.directories.preferences());
            VERIFY_FAILED(files.preferences.setData(key, "[ ]"), EIO);
        }
        const QStringList left = unreadableStates(files);
        QCOMPARE(left.size(), 1);
        VERIFY_OK(PreferencesStore(files.directories.preferences(), files.generations).preserveUnreadable(key));
        QCOMPARE(unreadableStates(files), left);
    }

    void ofAForeignStateOfAnEarlierVersionTheStartMakesACopy()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "of a sync tool");
        files.write(u"backups/20260614T100000.000Z-foreign/savedEquipment.json"_s, "of a sync tool");
        VERIFY_OK(files.preferences.preserveUnreadable(key));
        QCOMPARE(files.content(copy), QByteArray("of a sync tool"));
    }

    void withoutACopyNothingIsOverwritten()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "{broken");
        files.write(backups, "in the way");
        VERIFY_FAILED(files.preferences.preserveUnreadable(key), EEXIST);
        VERIFY_FAILED(files.preferences.setData(key, "[]"), EEXIST);
        QCOMPARE(files.content(test::registerFile), QByteArray("{broken"));

        QVERIFY(QFile::remove(files.path(backups)));
        VERIFY_OK(files.preferences.setData(key, "[]")); // kept first, then written
        QCOMPARE(files.content(copy), QByteArray("{broken"));
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
    }

private:
    static QStringList unreadableStates(const test::TemporaryRegister& files)
    {
        return files.names(backups).filter(u"-unreadable"_s);
    }
};

ABISSORA_TEST(tst_UnreadablePreferences);
#include "tst_UnreadablePreferences.moc"
