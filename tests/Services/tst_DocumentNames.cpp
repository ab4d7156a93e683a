// SPDX-License-Identifier: MIT
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QString inFolder(const QString& name)
{
    return QStringLiteral("MaintenanceDocuments/") + name;
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
        const auto name = files.documents.store(files.write(source, "%PDF"));
        QCOMPARE(name, std::optional<QString>(QStringLiteral("00000000-0000-4000-8000-000000000001.") + extension));
        QCOMPARE(files.documents.url(*name), std::optional(files.path(inFolder(*name))));
        files.documents.deleteDocument(*name);
        QVERIFY(files.names(QStringLiteral("MaintenanceDocuments")).isEmpty());
    }

    void identifiersAreUpperCase()
    {
        class OneId final : public IdGenerator
        {
            QUuid next() override { return QUuid::fromString(QStringLiteral("e621e1f8-c36c-495a-93fc-0c247a3e6e5f")); }
        };
        test::TemporaryRegister files;
        OneId ids;
        MaintenanceDocumentStore store(files.path(QStringLiteral("documents")), files.panel, ids, files.console);
        QCOMPARE(store.store(files.write(QStringLiteral("a.pdf"), "")),
                 std::optional(QStringLiteral("E621E1F8-C36C-495A-93FC-0C247A3E6E5F.pdf")));
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
        QTest::newRow("NUL") << QString(QStringLiteral("a.pdf") + QChar(0));
        QTest::newRow("NUL before") << QString(QStringLiteral("a.pdf") + QChar(0) + QStringLiteral(".pdf"));
        QTest::newRow("very long") << QString(10'000, QLatin1Char('a'));
        QTest::newRow("absolute") << QStringLiteral("/etc/hostname");
    }

    void namesThatReferToNothing()
    {
        QFETCH(QString, name);
        test::TemporaryRegister files;
        files.write(inFolder(QStringLiteral("a.pdf")), "a");
        files.write(inFolder(QStringLiteral("inner/a.pdf")), "inner");
        const QString outside = files.write(QStringLiteral("outside.pdf"), "outside");
        files.write(test::registerFile, "[]");
        const auto link = [&](const QString& target, const char* linkName) {
            return QFile::link(target, files.path(inFolder(QLatin1String(linkName))));
        };
        QVERIFY(link(outside, "link-out.pdf"));
        QVERIFY(link(files.path(QStringLiteral(".")), "link-to-folder"));
        QVERIFY(link(files.path(inFolder(QStringLiteral("inner/a.pdf"))), "link-inside.pdf"));
        QVERIFY(link(files.path(QStringLiteral("nowhere")), "link-nowhere.pdf"));
        const QStringList before = files.names(QStringLiteral("MaintenanceDocuments"));

        QCOMPARE(files.documents.url(name), std::optional<QString>());
        files.documents.deleteDocument(name);
        files.panel.answer(files.write(QStringLiteral("new.pdf"), "new"));
        const auto stored = files.documents.pickPDFAndStore(name); // would delete the one it replaces
        QVERIFY(stored);
        files.documents.deleteDocument(*stored);

        QCOMPARE(files.names(QStringLiteral("MaintenanceDocuments")), before);
        QCOMPARE(files.content(inFolder(QStringLiteral("a.pdf"))), QByteArray("a"));
        QCOMPARE(files.content(inFolder(QStringLiteral("inner/a.pdf"))), QByteArray("inner"));
        QCOMPARE(files.content(QStringLiteral("outside.pdf")), QByteArray("outside"));
        QCOMPARE(files.content(test::registerFile), QByteArray("[]"));
        QCOMPARE(files.console.calls(), QStringList());
    }

    void theFolderItselfMayBeALink()
    {
        test::TemporaryRegister files;
        files.write(QStringLiteral("elsewhere/a.pdf"), "a");
        QVERIFY(
            QFile::link(files.path(QStringLiteral("elsewhere")), files.path(QStringLiteral("MaintenanceDocuments"))));
        QCOMPARE(files.documents.url(QStringLiteral("a.pdf")),
                 std::optional(files.path(inFolder(QStringLiteral("a.pdf")))));
        files.documents.deleteDocument(QStringLiteral("a.pdf"));
        QCOMPARE(files.names(QStringLiteral("elsewhere")), QStringList());
    }
};

ABISSORA_TEST(tst_DocumentNames);
#include "tst_DocumentNames.moc"
