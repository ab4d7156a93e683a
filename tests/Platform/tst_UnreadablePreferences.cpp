// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "Literals.h"
#include "PreferencesTest.h"

#include <QFileInfo>
#include <cerrno>

using namespace abissora;

class tst_UnreadablePreferences : public test::PreferencesTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::PreferencesTest::init();
        m_clock.set(std::chrono::sys_days{std::chrono::year{2026} / 11 / 21} + std::chrono::hours{4} +
                    std::chrono::minutes{3} + std::chrono::seconds{2});
    }

    void unreadableBytesAreKept()
    {
        VERIFY_OK(m_store->setData(key, "{broken"));
        VERIFY_OK(m_store->preserveUnreadable(key));
        const QString copy = backups() + "/savedEquipment-20261121T040302Z.json"_L1;
        QCOMPARE(content(copy), QByteArray("{broken"));
        VERIFY_OK(m_store->setData(key, "[]"));
        QCOMPARE(content(copy), QByteArray("{broken"));
        QCOMPARE(namesIn(backups()).size(), 1);
    }

    void nothingStoredNeedsNoCopy()
    {
        VERIFY_OK(m_store->preserveUnreadable(key));
        QVERIFY(!QFileInfo::exists(backups()));
        VERIFY_OK(m_store->setData(key, "[]"));
    }

    void theSameBytesAreKeptOnce()
    {
        VERIFY_OK(m_store->setData(key, "{broken"));
        VERIFY_OK(m_store->preserveUnreadable(key));
        m_clock.advance(std::chrono::hours{1});
        VERIFY_OK(m_store->preserveUnreadable(key));
        QCOMPARE(namesIn(backups()).size(), 1);
        VERIFY_OK(m_store->setData(u"equipmentTypes"_s, "{broken"));
        VERIFY_OK(m_store->preserveUnreadable(u"equipmentTypes"_s));
        QCOMPARE(namesIn(backups()).size(), 2); // each key has its own copy
    }

    void copiesOfOneSecondHaveNumbers()
    {
        for (const char* bytes : {"one", "two", "six"}) {
            VERIFY_OK(m_store->setData(key, bytes));
            VERIFY_OK(m_store->preserveUnreadable(key));
        }
        const QString stem = backups() + "/savedEquipment-20261121T040302Z"_L1;
        QCOMPARE(content(stem + ".json"_L1), QByteArray("one"));
        QCOMPARE(content(stem + "-2.json"_L1), QByteArray("two"));
        QCOMPARE(content(stem + "-3.json"_L1), QByteArray("six"));
    }

    void aFullDiskKeepsTheBytesUnderASecondName()
    {
        const QByteArray broken(100'000, '{');
        VERIFY_OK(m_store->setData(key, broken));
        IoResult<void> result;
        {
            const test::FileSizeLimit limit(50'000);
            result = m_store->preserveUnreadable(key);
        }
        VERIFY_OK(result);
        VERIFY_OK(m_store->setData(key, "[]"));
        QCOMPARE(namesIn(backups()), QStringList{u"savedEquipment-20261121T040302Z.json"_s});
        QVERIFY(content(backups() + "/savedEquipment-20261121T040302Z.json"_L1) == broken);
    }

    void withoutACopyNothingIsOverwritten()
    {
        VERIFY_OK(m_store->setData(key, "{broken"));
        write(backups(), "in the way");
        VERIFY_FAILED(m_store->preserveUnreadable(key), EEXIST);
        VERIFY_FAILED(m_store->setData(key, "[]"), EEXIST);
        QCOMPARE(m_store->data(key).value(), std::optional(QByteArray("{broken")));
        VERIFY_OK(m_store->setData(u"equipmentTypes"_s, "[]")); // other keys go on

        QVERIFY(QFile::remove(backups()));
        VERIFY_OK(m_store->setData(key, "[]")); // kept first, then written
        QCOMPARE(content(backups() + "/savedEquipment-20261121T040302Z.json"_L1), QByteArray("{broken"));
        QCOMPARE(m_store->data(key).value(), std::optional(QByteArray("[]")));
    }

    void whatCannotBeReadIsNotOverwritten()
    {
        QVERIFY(QDir().mkpath(m_store->path(key)));
        VERIFY_FAILED(m_store->preserveUnreadable(key), EISDIR);
        VERIFY_FAILED(m_store->setData(key, "[]"), EISDIR);
        QVERIFY(QDir().rmdir(m_store->path(key)));
        VERIFY_OK(m_store->setData(key, "[]"));
    }
};

ABISSORA_TEST(tst_UnreadablePreferences);
#include "tst_UnreadablePreferences.moc"
