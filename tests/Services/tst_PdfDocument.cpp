// SPDX-License-Identifier: MIT
#include "PdfDocument.h"

#include "IoChecks.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>
#include <sys/stat.h>

using namespace abissora;

namespace {

const QString notAPdf = u"Not a PDF document"_s;

} // namespace

class tst_PdfDocument : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contents_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isPdf");
        const auto row = [](const char* name, const QByteArray& content, bool is) {
            QTest::newRow(name) << content << is;
        };
        const auto after = [](qsizetype junk) -> QByteArray { return QByteArray(junk, 'x') + "%PDF-1.7\n"; };
        row("a document", "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n1 0 obj\n", true);
        row("nothing but the header", "%PDF-", true);
        row("empty", "", false);
        row("too short", "%PDF", false);
        row("one byte", "%", false);
        row("text", "Scontrino del 3 marzo: non è un PDF.\n", false);
        row("a picture", "\x89PNG\r\n\x1A\n", false);
        row("another case", "%pdf-1.7\n", false);
        row("after a mark of the byte order", "\xEF\xBB\xBF%PDF-1.4\n", true);
        row("after NULs", QByteArray(10, '\0') + "%PDF-1.4\n", true);
        row("after lines of a mail", "Content-Type: application/pdf\r\n\r\n%PDF-1.4\n", true);
        row("ending with the last byte looked at", after(1024 - 5), true);
        row("a byte beyond", after(1024 - 4), false);
        row("wholly beyond", after(1024), false);
        row("far beyond", after(1'000'000), false);
    }

    void contents()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isPdf);
        const test::TemporaryRegister files;
        for (const QString& name : {u"scontrino.pdf"_s, u"scontrino"_s, u"scontrino.txt"_s}) {
            const QString path = files.write(name, content);
            QCOMPARE(abissora::isPdf(path), isPdf);
            QCOMPARE(test::reason(checkPdf(path)), isPdf ? QString() : notAPdf);
        }
    }

    void whatCannotBeRead()
    {
        const test::TemporaryRegister files;
        const QString pipe = files.path(u"pipe.pdf"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        VERIFY_FAILED(checkPdf(pipe), EINVAL);
        VERIFY_FAILED(checkPdf(files.path(u"vanished.pdf"_s)), ENOENT);
        VERIFY_FAILED(checkPdf(files.folder.path()), EISDIR);
        VERIFY_FAILED(checkPdf(u"/proc/self/mem"_s), EIO);
        QVERIFY(!isPdf(pipe) && !isPdf(files.folder.path()) && !isPdf(QString()));
    }
};

ABISSORA_TEST(tst_PdfDocument);
#include "tst_PdfDocument.moc"
