// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "RecordJson.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"
#include "UnreadableCopy.h"

#include <QTest>

using namespace abissora;
using test::backups;
using test::copy;

namespace {

QStringList namesOf(const QList<Equipment>& equipment)
{
    QStringList names;
    for (const Equipment& item : equipment)
        names.append(item.name);
    return names;
}

const QStringList sampleNames{u"Erogatore Apeks XTX50"_s, u"GAV Scubapro Hydros"_s, u"Computer Suunto EON Core"_s};

} // namespace

/// Stored bytes that are no register: the samples stand in, and the bytes are kept before anything overwrites them.
class tst_UnreadableRegister : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void samplesAndACopy_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        const QByteArray valid = encode(QList{test::equipment(1), test::equipment(2)}).value();
        QTest::newRow("no JSON") << QByteArray("che bello") << u"Error loading equipment: parse error at line 1"_s;
        QTest::newRow("nothing") << QByteArray() << u"Error loading equipment: parse error at line 1"_s;
        QTest::newRow("half a file") << valid.left(valid.size() / 2)
                                     << u"Error loading equipment: parse error at line 1"_s;
        QTest::newRow("one unknown kind")
            << QByteArray(valid).replace(valid.lastIndexOf("GAV"), 3, "Torcia")
            << u"Error loading equipment: [1].type: expected one of the known names, found \"Torcia\""_s;
        QTest::newRow("no list") << QByteArray("{}")
                                 << u"Error loading equipment: expected an array, found an object"_s;
        QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + valid
                                         << u"Error loading equipment: the text begins with a byte order mark"_s;
        QTest::newRow("NUL") << valid + '\0' << u"Error loading equipment: the text holds a NUL byte"_s;
        QTest::newRow("brackets") << QByteArray(100'000, '[') << u"Error loading equipment: parse error at line 1"_s;
    }

    void samplesAndACopy()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        test::TemporaryRegister files;
        files.write(test::registerFile, bytes);
        StorageManager storage = files.storageManager();
        QCOMPARE(namesOf(storage.loadEquipment()), sampleNames);
        QCOMPARE(files.console.calls().size(), 1);
        QVERIFY2(files.console.text().startsWith(error), qPrintable(files.console.text()));
        QCOMPARE(files.content(test::registerFile), bytes);
        QCOMPARE(files.content(copy), bytes);

        storage.saveEquipment({});
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QCOMPARE(files.content(copy), bytes);
        QCOMPARE(files.names(backups).size(), 1);
        QCOMPARE(files.console.calls().size(), 1);
    }

    void theSameBytesAreKeptOnce()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "broken");
        for (int start = 0; start < 3; ++start) {
            QCOMPARE(namesOf(files.storageManager().loadEquipment()), sampleNames);
            files.clock.advance(std::chrono::hours(1));
        }
        QCOMPARE(files.names(backups).size(), 1);
        files.write(test::registerFile, "broken differently");
        QCOMPARE(namesOf(files.storageManager().loadEquipment()), sampleNames);
        QCOMPARE(files.names(backups).size(), 2);
        QCOMPARE(files.content(copy), QByteArray("broken"));
    }

    void withoutACopyNothingIsOverwritten()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, "broken");
        files.write(backups, "in the way");
        StorageManager storage = files.storageManager();
        QCOMPARE(namesOf(storage.loadEquipment()), sampleNames);
        const QString failed = u"Error saving equipment: "_s + IoError::fromErrno(EEXIST).reason;
        QCOMPARE(files.console.calls().size(), 2);
        QVERIFY(files.console.calls().at(0).startsWith(u"Error loading equipment: "_s));
        QCOMPARE(files.console.calls().at(1), failed);

        storage.saveEquipment({});
        QCOMPARE(files.console.calls().size(), 3);
        QCOMPARE(files.console.calls().at(2), failed);
        QCOMPARE(files.content(test::registerFile), QByteArray("broken"));

        QVERIFY(QFile::remove(files.path(backups)));
        storage.saveEquipment({});
        QCOMPARE(files.console.calls().size(), 3);
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QCOMPARE(files.content(copy), QByteArray("broken"));
    }

    void aFolderInPlaceOfTheFile()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile + u"/inside"_s, "kept");
        StorageManager storage = files.storageManager();
        QCOMPARE(namesOf(storage.loadEquipment()), sampleNames);
        storage.saveEquipment({});
        const QString reason = IoError::fromErrno(EISDIR).reason;
        QCOMPARE(files.console.calls(),
                 QStringList({u"Error loading equipment: "_s + reason, u"Error saving equipment: "_s + reason}));
        QCOMPARE(files.content(test::registerFile + u"/inside"_s), QByteArray("kept"));
    }
};

ABISSORA_TEST(tst_UnreadableRegister);
#include "tst_UnreadableRegister.moc"
