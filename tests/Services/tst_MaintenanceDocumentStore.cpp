// SPDX-License-Identifier: MIT
#include "FileSizeLimit.h"
#include "Literals.h"
#include "PdfDocument.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const QString folder = u"MaintenanceDocuments"_s;
const QString first = u"00000000-0000-4000-8000-000000000001.pdf"_s;
const QString second = u"00000000-0000-4000-8000-000000000002.pdf"_s;
const QByteArray pdf = QByteArray("%PDF-1.7\n\0\xFF", 11).repeated(20'000);

QString inFolder(const QString& name)
{
    return folder + u'/' + name;
}

QString failure(int error)
{
    return u"Errore salvataggio documento: "_s + IoError::fromErrno(error).reason;
}

std::optional<QString> picked(test::TemporaryRegister& files, const std::optional<QString>& current)
{
    return QCoro::waitFor(files.documents.pickPDFAndStore(current));
}

} // namespace

class tst_MaintenanceDocumentStore : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFolderIsMadeWhenAskedFor()
    {
        test::TemporaryRegister files;
        const MaintenanceDocumentStore store(files.path(u"a/b/c"_s), files.archive, files.panel, files.work, files.ids,
                                             files.console);
        QVERIFY(!QFileInfo::exists(files.path(u"a"_s)));
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(store.documentsDirectory().value(), files.path(u"a/b/c"_s));
            QVERIFY(QFileInfo(files.path(u"a/b/c"_s)).isDir());
        }
    }

    void aFileInPlaceOfTheFolder()
    {
        test::TemporaryRegister files;
        files.panel.grantAccess(true);
        files.write(folder, "in the way");
        const QString source = files.write(u"scontrino.pdf"_s, pdf);
        QVERIFY(!files.documents.documentsDirectory());
        QVERIFY(!files.stored(source));
        QVERIFY(!files.documents.url(first));
        files.documents.deleteDocument(first);
        QCOMPARE(files.console.calls(), QStringList{failure(EEXIST)});
        QCOMPARE(files.panel.ended(), QStringList{source});
        QCOMPARE(files.content(folder), QByteArray("in the way"));
    }

    void thePanelAsksForOnePdf()
    {
        test::TemporaryRegister files;
        QVERIFY(!picked(files, {}));
        const FilePanelRequest expected{u"Seleziona il documento PDF"_s,
                                        u"Scegli il PDF (scontrino o certificato) da allegare"_s,
                                        u"Allega"_s,
                                        {u"application/pdf"_s},
                                        isPdf,
                                        u"Non è un documento PDF."_s};
        QCOMPARE(files.panel.requests(), QList{expected});
    }

    void aPickedFileIsCopied()
    {
        test::TemporaryRegister files;
        const QString source = files.write(u"scontrino è.pdf"_s, pdf);
        files.panel.answer(source);
        QCOMPARE(picked(files, {}), std::optional(first));
        QCOMPARE(files.content(inFolder(first)), pdf);
        QCOMPARE(files.content(u"scontrino è.pdf"_s), pdf);
        QCOMPARE(files.documents.url(first), std::optional(files.path(inFolder(first))));
        QCOMPARE(files.names(folder), QStringList{first});
        QCOMPARE(files.console.calls(), QStringList());
    }

    void theSameFileTwiceIsTwoFiles()
    {
        test::TemporaryRegister files;
        const QString source = files.write(u"scontrino.pdf"_s, pdf);
        QCOMPARE(files.stored(source), std::optional(first));
        QCOMPARE(files.stored(source), std::optional(second));
        QCOMPARE(files.names(folder), QStringList({first, second}));
    }

    void aReplacedDocumentIsDeleted()
    {
        test::TemporaryRegister files;
        files.write(inFolder(u"old.pdf"_s), "old");
        files.panel.answer(files.write(u"new.pdf"_s, pdf));
        QCOMPARE(picked(files, u"old.pdf"_s), std::optional(first));
        QCOMPARE(files.names(folder), QStringList{first});
    }

    void replacingADocumentThatIsGone()
    {
        test::TemporaryRegister files;
        files.panel.answer(files.write(u"new.pdf"_s, pdf));
        QCOMPARE(picked(files, u"gone.pdf"_s), std::optional(first));
        QCOMPARE(files.console.calls(), QStringList());
    }

    void aDocumentMayReplaceItself()
    {
        test::TemporaryRegister files;
        files.panel.answer(files.write(inFolder(u"old.pdf"_s), pdf));
        QCOMPARE(picked(files, u"old.pdf"_s), std::optional(first));
        QCOMPARE(files.names(folder), QStringList{first});
        QCOMPARE(files.content(inFolder(first)), pdf);
    }

    void aDismissedPanelChangesNothing()
    {
        test::TemporaryRegister files;
        files.panel.grantAccess(true);
        files.write(inFolder(u"old.pdf"_s), "old");
        QVERIFY(!picked(files, u"old.pdf"_s));
        QCOMPARE(files.content(inFolder(u"old.pdf"_s)), QByteArray("old"));
        QCOMPARE(files.names(folder).size(), 1);
        QCOMPARE(files.console.calls(), QStringList());
        QCOMPARE(files.panel.begun(), QStringList());
        QCOMPARE(files.panel.ended(), QStringList());
    }

    void whatCannotBeCopied_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("error");
        QTest::newRow("vanished") << u"vanished.pdf"_s << ENOENT;
        QTest::newRow("folder") << u"folder.pdf"_s << EISDIR;
        QTest::newRow("below a file") << u"file.pdf/inner.pdf"_s << ENOTDIR;
        QTest::newRow("no file at all") << u"zero.pdf"_s << EINVAL;
        QTest::newRow("unreadable") << u"memory.pdf"_s << EIO;
    }

    void whatCannotBeCopied()
    {
        QFETCH(QString, source);
        QFETCH(int, error);
        test::TemporaryRegister files;
        files.panel.grantAccess(true);
        files.write(inFolder(u"old.pdf"_s), "old");
        files.write(u"folder.pdf/inside"_s, "");
        files.write(u"file.pdf"_s, "");
        QVERIFY(QFile::link(u"/dev/zero"_s, files.path(u"zero.pdf"_s)));
        QVERIFY(QFile::link(u"/proc/self/mem"_s, files.path(u"memory.pdf"_s)));
        files.panel.answer(files.path(source));
        QVERIFY(!picked(files, u"old.pdf"_s));
        QCOMPARE(files.console.calls(), QStringList{failure(error)});
        QCOMPARE(files.names(folder), QStringList{u"old.pdf"_s});
        QCOMPARE(files.panel.begun(), QStringList{files.path(source)});
        QCOMPARE(files.panel.ended(), QStringList{files.path(source)});
    }

    void whatIsNoPdfIsRefused()
    {
        test::TemporaryRegister files;
        files.write(inFolder(u"old.pdf"_s), "old");
        files.panel.answer(files.write(u"appunti.pdf"_s, "no document at all\n"));
        QVERIFY(!picked(files, u"old.pdf"_s));
        QCOMPARE(files.console.calls(), QStringList{u"Errore salvataggio documento: Not a PDF document"_s});
        QCOMPARE(files.names(folder), QStringList{u"old.pdf"_s});
    }

    void aFullDiskLeavesNothingBehind()
    {
        test::TemporaryRegister files;
        const QString source = files.write(u"scontrino.pdf"_s, pdf);
        std::optional<QString> stored;
        {
            const test::FileSizeLimit limit(100'000);
            stored = files.stored(source);
        }
        QVERIFY(!stored);
        QCOMPARE(files.console.calls(), QStringList{failure(EFBIG)});
        QCOMPARE(files.names(folder), QStringList());
    }

    void anExistingFileIsNeverOverwritten()
    {
        test::TemporaryRegister files;
        files.write(inFolder(first), "there before");
        QVERIFY(!files.stored(files.write(u"scontrino.pdf"_s, pdf)));
        QCOMPARE(files.console.calls(), QStringList{failure(EEXIST)});
        QCOMPARE(files.content(inFolder(first)), QByteArray("there before"));
        QCOMPARE(files.names(folder), QStringList{first});
    }

    void accessThatWasGrantedIsGivenBack()
    {
        test::TemporaryRegister files;
        const QString source = files.write(u"scontrino.pdf"_s, pdf);
        QVERIFY(files.stored(source));
        QCOMPARE(files.panel.begun(), QStringList{source});
        QCOMPARE(files.panel.ended(), QStringList());
        files.panel.grantAccess(true);
        QVERIFY(files.stored(source));
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
