// SPDX-License-Identifier: MIT
#include "ArchiveRestoration.h"
#include "FailingCalls.h"
#include "GoOn.h"
#include "IoChecks.h"
#include "RegisterArchive.h"
#include "RegisterStart.h"
#include "StateContent.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QDirIterator>
#include <QTest>

using namespace abissora;
using test::always;

namespace {

const QString named = u"00000000-0000-4000-9000-000000000001.pdf"_s;
const QString other = u"00000000-0000-4000-9000-000000000002.pdf"_s;
const QString stateOfCopy = u"20260301T100000.000Z-deleted-item"_s;
const QString folderOfDocuments = u"MaintenanceDocuments/"_s;

QByteArray registerOf(int item)
{
    Maintenance record = test::maintenance(10 + item);
    record.receiptFileName = named;
    return encode(QList{test::equipmentWith(item, {record})}).value();
}

QStringList unfinished(const test::TemporaryRegister& files)
{
    QStringList found;
    QDirIterator all(files.directories.root(), {u".abissora-*"_s, u"restoring"_s},
                     QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (all.hasNext())
        found.append(all.next());
    return found;
}

} // namespace

class tst_ArchiveRestoration : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// A copy of a register with item 1, a document of it, a loose file, an archived document and an earlier state.
    void initTestCase()
    {
        const test::TemporaryRegister source;
        source.write(test::registerFile, registerOf(1));
        source.write(test::typesFile, "[]");
        source.write(folderOfDocuments + named, "%PDF of the copy");
        source.write(folderOfDocuments + u"leggimi.txt"_s, "loose");
        source.write(u"backups/documents/20260301T000000.000Z-"_s + other, "%PDF archived");
        source.write(u"backups/%1/savedEquipment.json"_s.arg(stateOfCopy), registerOf(7));
        source.write(u"backups/savedEquipment-20250102T030405Z.json"_s, "[");
        QVERIFY(RegisterArchive(source.directories).write(copy(), test::at("2026-11-22T06:42:11Z"), always));
    }

    void intoAnEmptyFolder()
    {
        test::TemporaryRegister files;
        VERIFY_OK(restore(files));
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        QCOMPARE(files.content(test::typesFile), QByteArray("[]"));
        QCOMPARE(files.names(u"MaintenanceDocuments"_s), (QStringList{named, u"leggimi.txt"_s}));
        QCOMPARE(files.content(folderOfDocuments + named), QByteArray("%PDF of the copy"));
        QCOMPARE(files.content(u"backups/documents/20260301T000000.000Z-"_s + other), QByteArray("%PDF archived"));
        QCOMPARE(files.names(u"backups"_s),
                 (QStringList{stateOfCopy, u"documents"_s, u"savedEquipment-20250102T030405Z.json"_s}));
        QCOMPARE(readContent(*files.generations.find(stateOfCopy)).equipment.records.first().id,
                 test::SequentialIds::at(7));
    }

    void thePresentIsKeptAndComesBack()
    {
        test::TemporaryRegister files;
        fill(files);
        VERIFY_OK(restore(files));
        QCOMPARE(files.content(test::registerFile), registerOf(1));
        QVERIFY(!QFileInfo::exists(files.path(u"preferences/darkMode.json"_s)));
        const EarlierState kept = files.generations.list().constFirst();
        QCOMPARE(kept.occasion, Occasion::restoration);
        VERIFY_OK(Restoration(files.directories, files.generations).restore(kept));
        QCOMPARE(files.content(test::registerFile), registerOf(5));
        QCOMPARE(files.content(u"preferences/darkMode.json"_s), QByteArray("true"));
        QCOMPARE(unfinished(files), QStringList());
    }

    void documentsThatAreThereStayAndOthersAreNotLost()
    {
        test::TemporaryRegister files;
        fill(files);
        files.write(folderOfDocuments + named, "%PDF of the copy");
        const auto before = FileIdentity::of(files.path(folderOfDocuments + named));
        VERIFY_OK(restore(files));
        QCOMPARE(FileIdentity::of(files.path(folderOfDocuments + named)), before);

        test::TemporaryRegister damaged;
        fill(damaged);
        damaged.write(folderOfDocuments + named, "%PDF damaged");
        VERIFY_OK(restore(damaged));
        QCOMPARE(damaged.content(folderOfDocuments + named), QByteArray("%PDF of the copy"));
        bool isKept = false;
        for (const QString& name : damaged.names(u"backups/documents"_s))
            isKept = isKept || damaged.content(u"backups/documents/"_s + name) == "%PDF damaged";
        QVERIFY(isKept);
    }

    void statesThatAreThereStay()
    {
        test::TemporaryRegister files;
        fill(files);
        files.write(u"backups/%1/savedEquipment.json"_s.arg(stateOfCopy), "[]");
        VERIFY_OK(restore(files));
        QCOMPARE(files.content(u"backups/%1/savedEquipment.json"_s.arg(stateOfCopy)), QByteArray("[]"));
    }

    void aDamagedCopyChangesNothing()
    {
        test::TemporaryRegister files;
        fill(files);
        const QStringList before = everything(files);
        QFile file(copy());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        bytes.replace(bytes.indexOf("of the copy"), 1, "O");
        const QString path = m_place.filePath(u"changed.zip"_s);
        QFile changed(path);
        QVERIFY(changed.open(QIODevice::WriteOnly) && changed.write(bytes) == bytes.size());
        changed.close();
        const auto refused = UnpackedArchive::unpack(path, files.directories, always);
        QVERIFY(!refused && refused.error().reason.contains(u"danneggiat"_s));
        QCOMPARE(everything(files), before);
    }

    void withoutPermissionNothingChanges()
    {
        test::TemporaryRegister files;
        fill(files);
        struct Refusing final : WritePermission
        {
            IoResult<void> mayWrite() override { return tl::unexpected(IoError{u"locked"_s}); }
        } refusing;
        const auto unpacked = UnpackedArchive::unpack(copy(), files.directories, always);
        QVERIFY(unpacked);
        const auto refused =
            ArchiveRestoration(files.directories, files.generations, refusing, files.clock.now()).restore(**unpacked);
        QVERIFY(!refused && refused.error().reason.endsWith(u"locked"_s));
        QCOMPARE(files.content(test::registerFile), registerOf(5));
    }

    /// Every call that changes the disk fails once: then there is the old register, or after the next start the new
    /// one, with the document that it names.
    void everyFailingCallLeavesOneOfBoth()
    {
        unsigned changes = 0;
        {
            test::TemporaryRegister files;
            fill(files);
            const test::FailingCalls none("change@100000=EIO", files.directories.root());
            VERIFY_OK(restore(files));
            changes = test::FailingCalls::changes();
        }
        QVERIFY(changes > 40);
        int completed = 0;
        for (unsigned i = 1; i <= changes; ++i) {
            test::TemporaryRegister files;
            fill(files);
            const QByteArray plan = "change@" + QByteArray::number(i) + "+=ENOSPC";
            {
                const test::FailingCalls failing(plan.constData(), files.directories.root());
                static_cast<void>(restore(files));
            }
            Generations generations(files.directories, files.clock, files.calendar, files.console, files.permission);
            clearUp(files.directories, generations);
            settle(files);
            const QByteArray now = files.content(test::registerFile);
            QVERIFY2(now == registerOf(5) || now == registerOf(1), plan.constData());
            const bool isNew = now == registerOf(1);
            QCOMPARE(QFileInfo::exists(files.path(u"preferences/darkMode.json"_s)), !isNew);
            const QByteArray document = files.content(folderOfDocuments + named);
            QVERIFY2(document == (isNew ? "%PDF of the copy" : "%PDF mine") || document == "%PDF mine",
                     plan.constData());
            QCOMPARE(unfinished(files), QStringList());
            completed += isNew ? 1 : 0;
        }
        QVERIFY(completed > 0 && completed < int(changes));
    }

    void onlyPreferencesForALook()
    {
        const QTemporaryDir folder;
        const auto manifest = UnpackedArchive::unpackPreferences(copy(), folder.path(), always);
        QVERIFY(manifest);
        QCOMPARE(manifest->counts, (ArchiveCounts{1, 1, 0, 2}));
        QCOMPARE(manifest->counts.text(), u"1 articolo, 1 manutenzione, nessuna tipologia, 2 documenti"_s);
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"preferences"_s});
    }

private:
    QString copy() const { return m_place.filePath(u"copia.zip"_s); }

    /// Another register, whose item has a document of the same name.
    static void fill(const test::TemporaryRegister& files)
    {
        files.write(test::registerFile, registerOf(5));
        files.write(u"preferences/darkMode.json"_s, "true");
        files.write(folderOfDocuments + named, "%PDF mine");
    }

    IoResult<void> restore(test::TemporaryRegister& files) const
    {
        const auto unpacked = UnpackedArchive::unpack(copy(), files.directories, always);
        if (!unpacked)
            return tl::unexpected(unpacked.error());
        return ArchiveRestoration(files.directories, files.generations, files.permission, files.clock.now())
            .restore(**unpacked)
            .map([&files] { settle(files); });
    }

    static void settle(const test::TemporaryRegister& files)
    {
        files.archive.settle(documentNames(readPresentContent(files.directories).equipment.records));
    }

    static QStringList everything(const test::TemporaryRegister& files)
    {
        QStringList all;
        QDirIterator entries(files.directories.root(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            QFile file(path);
            all.append(path + u'=' +
                       (file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString()));
        }
        all.sort();
        return all;
    }

    QTemporaryDir m_place;
};

ABISSORA_TEST(tst_ArchiveRestoration);
#include "tst_ArchiveRestoration.moc"
