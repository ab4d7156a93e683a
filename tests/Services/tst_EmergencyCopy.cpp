// SPDX-License-Identifier: MIT
#include "EmergencyCopy.h"
#include "IoChecks.h"
#include "StateContent.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_EmergencyCopy : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_state.emplace();
        qputenv("XDG_STATE_HOME", m_state->path().toUtf8());
    }

    void cleanup() { qunsetenv("XDG_STATE_HOME"); }

    void whatIsPendingIsKeptWithTheRest()
    {
        test::TemporaryRegister files;
        const QList<Equipment> now{test::equipment(1), test::equipment(2)};
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        VERIFY_OK(files.preferences.setData(registerKey, "[]"));
        files.write(u"backups"_s, "in the way");
        files.write(test::registerFile, "of another program");
        VERIFY_FAILED(files.preferences.setData(registerKey, encode(now).value()), EEXIST);

        const auto kept = keepEmergencyCopy(files.preferences, files.directories, files.clock);
        VERIFY_OK(kept);
        QVERIFY(kept->startsWith(m_state->path() + u"/abissora/"_s));
        QVERIFY(QFile::remove(files.path(u"backups"_s)));
        const QList<EarlierState> states = files.generations.list();
        QCOMPARE(states.size(), 1);
        QCOMPARE(states.first().occasion, Occasion::emergency);
        QCOMPARE(readContent(states.first()).equipment.records, now);
        QVERIFY(readContent(states.first()).types.isStored);
    }

    void itStandsFirst()
    {
        test::TemporaryRegister files;
        files.write(u"preferences"_s, "in the way");
        VERIFY_FAILED(files.preferences.setData(registerKey, "[]"), EEXIST);
        VERIFY_OK(keepEmergencyCopy(files.preferences, files.directories, files.clock));
        QVERIFY(QFile::remove(files.path(u"preferences"_s)));
        files.clock.advance(std::chrono::hours(24));
        for (const char* bytes : {"[]", "[ ]", "[  ]"})
            VERIFY_OK(files.preferences.setData(registerKey, bytes, Occasion::deletedItem));
        QCOMPARE(files.generations.list().size(), 3);
        QCOMPARE(files.generations.list().constFirst().occasion, Occasion::emergency);
    }

    void onceSomethingWasRestoredItStandsByItsTime()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(registerKey, "[]"));
        VERIFY_OK(keepEmergencyCopy(files.preferences, files.directories, files.clock));
        files.clock.advance(std::chrono::hours(24));
        VERIFY_OK(files.preferences.setData(registerKey, "[ ]", Occasion::restoration));
        VERIFY_OK(files.preferences.setData(registerKey, "[  ]", Occasion::deletedItem));
        const auto occasions = [&files] {
            QList<Occasion> found;
            for (const EarlierState& state : files.generations.list())
                found.append(state.occasion);
            return found;
        };
        QCOMPARE(occasions(), QList({Occasion::deletedItem, Occasion::restoration, Occasion::emergency}));
        files.clock.advance(std::chrono::hours(1));
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        VERIFY_OK(keepEmergencyCopy(files.preferences, files.directories, files.clock));
        QCOMPARE(occasions(),
                 QList({Occasion::emergency, Occasion::deletedItem, Occasion::restoration, Occasion::emergency}));
    }

    void theSameIsKeptOnce()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        files.write(u"backups"_s, "in the way");
        files.write(test::registerFile, "of another program");
        const auto keepWith = [&files](const char* bytes) {
            static_cast<void>(files.preferences.setData(registerKey, bytes));
            files.clock.advance(std::chrono::hours(24));
            return keepEmergencyCopy(files.preferences, files.directories, files.clock).value_or(QString());
        };
        const QString first = keepWith("[]");
        QVERIFY(!first.isEmpty());
        QCOMPARE(keepWith("[]"), first);
        const QString second = keepWith("[ ]");
        QVERIFY(second != first);
        QVERIFY(keepWith("[]") != first); // the latest one counts
        files.write(u"preferences/equipmentTypes.json"_s, "[ ]");
        const QString third = keepWith("[]");
        QCOMPARE(statesIn(files.directories.emergency()).size(), 4);
        QCOMPARE(keepWith("[]"), third);
        const QDir folder(files.directories.emergency());
        QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 4);
    }

    void otherRegistersHaveTheirOwn()
    {
        const ApplicationDirectories one(u"/one"_s);
        const ApplicationDirectories two(u"/two"_s);
        QVERIFY(one.emergency() != two.emergency());
        QCOMPARE(one.emergency(), ApplicationDirectories(u"/one/"_s, true).emergency());
    }

private:
    std::optional<QTemporaryDir> m_state;
};

ABISSORA_TEST(tst_EmergencyCopy);
#include "tst_EmergencyCopy.moc"
