// SPDX-License-Identifier: MIT
#include "IoError.h"
#include "Literals.h"
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
        QCOMPARE(IoError::fromErrno(ENOSPC).reason, u"No space left on device"_s);
        QCOMPARE(IoError::fromErrno(ENOENT).reason, u"No such file or directory"_s);
        QCOMPARE(IoError::fromErrno(EISDIR).reason, u"Is a directory"_s);
    }

    void unknownNumbersHaveAReasonToo() { QVERIFY(!IoError::fromErrno(99999).reason.isEmpty()); }
};

ABISSORA_TEST(tst_IoError);
#include "tst_IoError.moc"
