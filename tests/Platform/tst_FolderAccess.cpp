// SPDX-License-Identifier: MIT
#include "FolderAccess.h"

#include "FailingCalls.h"
#include "IoChecks.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using namespace abissora;

class tst_FolderAccess : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatCanBeLookedIntoIsFine()
    {
        VERIFY_OK(checkFolder(m_folder.path()));
        VERIFY_OK(checkFolder(at(u"nowhere"_s)));
        VERIFY_OK(checkFolder(at(u"nowhere/at/all"_s)));
        QVERIFY(QFile::link(m_folder.path(), at(u"link"_s)));
        VERIFY_OK(checkFolder(at(u"link"_s)));
    }

    void whatIsNoFolderIsNot()
    {
        QFile file(at(u"file"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        VERIFY_FAILED(checkFolder(file.fileName()), ENOTDIR);
        VERIFY_FAILED(checkFolder(file.fileName() + "/in it"_L1), ENOTDIR);
        QVERIFY(QFile::link(at(u"nowhere"_s), at(u"to nowhere"_s)));
        VERIFY_FAILED(checkFolder(at(u"to nowhere"_s)), ENOENT);
    }

    void oneThatMayNotBeOpenedIsNamedWithTheReason()
    {
        const test::FailingCalls failing("open@1=EACCES", m_folder.path());
        VERIFY_FAILED(checkFolder(m_folder.path()), EACCES);
    }

    void oneThatMayOnlyBeListedTellsNothing()
    {
        const QString closed = at(u"closed"_s);
        QVERIFY(QDir().mkpath(closed));
        QCOMPARE(::chmod(QFile::encodeName(closed).constData(), 0400), 0);
        // Nothing is closed to root.
        QCOMPARE(test::reason(checkFolder(closed)).isEmpty(), ::geteuid() == 0);
    }

private:
    [[nodiscard]] QString at(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

ABISSORA_TEST(tst_FolderAccess);
#include "tst_FolderAccess.moc"
