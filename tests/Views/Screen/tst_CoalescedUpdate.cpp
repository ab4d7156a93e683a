// SPDX-License-Identifier: MIT
#include "TestRunner.h"
#include "VisibleUpdate.h"

#include <QTest>

using namespace abissora;

class tst_CoalescedUpdate : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void manyRequestsOneUpdate()
    {
        int updates = 0;
        CoalescedUpdate update([&updates] { ++updates; });
        update.schedule();
        update.schedule();
        QCOMPARE(updates, 0);
        QCoreApplication::processEvents();
        QCOMPARE(updates, 1);
        update.schedule();
        QCoreApplication::processEvents();
        QCOMPARE(updates, 2);
    }

    void updateMayAskForAnother()
    {
        int updates = 0;
        CoalescedUpdate* self = nullptr;
        CoalescedUpdate update([&] {
            if (++updates < 3)
                self->schedule();
        });
        self = &update;
        update.schedule();
        QTRY_COMPARE(updates, 3);
    }
};

ABISSORA_TEST(tst_CoalescedUpdate);

#include "tst_CoalescedUpdate.moc"
