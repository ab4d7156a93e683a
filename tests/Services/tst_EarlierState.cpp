// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "EarlierState.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_EarlierState : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namesSayWhenAndWhy()
    {
        const Instant kept = test::at("2026-11-21T18:42:05.123Z");
        QCOMPARE(stateName(kept, Occasion::deletedItem), u"20261121T184205.123Z-deleted-item"_s);
        QCOMPARE(stateName(kept, Occasion::foreignBytes), u"20261121T184205.123Z-foreign"_s);
    }

    void namesAreReadBack()
    {
        const Instant kept = test::at("2026-11-21T18:42:05.123Z");
        for (int i = 0; i <= int(Occasion::emergency); ++i) {
            const auto read = parseStateName(stateName(kept, Occasion(i)));
            QVERIFY(read);
            QCOMPARE(read->kept, kept);
            QCOMPARE(read->occasion, Occasion(i));
        }
    }

    void laterVersionsMayHaveOtherOccasions()
    {
        const auto read = parseStateName(u"20261121T184205.123Z-moon-phase"_s);
        QVERIFY(read);
        QCOMPARE(read->occasion, Occasion::change);
    }

    void otherNamesAreNone()
    {
        for (const char* name :
             {"", "documents", "20261121T184205Z-deleted-item", "20261121T184205.123Z", "20261341T184205.123Z-change",
              "20261121T184205.123Z-change.tmp", "x20261121T184205.123Z-change", "20261121T184205.123Z-../x"})
            QVERIFY2(!parseStateName(QLatin1String(name)), name);
    }
};

ABISSORA_TEST(tst_EarlierState);
#include "tst_EarlierState.moc"
