// SPDX-License-Identifier: MIT
#include "IoChecks.h"
#include "RegisterStart.h"
#include "StateContent.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const QString darkMode = u"preferences/darkMode.json"_s;
const QString journal = u"backups/restoring"_s;

QByteArray registerOf(int item)
{
    return encode(QList{test::equipment(item)}).value();
}

} // namespace

class tst_Restoration : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everythingComesBack()
    {
        test::TemporaryRegister files;
        const EarlierState before = keptAndChanged(files);
        VERIFY_OK(restore(files, before));
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        QCOMPARE(files.content(test::typesFile), QByteArray("[]"));
        QCOMPARE(files.names(u"preferences"_s), QStringList({u"equipmentTypes.json"_s, u"savedEquipment.json"_s}));
        QVERIFY(!QFileInfo::exists(files.path(journal)));
    }

    void aRestorationCanBeUndone()
    {
        test::TemporaryRegister files;
        VERIFY_OK(restore(files, keptAndChanged(files)));
        const EarlierState undone = files.generations.list().constFirst();
        QCOMPARE(undone.occasion, Occasion::restoration);
        VERIFY_OK(restore(files, undone));
        QCOMPARE(files.content(test::registerFile), registerOf(2));
        QCOMPARE(files.content(darkMode), QByteArray("true"));
    }

    void theOldestStateComesBackThoughItsTimeIsOver()
    {
        test::TemporaryRegister files;
        for (int i = 1; i <= 21; ++i)
            VERIFY_OK(files.preferences.setData(registerKey, registerOf(i), Occasion::deletedItem));
        QCOMPARE(files.generations.list().size(), 20);
        const EarlierState oldest = files.generations.list().constLast();
        VERIFY_OK(restore(files, oldest));
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        // It goes with the next one.
        QVERIFY(files.generations.find(oldest.name));
        VERIFY_OK(files.preferences.setData(registerKey, registerOf(22), Occasion::deletedItem));
        QVERIFY(!files.generations.find(oldest.name));
    }

    void unknownMembersComeBackToo()
    {
        test::TemporaryRegister files;
        const QByteArray strange = registerOf(1).replace("\"brand\":", "\"depth\":40,\"brand\":");
        VERIFY_OK(files.preferences.setData(registerKey, strange));
        VERIFY_OK(files.generations.keep(Occasion::deletedItem));
        VERIFY_OK(files.preferences.setData(registerKey, "[]"));
        VERIFY_OK(restore(files, files.generations.list().constFirst()));
        QCOMPARE(files.content(test::registerFile), strange);
    }

    void oneDamagedRecordOfThreeHundred()
    {
        test::TemporaryRegister files;
        QList<Equipment> many;
        for (int i = 1; i <= 300; ++i)
            many.append(test::equipment(i));
        QByteArray damaged = encode(many).value();
        damaged.replace(damaged.indexOf("\"GAV\"", damaged.size() / 2), 5, "\"Pesce\"");
        files.write(test::registerFile, damaged);
        VERIFY_OK(files.preferences.preserveUnreadable(registerKey));
        const EarlierState state = files.generations.list().constFirst();
        QCOMPARE(readContent(state).equipment.records.size(), 299);
        QCOMPARE(readContent(state).equipment.total, 300);
        VERIFY_OK(restore(files, state));
        QCOMPARE(decodeEquipment(files.content(test::registerFile)).value().size(), 299);
    }

    void whatCannotBeReadAtAllChangesNothing()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "rubbish");
        VERIFY_OK(files.preferences.preserveUnreadable(registerKey));
        VERIFY_OK(files.preferences.setData(registerKey, "[]"));
        const auto restored = restore(files, files.generations.list().constLast());
        QVERIFY(!restored);
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QVERIFY(!QFileInfo::exists(files.path(journal)));
    }

    void aStateOfNeitherListChangesNothing()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(registerKey, registerOf(1)));
        QVERIFY(QDir().mkpath(files.path(u"backups/20250102T030405.000Z-deleted-item"_s)));
        files.write(u"backups/20250102T030405.001Z-foreign/darkMode.json"_s, "true");
        for (const EarlierState& state : files.generations.list()) {
            QVERIFY(!readContent(state).isWhole());
            QVERIFY(!restore(files, state));
        }
        QCOMPARE(files.generations.list().size(), 2);
        QCOMPARE(files.names(u"preferences"_s), QStringList{u"savedEquipment.json"_s});
    }

    void aCopyOfAnEarlierVersionTouchesItsListOnly()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(registerKey, registerOf(1)));
        files.write(u"backups/equipmentTypes-20250102T030405Z.json"_s, "[{}]");
        files.write(u"backups/savedEquipment-20250102T030405Z.json"_s, registerOf(7).chopped(1));
        QVERIFY(!restore(files, *files.generations.find(u"equipmentTypes-20250102T030405Z.json"_s)));
        VERIFY_OK(restore(files, *files.generations.find(u"savedEquipment-20250102T030405Z.json"_s)));
        QCOMPARE(files.content(test::registerFile), registerOf(7));
        QCOMPARE(files.names(u"preferences"_s), QStringList{u"savedEquipment.json"_s});
    }

    void typesThatTheStateLacksStayWithTheirIcons()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(registerKey, registerOf(1)));
        VERIFY_OK(files.preferences.setData(registerKey, registerOf(2), Occasion::deletedItem));
        VERIFY_OK(files.preferences.setData(typesKey, "[]"));
        VERIFY_OK(files.preferences.setInteger(iconVersionKey, 4));
        VERIFY_OK(restore(files, files.generations.list().constFirst()));
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        QCOMPARE(files.content(u"preferences/iconSetVersion.json"_s), QByteArray("4"));
    }

    void aStateOfTypesLeavesTheRegisterAndTheSettings()
    {
        test::TemporaryRegister files;
        const QByteArray types = encode(QList{test::equipmentType(1, u"Faro"_s)}).value();
        VERIFY_OK(files.preferences.setData(typesKey, types));
        VERIFY_OK(files.preferences.setData(typesKey, "[]", Occasion::typesReset));
        VERIFY_OK(files.preferences.setData(registerKey, registerOf(1)));
        VERIFY_OK(files.preferences.setBoolean(u"darkMode"_s, true));
        const EarlierState state = files.generations.list().constLast();
        QCOMPARE(readContent(state).types.records.size(), 1);
        QVERIFY(readContent(state).isWhole());
        VERIFY_OK(restore(files, state));
        QCOMPARE(files.content(test::typesFile), types);
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        QCOMPARE(files.content(darkMode), QByteArray("true"));
    }

    void whatWasInterruptedIsCompletedAtTheNextStart()
    {
        test::TemporaryRegister files;
        const EarlierState before = keptAndChanged(files);
        files.write(journal, before.name.toUtf8());
        clearUp(files.directories, files.generations);
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        QVERIFY(!QFileInfo::exists(files.path(darkMode)));
        QVERIFY(!QFileInfo::exists(files.path(journal)));
    }

    void whatWasStoredAfterAFailureIsKeptFirst()
    {
        test::TemporaryRegister files;
        const EarlierState before = keptAndChanged(files);
        files.write(journal, before.name.toUtf8());
        VERIFY_OK(files.preferences.setData(registerKey, registerOf(5))); // the program went on
        clearUp(files.directories, files.generations);
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        const EarlierState kept = files.generations.list().constFirst();
        QCOMPARE(kept.occasion, Occasion::restoration);
        QCOMPARE(readContent(kept).equipment.records, QList{test::equipment(5)});
    }

    void aJournalOfNoStateGoes()
    {
        test::TemporaryRegister files;
        VERIFY_OK(files.preferences.setData(registerKey, "[]"));
        files.write(journal, "20200101T000000.000Z-deleted-item");
        clearUp(files.directories, files.generations);
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QVERIFY(!QFileInfo::exists(files.path(journal)));
    }

    void withoutAKeptPresentNothingIsRestored()
    {
        test::TemporaryRegister files;
        const EarlierState before = keptAndChanged(files);
        const EarlierState moved = movedAway(files, before);
        files.write(u"backups"_s, "in the way");
        VERIFY_FAILED(restore(files, moved), EEXIST);
        QCOMPARE(files.content(test::registerFile), registerOf(2));
    }

private:
    static IoResult<void> restore(test::TemporaryRegister& files, const EarlierState& state)
    {
        return Restoration(files.directories, files.generations).restore(state);
    }

    /// A state with item 1 and without settings; now there is item 2 and a setting.
    static EarlierState keptAndChanged(test::TemporaryRegister& files)
    {
        static_cast<void>(files.preferences.setData(typesKey, "[]"));
        static_cast<void>(files.preferences.setData(registerKey, registerOf(1)));
        static_cast<void>(files.preferences.setData(registerKey, registerOf(2), Occasion::deletedItem));
        static_cast<void>(files.preferences.setBoolean(u"darkMode"_s, true));
        return files.generations.list().constFirst();
    }

    static EarlierState movedAway(test::TemporaryRegister& files, const EarlierState& state)
    {
        const QString target = files.path(state.name);
        QDir().rename(state.path, target);
        QDir(files.directories.backups()).removeRecursively();
        return *readState(target);
    }
};

ABISSORA_TEST(tst_Restoration);
#include "tst_Restoration.moc"
