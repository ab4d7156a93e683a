// SPDX-License-Identifier: MIT
#include "RandomOperations.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

/// Whatever a person, another program and a full disk do in whatever order: the catalogue, the files, the earlier
/// states and the documents are those of a model made of plain lists.
class tst_RandomOperations : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void agreeWithPlainLists_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<int>("count");
        // Where every write waits for a disk, only the beginning.
        const bool isFast = test::RegisterPlace::isFast();
        QTest::addRow("seed 1") << quint32{1} << (isFast ? 10'000 : 300);
        for (quint32 seed : {2U, 3U, 4U})
            QTest::addRow("seed %u", seed) << seed << (isFast ? 1'500 : 300);
    }
    void agreeWithPlainLists()
    {
        QFETCH(quint32, seed);
        QFETCH(int, count);
        test::RandomOperations operations(seed);
        const auto failed = [seed](int i, const QString& problem) {
            return u"seed %1, operation %2: %3"_s.arg(seed).arg(i).arg(problem).toLocal8Bit();
        };
        for (int i = 1; i <= count; ++i) {
            QString problem = operations.operation();
            if (problem.isEmpty() && i % 500 == 0)
                problem = operations.checkWhole();
            QVERIFY2(problem.isEmpty(), failed(i, problem).constData());
        }
        const QString problem = operations.bringBack(10);
        QVERIFY2(problem.isEmpty(), failed(count, problem).constData());
        QCOMPARE(operations.checkWhole(), QString());
        qInfo("%d operations compared, %d states restored, %d deleted things brought back", count, operations.restored,
              operations.broughtBack);
        // None of it was idle.
        QVERIFY(operations.broughtBack > 0);
        QVERIFY(operations.restored > count / 200);
        QVERIFY(operations.deletions() > count / 20);
        QVERIFY(operations.emergencies > 0 || count < 1'500);
    }
};

ABISSORA_TEST(tst_RandomOperations);
#include "tst_RandomOperations.moc"
