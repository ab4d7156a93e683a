// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "MaintenanceRecords.h"

#include "Fakes.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

namespace {

Maintenance record(int id, int day)
{
    Maintenance record;
    record.id = SequentialIds::at(id);
    record.date = Instant(std::chrono::days(day));
    return record;
}

QList<QUuid> idsOf(const QList<Maintenance>& records)
{
    QList<QUuid> ids;
    for (const Maintenance& record : records)
        ids.append(record.id);
    return ids;
}

} // namespace

class tst_MaintenanceRecords : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newestComesFirstAndEqualDatesKeepTheirOrder()
    {
        const QList<Maintenance> history{record(1, 10), record(2, 30), record(3, 10), record(4, 20), record(5, 30)};
        QCOMPARE(idsOf(newestFirst(history)), QList({SequentialIds::at(2), SequentialIds::at(5), SequentialIds::at(4),
                                                     SequentialIds::at(1), SequentialIds::at(3)}));
    }

    void forgettingADocumentEmptiesEverySlotThatNamesIt()
    {
        Maintenance both = record(1, 1);
        both.receiptFileName = u"A.pdf"_s;
        both.certificateFileName = u"A.pdf"_s;
        Maintenance one = both;
        one.certificateFileName = u"B.pdf"_s;
        forgetDocument(both, u"A.pdf"_s);
        QVERIFY(!both.receiptFileName && !both.certificateFileName);
        forgetDocument(one, u"A.pdf"_s);
        QVERIFY(!one.receiptFileName);
        QCOMPARE(one.certificateFileName, std::optional(u"B.pdf"_s));
    }

    void records()
    {
        QList<Maintenance> history{record(1, 1), record(2, 2)};
        QCOMPARE(recordOf(history, SequentialIds::at(2)), std::optional(record(2, 2)));
        QCOMPARE(recordOf(history, SequentialIds::at(3)), std::nullopt);
        replaceRecord(history, record(2, 9));
        QCOMPARE(history, QList({record(1, 1), record(2, 9)}));
        replaceRecord(history, record(3, 9));
        QCOMPARE(history, QList({record(1, 1), record(2, 9)}));
    }

    void appearances_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<int>("color");
        const auto row = [](MaintenanceType type, const char* icon, NamedColor color) {
            QTest::newRow(icon) << static_cast<int>(type) << QString::fromLatin1(icon) << static_cast<int>(color);
        };
        row(MaintenanceType::annual, "calendar.circle.fill", NamedColor::blue);
        row(MaintenanceType::repair, "wrench.fill", NamedColor::red);
        row(MaintenanceType::test, "checkmark.circle.fill", NamedColor::green);
        row(MaintenanceType::cleaning, "drop.circle.fill", NamedColor::cyan);
        row(MaintenanceType::other, "ellipsis.circle.fill", NamedColor::gray);
    }

    void appearances()
    {
        QFETCH(int, type);
        QFETCH(QString, icon);
        QFETCH(int, color);
        QCOMPARE(appearanceOf(static_cast<MaintenanceType>(type)),
                 (TypeAppearance{icon, static_cast<NamedColor>(color)}));
    }
};

ABISSORA_TEST(tst_MaintenanceRecords);

#include "tst_MaintenanceRecords.moc"
