// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "IoChecks.h"
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
};

ABISSORA_TEST(tst_UnreadablePreferences);
#include "tst_UnreadablePreferences.moc"
