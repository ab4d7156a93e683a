// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QString inFolder(const QString& fileName)
{
    return u"MaintenanceDocuments/"_s + fileName;
}

} // namespace

/// The names that documents are stored under, and what stored names may refer to.
class tst_DocumentNames : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void extensions_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("extension");
        const auto row = [](const char* source, const char* extension) {
            QTest::newRow(source) << QString::fromUtf8(source) << QString::fromUtf8(extension);
        };
        row("scontrino.pdf", "pdf");
        row("SCONTRINO.PDF", "PDF");
        row("scontrino.Pdf", "Pdf");
        row("scontrino", "pdf");
        row(".pdf", "pdf");
        row(".nascosto", "pdf");
        row(".nascosto.PDF", "PDF");
        row("scontrino.", "pdf");
        row("marzo.2026.pdf", "pdf");
        row("a.tar.gz", "gz");
        row("cartella.d/scontrino", "pdf");
        row("scontrino.più", "più");
        row("scontrino.p\\df", "pdf");
    }

    void extensions()
    {
        QFETCH(QString, source);
        QFETCH(QString, extension);
        test::TemporaryRegister files;
        const auto name = files.stored(files.write(source, "%PDF-1.4"));
        QCOMPARE(name, std::optional<QString>(u"00000000-0000-4000-8000-000000000001."_s + extension));
        QCOMPARE(files.documents.url(*name), std::optional(files.path(inFolder(*name))));
        files.documents.deleteDocument(*name);
        QVERIFY(files.names(u"MaintenanceDocuments"_s).isEmpty());
    }

    void identifiersAreUpperCase()
    {
        class OneId final : public IdGenerator
        {
            QUuid next() override { return QUuid::fromString(u"e621e1f8-c36c-495a-93fc-0c247a3e6e5f"_s); }
        };
        test::TemporaryRegister files;
        OneId ids;
        MaintenanceDocumentStore store(files.path(u"documents"_s), files.archive, files.panel, files.work, ids,
                                       files.console);
        QCOMPARE(QCoro::waitFor(store.store(files.write(u"a.pdf"_s, "%PDF-1.4"))),
                 std::optional(u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F.pdf"_s));
    }

    void namesThatReferToNothing_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"",
                                 ".",
                                 "..",
                                 "unknown.pdf",
                                 "A.PDF",
                                 "/",
                                 "../outside.pdf",
                                 "../preferences/savedEquipment.json",
                                 "./a.pdf",
                                 "inner/a.pdf",
                                 "inner",
                                 "inner/",
                                 "inner/../a.pdf",
                                 "a.pdf/",
                                 "a.pdf/.",
                                 "..\\outside.pdf",
                                 "inner\\a.pdf",
                                 "link-out.pdf",
                                 "link-to-folder",
                                 "link-to-folder/outside.pdf",
                                 "link-inside.pdf",
                                 "link-nowhere.pdf",
                                 " a.pdf",
                                 "a.pdf ",
                                 "file:a.pdf",
                                 "~"})
            QTest::newRow(name) << QString::fromUtf8(name);
        QTest::newRow("NUL") << QString(u"a.pdf"_s + QChar(0));
        QTest::newRow("NUL before") << QString(u"a.pdf"_s + QChar(0) + u".pdf"_s);
        QTest::newRow("very long") << QString(10'000, u'a');
        QTest::newRow("absolute") << u"/etc/hostname"_s;
    }

    void namesThatReferToNothing()
    {
        QFETCH(QString, name);
        test::TemporaryRegister files;
        files.write(inFolder(u"a.pdf"_s), "a");
        files.write(inFolder(u"inner/a.pdf"_s), "inner");
        const QString outside = files.write(u"outside.pdf"_s, "outside");
        files.write(test::registerFile, "[]");
        const auto link = [&](const QString& target, const char* linkName) {
            return QFile::link(target, files.path(inFolder(QLatin1String(linkName))));
        };
        QVERIFY(link(outside, "link-out.pdf"));
        QVERIFY(link(files.path(u"."_s), "link-to-folder"));
        QVERIFY(link(files.path(inFolder(u"inner/a.pdf"_s)), "link-inside.pdf"));
        QVERIFY(link(files.path(u"nowhere"_s), "link-nowhere.pdf"));
        const QStringList before = files.names(u"MaintenanceDocuments"_s);

        QCOMPARE(files.documents.url(name), std::optional<QString>());
        files.documents.deleteDocument(name);
        files.panel.answer(files.write(u"new.pdf"_s, "%PDF-1.4"));
        const auto stored = QCoro::waitFor(files.documents.pickPDFAndStore(name)); // would delete the one it replaces
        QVERIFY(stored);
        files.documents.deleteDocument(*stored);

        QCOMPARE(files.names(u"MaintenanceDocuments"_s), before);
        QCOMPARE(files.content(inFolder(u"a.pdf"_s)), QByteArray("a"));
        QCOMPARE(files.content(inFolder(u"inner/a.pdf"_s)), QByteArray("inner"));
        QCOMPARE(files.content(u"outside.pdf"_s), QByteArray("outside"));
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QCOMPARE(files.console.calls(), QStringList());
    }

    void theFolderItselfMayBeALink()
    {
        test::TemporaryRegister files;
        files.write(u"elsewhere/a.pdf"_s, "a");
        QVERIFY(QFile::link(files.path(u"elsewhere"_s), files.path(u"MaintenanceDocuments"_s)));
        QCOMPARE(files.documents.url(u"a.pdf"_s), std::optional(files.path(inFolder(u"a.pdf"_s))));
        files.documents.deleteDocument(u"a.pdf"_s);
        QCOMPARE(files.names(u"elsewhere"_s), QStringList());
    }
};

ABISSORA_TEST(tst_DocumentNames);
#include "tst_DocumentNames.moc"
