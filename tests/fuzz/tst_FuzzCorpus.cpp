// SPDX-License-Identifier: MIT
#include "ArchiveProperties.h"
#include "GuideProperties.h"
#include "ManifestProperties.h"
#include "RecordProperties.h"
#include "TableProperties.h"
#include "TestRunner.h"

#include <QDirIterator>
#include <QFile>
#include <QTest>

using namespace abissora;

/// Every file is read as each kind of record, as a register, a table, a manifest, a guide and a copy of a register,
/// whichever it was kept for.
class tst_FuzzCorpus : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void replay_data()
    {
        QTest::addColumn<QString>("path");
        const QString corpus = QStringLiteral(CORPUS);
        QDirIterator files(corpus, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            QTest::newRow(qPrintable(path.mid(corpus.size() + 1))) << path;
        }
    }

    void replay()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QCOMPARE(test::faultWithEquipment(text), QString());
        QCOMPARE(test::faultWithTypes(text), QString());
        QCOMPARE(test::faultWithRegister(text), QString());
        QCOMPARE(test::faultWithImport(text), QString());
        QCOMPARE(test::faultWithManifest(text), QString());
        QCOMPARE(test::faultWithGuide(text), QString());
        QCOMPARE(test::faultWithArchive(text), QString());
    }
};

ABISSORA_TEST(tst_FuzzCorpus);
#include "tst_FuzzCorpus.moc"
