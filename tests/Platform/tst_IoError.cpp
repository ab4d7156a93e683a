// SPDX-License-Identifier: MIT
#include "IoError.h"
#include "TestRunner.h"

#include <QTest>
#include <cerrno>

using namespace abissora;

class tst_IoError : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void speaksTheSystemsWords()
    {
        QCOMPARE(IoError::fromErrno(ENOSPC).reason, QStringLiteral("No space left on device"));
        QCOMPARE(IoError::fromErrno(ENOENT).reason, QStringLiteral("No such file or directory"));
        QCOMPARE(IoError::fromErrno(EISDIR).reason, QStringLiteral("Is a directory"));
    }

    void unknownNumbersHaveAReasonToo() { QVERIFY(!IoError::fromErrno(99999).reason.isEmpty()); }
};

ABISSORA_TEST(tst_IoError);
#include "tst_IoError.moc"
