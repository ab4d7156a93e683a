// SPDX-License-Identifier: MIT
#include "Clock.h"
#include "TestRunner.h"

#include <QDateTime>
#include <QTest>

using namespace abissora;

class tst_Clock : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheSystemsTime()
    {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const Instant now = SystemClock().now();
        const qint64 after = QDateTime::currentMSecsSinceEpoch();
        QVERIFY(before <= now.time_since_epoch().count());
        QVERIFY(now.time_since_epoch().count() <= after);
    }
};

ABISSORA_TEST(tst_Clock);
#include "tst_Clock.moc"
