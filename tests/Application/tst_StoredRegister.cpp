// SPDX-License-Identifier: MIT
#include "StoredRegister.h"

#include "Builders.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QDirIterator>
#include <QTest>

using namespace abissora;

namespace {

/// Every file below a folder with its bytes.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        files.insert(file.fileName(), file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return files;
}

} // namespace

class tst_StoredRegister : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsAndLeavesEverythingAlone()
    {
        test::TemporaryRegister files;
        static_cast<void>(files.storageManager(QList{test::equipmentWith(1, {})}));
        const auto before = filesBelow(files.directories.root());
        const StoredRegister stored(files.directories);
        QCOMPARE(stored.equipment().value().size(), 1);
        QVERIFY(!stored.types().types().isEmpty());
        QCOMPARE(stored.settings().currencySymbol(), u"€"_s);
        QCOMPARE(filesBelow(files.directories.root()), before);
    }

    void whereThereIsNoneItSaysSo()
    {
        const test::TemporaryRegister files;
        const StoredRegister stored(files.directories);
        QCOMPARE(stored.equipment().error(), u"In «%1» non c'è un registro."_s.arg(files.directories.root()));
        QVERIFY(filesBelow(files.directories.root()).isEmpty());
    }

    void whatCannotBeLookedIntoIsNotTakenForNone()
    {
        const test::TemporaryRegister files;
        files.write(u"preferences"_s, "a file");
        const StoredRegister stored(files.directories);
        QVERIFY(stored.equipment().error().startsWith(u"Il registro non si può leggere: Not a directory."_s));
    }

    void whatCannotBeReadIsNotTakenForEmpty()
    {
        const test::TemporaryRegister files;
        files.write(test::registerFile, "[{}");
        const StoredRegister stored(files.directories);
        QVERIFY(stored.equipment().error().startsWith(u"Il registro non si può leggere: "_s));
        QCOMPARE(filesBelow(files.directories.backups()), (QMap<QString, QByteArray>()));
    }
};

ABISSORA_TEST(tst_StoredRegister);
#include "tst_StoredRegister.moc"
