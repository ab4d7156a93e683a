// SPDX-License-Identifier: MIT
#include "AtomicFile.h"
#include "FileSizeLimit.h"
#include "IoChecks.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace std::chrono_literals;

namespace {

const QString key = registerKey;
const QString backups = u"backups"_s;

QList<Occasion> occasions(const test::TemporaryRegister& files)
{
    QList<Occasion> all;
    for (const EarlierState& state : files.generations.list())
        all.append(state.occasion);
    return all;
}

QByteArray bytesOf(const EarlierState& state, const QString& ofKey = key)
{
    QFile file(state.files.value(ofKey));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

} // namespace

class tst_Generations : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStoredIsNotKept()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setBoolean(u"darkMode"_s, true));
        VERIFY_OK(files.preferences.setData(typesKey, "[]", Occasion::typesReset));
        VERIFY_OK(files.preferences.setData(typesKey, "[ ]"));
        VERIFY_OK(files.preferences.setData(key, "1", Occasion::deletedItem));
        QCOMPARE(files.generations.list(), QList<EarlierState>());
    }

    void typesAreKeptBeforeARegisterIsStored_data()
    {
        QTest::addColumn<Occasion>("occasion");
        QTest::newRow("deleted") << Occasion::deletedType;
        QTest::newRow("reset") << Occasion::typesReset;
        QTest::newRow("migrated") << Occasion::iconsMigrated;
        QTest::newRow("import") << Occasion::import;
        QTest::newRow("restoration") << Occasion::restoration;
    }

    void typesAreKeptBeforeARegisterIsStored()
    {
        QFETCH(Occasion, occasion);
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        VERIFY_OK(files.preferences.setData(typesKey, "[ ]", occasion));
        QCOMPARE(occasions(files), QList{occasion});
        const EarlierState state = files.generations.list().constFirst();
        QCOMPARE(state.files.keys(), QStringList{typesKey});
        QCOMPARE(bytesOf(state, typesKey), QByteArray("[]"));
    }

    void theFirstChangeOfADay()
    {
        test::TemporaryRegister files; // 12:00 in Rome
        for (const char* bytes : {"1", "2", "3"})
            VERIFY_OK(files.preferences.setData(key, bytes));
        QCOMPARE(occasions(files), QList{Occasion::firstOfDay});
        QCOMPARE(bytesOf(files.generations.list().constFirst()), QByteArray("1"));
        QCOMPARE(files.names(backups), QStringList{u"20260615T100000.000Z-first-of-day"_s});

        files.clock.advance(11h + 59min);
        VERIFY_OK(files.preferences.setData(key, "4"));
        QCOMPARE(files.generations.list().size(), 1);
        files.clock.advance(1min); // midnight in Rome, not in UTC
        VERIFY_OK(files.preferences.setData(key, "5"));
        QCOMPARE(files.generations.list().size(), 2);
        QCOMPARE(bytesOf(files.generations.list().constFirst()), QByteArray("4"));
    }

    void anotherProcessOfTheDayKeepsNoSecondOne()
    {
        test::TemporaryRegister files;
        for (const char* bytes : {"1", "2"})
            VERIFY_OK(files.preferences.setData(key, bytes));
        Generations again(files.directories, files.clock, files.calendar, files.console, files.permission);
        VERIFY_OK(again.beforeWriting(key, Occasion::change));
        QCOMPARE(files.generations.list().size(), 1);
    }

    void everyDeletion()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        VERIFY_OK(files.preferences.setData(typesKey, "a"));
        VERIFY_OK(files.preferences.setData(key, "2", Occasion::deletedItem));
        VERIFY_OK(files.preferences.setData(key, "3", Occasion::deletedRecord));
        VERIFY_OK(files.preferences.setData(typesKey, "b", Occasion::deletedType));
        const QList<EarlierState> states = files.generations.list();
        QCOMPARE(occasions(files),
                 (QList{Occasion::deletedType, Occasion::deletedRecord, Occasion::deletedItem, Occasion::firstOfDay}));
        QCOMPARE(bytesOf(states.at(0)), QByteArray("3"));
        QCOMPARE(bytesOf(states.at(0), typesKey), QByteArray("a"));
        QCOMPARE(bytesOf(states.at(1)), QByteArray("2"));
        QCOMPARE(bytesOf(states.at(2)), QByteArray("1"));
        QCOMPARE(bytesOf(states.at(2), typesKey), QByteArray("a"));
        // The clock stood still: the names say it in milliseconds.
        QCOMPARE(states.at(0).name, u"20260615T100000.003Z-deleted-type"_s);
    }

    void settingsAreKeptToo()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        VERIFY_OK(files.preferences.setBoolean(u"darkMode"_s, true));
        VERIFY_OK(files.preferences.setData(key, "2", Occasion::deletedItem));
        QCOMPARE(bytesOf(files.generations.list().constFirst(), u"darkMode"_s), QByteArray("true"));
    }

    void whatAnotherProgramWrote()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        files.write(test::registerFile, "[ ]"); // of a sync tool
        VERIFY_OK(files.preferences.setData(key, "2"));
        QCOMPARE(occasions(files), QList{Occasion::foreignBytes});
        QCOMPARE(bytesOf(files.generations.list().constFirst()), QByteArray("[ ]"));
    }

    void whatStaysIsNoSecondNameOfTheStoredFile()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        VERIFY_OK(files.preferences.setData(typesKey, "types"));
        VERIFY_OK(files.preferences.setData(key, "2", Occasion::deletedItem));
        VERIFY_OK(files.preferences.setData(key, "3", Occasion::deletedItem));
        const QString stored = files.path(test::typesFile);
        QFile file(stored); // in place, as an editor may
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("other");
        file.close();
        const QList<EarlierState> states = files.generations.list();
        QCOMPARE(bytesOf(states.at(0), typesKey), QByteArray("types"));
        QCOMPARE(bytesOf(states.at(1), typesKey), QByteArray("types"));
        // The two states share one file.
        QCOMPARE(FileIdentity::of(states.at(0).files.value(typesKey)),
                 FileIdentity::of(states.at(1).files.value(typesKey)));
    }

    void whatCannotBeReplacedIsNoSecondNameEither()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, QByteArray(100, '1')));
        {
            const test::FileSizeLimit limit(100);
            static_cast<void>(files.preferences.setData(key, QByteArray(1000, 'x'), Occasion::deletedRecord));
        }
        files.write(test::registerFile, "[ ]"); // in place
        QCOMPARE(bytesOf(files.generations.list().at(0)), QByteArray(100, '1'));
        QCOMPARE(files.preferences.retry(), QStringList{key});
        QCOMPARE(occasions(files), (QList{Occasion::foreignBytes, Occasion::deletedRecord}));
        QCOMPARE(bytesOf(files.generations.list().at(0)), QByteArray("[ ]"));
        QCOMPARE(bytesOf(files.generations.list().at(1)), QByteArray(100, '1'));
    }

    void aRepeatedSaveKeepsItOnce()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        VERIFY_OK(files.preferences.setData(key, "2"));
        {
            const test::FileSizeLimit limit(100);
            for (int i = 0; i < 3; ++i)
                static_cast<void>(files.preferences.setData(key, QByteArray(1000, 'x'), Occasion::deletedItem));
        }
        QCOMPARE(files.preferences.retry(), QStringList{key});
        QCOMPARE(occasions(files), (QList{Occasion::deletedItem, Occasion::firstOfDay}));
    }

    void aDeletionIsStoredWhereNothingCanBeKept()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        files.write(backups, "in the way");
        VERIFY_OK(files.preferences.setData(key, "2", Occasion::deletedItem));
        VERIFY_OK(files.preferences.setData(key, "3", Occasion::deletedItem));
        QCOMPARE(files.console.calls(),
                 QStringList{u"Error keeping the present state: "_s + IoError::fromErrno(EEXIST).reason});
        QCOMPARE(files.content(test::registerFile), QByteArray("3"));
    }

    void foreignBytesAreNotOverwrittenWhereNothingCanBeKept()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        files.write(backups, "in the way");
        files.write(test::registerFile, "foreign");
        VERIFY_FAILED(files.preferences.setData(key, "2"), EEXIST);
        QCOMPARE(files.content(test::registerFile), QByteArray("foreign"));
        QVERIFY(QFile::remove(files.path(backups)));
        QCOMPARE(files.preferences.retry(), QStringList{key});
        QCOMPARE(bytesOf(files.generations.list().constFirst()), QByteArray("foreign"));
    }

    void withoutPermissionNothingIsWritten()
    {
        class Refusal final : public WritePermission
        {
            IoResult<void> mayWrite() override { return tl::unexpected(IoError::fromErrno(ENOLCK)); }
        };
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        Refusal refusal;
        Generations generations(files.directories, files.clock, files.calendar, files.console, refusal);
        PreferencesStore store(files.directories.preferences(), generations);
        VERIFY_FAILED(store.setData(key, "2"), ENOLCK);
        VERIFY_FAILED(store.preserveUnreadable(key), ENOLCK);
        QCOMPARE(files.content(test::registerFile), QByteArray("1"));
        QVERIFY(!QFileInfo::exists(files.path(backups)));
    }

    void stateNamesNeverGoBack()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "1"));
        VERIFY_OK(files.preferences.setData(key, "2", Occasion::deletedItem));
        files.clock.advance(-5h);
        VERIFY_OK(files.preferences.setData(key, "3", Occasion::deletedItem));
        QCOMPARE(bytesOf(files.generations.list().constFirst()), QByteArray("2"));
    }

    void oldStatesGoAfterANewOneIsThere()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(key, "0"));
        for (int i = 1; i <= 25; ++i) {
            files.clock.advance(1min);
            VERIFY_OK(files.preferences.setData(key, QByteArray::number(i), Occasion::deletedItem));
        }
        const QList<EarlierState> states = files.generations.list();
        QCOMPARE(states.size(), 20);
        QCOMPARE(bytesOf(states.first()), QByteArray("24"));
        QCOMPARE(bytesOf(states.last()), QByteArray("5"));
        QCOMPARE(files.names(backups).size(), 20);
    }

    void halfAStateIsNone()
    {
        test::TemporaryRegister files;
        files.write(u"backups/.abissora-0123456789abcdef.tmp/savedEquipment.json"_s, "half");
        files.write(u"backups/documents/x"_s, "");
        QCOMPARE(files.generations.list(), QList<EarlierState>());
        AtomicFile::removeLeftovers(files.path(backups));
        QCOMPARE(files.names(backups), QStringList{u"documents"_s});
    }

    void copiesOfEarlierVersionsAreListed()
    {
        test::TemporaryRegister files;
        files.write(u"backups/savedEquipment-20250102T030405Z.json"_s, "broken");
        files.write(u"backups/savedEquipment-20250102T030405Z-2.json"_s, "broken too");
        files.write(u"backups/notes.json"_s, "of somebody");
        const QList<EarlierState> states = files.generations.list();
        QCOMPARE(states.size(), 2);
        QCOMPARE(states.at(1).kept, test::at("2025-01-02T03:04:05Z"));
        QCOMPARE(states.at(0).occasion, Occasion::unreadable);
        QCOMPARE(bytesOf(states.at(0)), QByteArray("broken too"));
        QVERIFY(files.generations.find(u"savedEquipment-20250102T030405Z.json"_s));
        QVERIFY(!files.generations.find(u"notes.json"_s));
    }
};

ABISSORA_TEST(tst_Generations);
#include "tst_Generations.moc"
