// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const QString folder = QStringLiteral("MaintenanceDocuments");
const QString first = QStringLiteral("00000000-0000-4000-8000-000000000001.pdf");
const QString second = QStringLiteral("00000000-0000-4000-8000-000000000002.pdf");
const QByteArray pdf = QByteArray("%PDF-1.7\n\0\xFF", 11).repeated(20'000);

QString inFolder(const QString& name)
{
    return folder + QLatin1Char('/') + name;
}

QString failure(int error)
{
    return QStringLiteral("Errore salvataggio documento: ") + IoError::fromErrno(error).reason;
}

} // namespace

class tst_MaintenanceDocumentStore : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFolderIsMadeWhenAskedFor()
    {
        test::TemporaryRegister files;
        const MaintenanceDocumentStore store(files.path(QStringLiteral("a/b/c")), files.panel, files.ids,
                                             files.console);
        QVERIFY(!QFileInfo::exists(files.path(QStringLiteral("a"))));
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(store.documentsDirectory().value(), files.path(QStringLiteral("a/b/c")));
            QVERIFY(QFileInfo(files.path(QStringLiteral("a/b/c"))).isDir());
        }
    }

    void aFileInPlaceOfTheFolder()
    {
        test::TemporaryRegister files;
        files.panel.grantAccess(true);
        files.write(folder, "in the way");
        const QString source = files.write(QStringLiteral("scontrino.pdf"), pdf);
        QVERIFY(!files.documents.documentsDirectory());
        QVERIFY(!files.documents.store(source));
        QVERIFY(!files.documents.url(first));
        files.documents.deleteDocument(first);
        QCOMPARE(files.console.calls(), QStringList{failure(EEXIST)});
        QCOMPARE(files.panel.ended(), QStringList{source});
        QCOMPARE(files.content(folder), QByteArray("in the way"));
    }

    void thePanelAsksForOnePdf()
    {
        test::TemporaryRegister files;
        QVERIFY(!files.documents.pickPDFAndStore({}));
        const FilePanelRequest expected{QStringLiteral("Seleziona il documento PDF"),
                                        QStringLiteral("Scegli il PDF (scontrino o certificato) da allegare"),
                                        QStringLiteral("Allega"),
                                        {QStringLiteral("application/pdf")}};
        QCOMPARE(files.panel.requests(), QList{expected});
    }

    void aPickedFileIsCopied()
    {
        test::TemporaryRegister files;
        const QString source = files.write(QStringLiteral("scontrino è.pdf"), pdf);
        files.panel.answer(source);
        QCOMPARE(files.documents.pickPDFAndStore({}), std::optional(first));
        QCOMPARE(files.content(inFolder(first)), pdf);
        QCOMPARE(files.content(QStringLiteral("scontrino è.pdf")), pdf);
        QCOMPARE(files.documents.url(first), std::optional(files.path(inFolder(first))));
        QCOMPARE(files.names(folder), QStringList{first});
        QCOMPARE(files.console.calls(), QStringList());
    }

    void theSameFileTwiceIsTwoFiles()
    {
        test::TemporaryRegister files;
        const QString source = files.write(QStringLiteral("scontrino.pdf"), pdf);
        QCOMPARE(files.documents.store(source), std::optional(first));
        QCOMPARE(files.documents.store(source), std::optional(second));
        QCOMPARE(files.names(folder), QStringList({first, second}));
    }

    void aReplacedDocumentIsDeleted()
    {
        test::TemporaryRegister files;
        files.write(inFolder(QStringLiteral("old.pdf")), "old");
        files.panel.answer(files.write(QStringLiteral("new.pdf"), pdf));
        QCOMPARE(files.documents.pickPDFAndStore(QStringLiteral("old.pdf")), std::optional(first));
        QCOMPARE(files.names(folder), QStringList{first});
    }

    void replacingADocumentThatIsGone()
    {
        test::TemporaryRegister files;
        files.panel.answer(files.write(QStringLiteral("new.pdf"), pdf));
        QCOMPARE(files.documents.pickPDFAndStore(QStringLiteral("gone.pdf")), std::optional(first));
        QCOMPARE(files.console.calls(), QStringList());
    }

    void aDocumentMayReplaceItself()
    {
        test::TemporaryRegister files;
        files.panel.answer(files.write(inFolder(QStringLiteral("old.pdf")), pdf));
        QCOMPARE(files.documents.pickPDFAndStore(QStringLiteral("old.pdf")), std::optional(first));
        QCOMPARE(files.names(folder), QStringList{first});
        QCOMPARE(files.content(inFolder(first)), pdf);
    }

    void aDismissedPanelChangesNothing()
    {
        test::TemporaryRegister files;
        files.panel.grantAccess(true);
        files.write(inFolder(QStringLiteral("old.pdf")), "old");
        QVERIFY(!files.documents.pickPDFAndStore(QStringLiteral("old.pdf")));
        QCOMPARE(files.content(inFolder(QStringLiteral("old.pdf"))), QByteArray("old"));
        QCOMPARE(files.names(folder).size(), 1);
        QCOMPARE(files.console.calls(), QStringList());
        QCOMPARE(files.panel.begun(), QStringList());
        QCOMPARE(files.panel.ended(), QStringList());
    }

    void whatCannotBeCopied_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("error");
        QTest::newRow("vanished") << QStringLiteral("vanished.pdf") << ENOENT;
        QTest::newRow("folder") << QStringLiteral("folder.pdf") << EISDIR;
        QTest::newRow("below a file") << QStringLiteral("file.pdf/inner.pdf") << ENOTDIR;
        QTest::newRow("no file at all") << QStringLiteral("zero.pdf") << EINVAL;
    }

    void whatCannotBeCopied()
    {
        QFETCH(QString, source);
        QFETCH(int, error);
        test::TemporaryRegister files;
        files.panel.grantAccess(true);
        files.write(inFolder(QStringLiteral("old.pdf")), "old");
        files.write(QStringLiteral("folder.pdf/inside"), "");
        files.write(QStringLiteral("file.pdf"), "");
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), files.path(QStringLiteral("zero.pdf"))));
        files.panel.answer(files.path(source));
        QVERIFY(!files.documents.pickPDFAndStore(QStringLiteral("old.pdf")));
        QCOMPARE(files.console.calls(), QStringList{failure(error)});
        QCOMPARE(files.names(folder), QStringList{QStringLiteral("old.pdf")});
        QCOMPARE(files.panel.begun(), QStringList{files.path(source)});
        QCOMPARE(files.panel.ended(), QStringList{files.path(source)});
    }

    void aFullDiskLeavesNothingBehind()
    {
        test::TemporaryRegister files;
        const QString source = files.write(QStringLiteral("scontrino.pdf"), pdf);
        std::optional<QString> stored;
        {
            const test::FileSizeLimit limit(100'000);
            stored = files.documents.store(source);
        }
        QVERIFY(!stored);
        QCOMPARE(files.console.calls(), QStringList{failure(EFBIG)});
        QCOMPARE(files.names(folder), QStringList());
    }

    void anExistingFileIsNeverOverwritten()
    {
        test::TemporaryRegister files;
        files.write(inFolder(first), "there before");
        QVERIFY(!files.documents.store(files.write(QStringLiteral("scontrino.pdf"), pdf)));
        QCOMPARE(files.console.calls(), QStringList{failure(EEXIST)});
        QCOMPARE(files.content(inFolder(first)), QByteArray("there before"));
        QCOMPARE(files.names(folder), QStringList{first});
    }

    void accessThatWasGrantedIsGivenBack()
    {
        test::TemporaryRegister files;
        const QString source = files.write(QStringLiteral("scontrino.pdf"), pdf);
        QVERIFY(files.documents.store(source));
        QCOMPARE(files.panel.begun(), QStringList{source});
        QCOMPARE(files.panel.ended(), QStringList());
        files.panel.grantAccess(true);
        QVERIFY(files.documents.store(source));
        QCOMPARE(files.panel.begun(), QStringList({source, source}));
        QCOMPARE(files.panel.ended(), QStringList{source});
    }

    void deletion()
    {
        test::TemporaryRegister files;
        files.write(inFolder(first), pdf);
        files.write(inFolder(second), pdf);
        files.documents.deleteDocument(first);
        QCOMPARE(files.names(folder), QStringList{second});
        files.documents.deleteDocument(first);
        QCOMPARE(files.names(folder), QStringList{second});
        QVERIFY(!files.documents.url(first));
        QCOMPARE(files.console.calls(), QStringList());
    }
};

ABISSORA_TEST(tst_MaintenanceDocumentStore);
#include "tst_MaintenanceDocumentStore.moc"
