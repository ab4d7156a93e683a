// SPDX-License-Identifier: MIT
#include "ArchiveProperties.h"
#include "GuideProperties.h"
#include "Literals.h"
#include "ManifestProperties.h"
#include "RecordProperties.h"
#include "TableProperties.h"
#include "TestRunner.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

using namespace abissora;

namespace {

struct Reader
{
    QString subject;
    QString (*faultWith)(const QByteArray&);
};

const QList<Reader>& readers()
{
    static const QList<Reader> all{
        {u"archive"_s, test::faultWithArchive},   {u"equipment"_s, test::faultWithEquipment},
        {u"guide"_s, test::faultWithGuide},       {u"manifest"_s, test::faultWithManifest},
        {u"register"_s, test::faultWithRegister}, {u"table"_s, test::faultWithImport},
        {u"types"_s, test::faultWithTypes},
    };
    return all;
}

} // namespace

/// Every file that somebody thought of is read as each kind of record, as a register, a table, a manifest, a guide and
/// a copy of a register, whichever it was kept for; what a fuzzer found, as what it was found for.
class tst_FuzzCorpus : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everySubjectHasFiles()
    {
        const QDir corpus(QStringLiteral(CORPUS));
        QStringList subjects;
        for (const Reader& reader : readers())
            subjects.append(reader.subject);
        QCOMPARE(corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name), subjects);
        for (const QString& subject : std::as_const(subjects))
            QVERIFY(!QDir(corpus.filePath(subject)).entryList(QDir::Files).isEmpty());
    }

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
        for (const auto& [subject, faultWith] : readers()) {
            if (!path.contains("/found/"_L1) || path.contains(u'/' + subject + "/found/"_L1))
                QCOMPARE(faultWith(text), QString());
        }
    }
};

ABISSORA_TEST(tst_FuzzCorpus);
#include "tst_FuzzCorpus.moc"
