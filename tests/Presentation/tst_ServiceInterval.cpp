// SPDX-License-Identifier: MIT
#include "ServiceInterval.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_ServiceInterval : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersThree()
    {
        QStringList texts;
        for (const ServiceInterval& interval : offeredIntervals)
            texts.append(u"%1=%2"_s.arg(interval.text).arg(interval.days));
        QCOMPARE(texts, QStringList({u"6 Mesi=180"_s, u"1 Anno=365"_s, u"2 Anni=730"_s}));
    }

    void anotherLengthHasNoPlace()
    {
        QCOMPARE(placeOfInterval(180), 0);
        QCOMPARE(placeOfInterval(730), 2);
        for (const std::int64_t days : {-1, 0, 179, 200, 366})
            QCOMPARE(placeOfInterval(days), -1);
    }
};

ABISSORA_TEST(tst_ServiceInterval);
#include "tst_ServiceInterval.moc"
