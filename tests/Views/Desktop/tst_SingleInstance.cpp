// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "SingleInstance.h"
#include "TestRunner.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;

class tst_SingleInstance : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void secondInstanceAsksTheFirst()
    {
        QTemporaryDir folder;
        SingleInstance first(folder.path());
        QVERIFY(first.acquire());
        QSignalSpy asked(&first, &SingleInstance::activationRequested);
        {
            SingleInstance second(folder.path() + u"/."_s);
            QVERIFY(!second.acquire());
        }
        QTRY_COMPARE(asked.size(), 1);
        QTemporaryDir elsewhere;
        SingleInstance other(elsewhere.path());
        QVERIFY(other.acquire());
    }

    void lockIsGivenBack()
    {
        QTemporaryDir folder;
        {
            SingleInstance first(folder.path());
            QVERIFY(first.acquire());
        }
        SingleInstance next(folder.path());
        QVERIFY(next.acquire());
    }
};

ABISSORA_TEST(tst_SingleInstance);

#include "tst_SingleInstance.moc"
