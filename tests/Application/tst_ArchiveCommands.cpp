// SPDX-License-Identifier: MIT
#include "CommandRun.h"
#include "ExitStatus.h"
#include "FolderLock.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using test::Outcome;
using test::run;

class tst_ArchiveCommands : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_place = std::make_unique<QTemporaryDir>();
        m_files = std::make_unique<test::TemporaryRegister>();
        Maintenance record = test::maintenance(11);
        record.receiptFileName = document;
        m_files->write(u"MaintenanceDocuments/"_s + document, "%PDF-");
        m_files->write(test::registerFile, encode(QList{test::equipmentWith(1, {record})}).value());
    }

    void whatWasCopiedComesBackElsewhere()
    {
        const Outcome copied = run(*m_files, {u"--backup"_s, copy()});
        QCOMPARE(copied.error, QString());
        QCOMPARE(copied.status, exitStatus::done);
        QCOMPARE(copied.out,
                 u"Copiati in «%1»: 1 articolo, 1 manutenzione, nessuna tipologia, 1 documento.\n"_s.arg(copy()));
        const test::TemporaryRegister elsewhere;
        const Outcome restored = run(elsewhere, {u"--restore"_s, copy()});
        QCOMPARE(restored.error, QString());
        QCOMPARE(restored.status, exitStatus::done);
        QVERIFY(restored.out.startsWith(u"Ripristinati da «%1»: 1 articolo, "_s.arg(copy())));
        QCOMPARE(elsewhere.content(test::registerFile), m_files->content(test::registerFile));
        QCOMPARE(elsewhere.names(u"MaintenanceDocuments"_s), QStringList{document});
    }

    void aCopyIsMadeWhileTheProgramIsOpen()
    {
        FolderLock lock(m_files->directories.root());
        QCOMPARE(lock.acquire(), FolderLock::Outcome::Held);
        QCOMPARE(run(*m_files, {u"--backup"_s, copy()}).status, exitStatus::done);
        const Outcome refused = run(*m_files, {u"--restore"_s, copy()});
        QCOMPARE(refused.status, exitStatus::tryAgain);
        QVERIFY(refused.error.contains(u"è aperta su questo registro"_s));
    }

    void statusesTellWhoseFaultItIs()
    {
        const test::TemporaryRegister empty;
        QCOMPARE(run(empty, {u"--backup"_s, copy()}).status, exitStatus::noInput);
        QCOMPARE(run(*m_files, {u"--backup"_s, u"/dev/full"_s}).status, exitStatus::cannotCreate);
        QCOMPARE(run(*m_files, {u"--backup"_s, m_files->path(u"a.zip"_s)}).status, exitStatus::cannotCreate);
        QCOMPARE(run(*m_files, {u"--restore"_s, copy()}).status, exitStatus::noInput);
        QFile rubbish(copy());
        QVERIFY(rubbish.open(QIODevice::WriteOnly) && rubbish.write("rubbish") > 0);
        rubbish.close();
        const QByteArray before = m_files->content(test::registerFile);
        const Outcome refused = run(*m_files, {u"--restore"_s, copy()});
        QCOMPARE(refused.status, exitStatus::badData);
        QCOMPARE(refused.error, u"Questo file non è una copia di un registro.\n"_s);
        QCOMPARE(refused.out, QString());
        QCOMPARE(m_files->content(test::registerFile), before);
        QVERIFY(CommandLine::helpText().contains(u"--backup"_s));
    }

private:
    static inline const QString document = u"00000000-0000-4000-8000-000000000001.pdf"_s;

    QString copy() const { return m_place->filePath(u"copia.zip"_s); }

    std::unique_ptr<QTemporaryDir> m_place;
    std::unique_ptr<test::TemporaryRegister> m_files;
};

ABISSORA_TEST(tst_ArchiveCommands);
#include "tst_ArchiveCommands.moc"
