// SPDX-License-Identifier: MIT
#include "ImportValues.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using namespace abissora::importValues;

class tst_ImportValues : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void days_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<DayOrder>("order");
        QTest::addColumn<QString>("day"); ///< empty for none
        const auto add = [](const char* cell, const char* day, DayOrder order = DayOrder::DayFirst) {
            const QString name = QString::fromUtf8(cell) + (order == DayOrder::MonthFirst ? u" (mese)"_s : QString());
            QTest::newRow(qPrintable(name)) << QString::fromUtf8(cell) << order << QString::fromUtf8(day);
        };
        add("2026-05-12", "2026-05-12");
        add("2026-05-12", "2026-05-12", DayOrder::MonthFirst);
        add("2026/5/2", "2026-05-02");
        add("2026.05.12", "2026-05-12", DayOrder::MonthFirst);
        add("05/12/2026", "2026-12-05");
        add("05/12/2026", "2026-05-12", DayOrder::MonthFirst);
        add("5.12.26", "2026-12-05");
        add("5-12-26", "2026-05-12", DayOrder::MonthFirst);
        add("31/12/69", "2069-12-31");
        add("31/12/70", "1970-12-31");
        add("5 dicembre 2026", "2026-12-05");
        add("5 dic 26", "2026-12-05", DayOrder::MonthFirst);
        add("29/02/2024", "2024-02-29");
        add("29/02/2023", "");
        add("2023-02-29", "");
        add("31/04/2024", "");
        add("31/12/2024", "", DayOrder::MonthFirst);
        add("12/05/2026 00:00", "2026-05-12");
        add("12/05/2026 0.00.00", "2026-05-12");
        add("5/12/2026 12:00:00 AM", "2026-05-12", DayOrder::MonthFirst);
        add("5/12/2026, 3:15 p.m.", "2026-05-12", DayOrder::MonthFirst);
        add("2026-05-12T00:00:00Z", "2026-05-12");
        add("2026-05-12T10:11:12.345+02:00", "2026-05-12");
        add("2026-05-12 10:11", "2026-05-12");
        add("", "");
        add("ieri", "");
        add("45000", "");
        add("00/00/2026", "");
        add("01/01/0000", "");
    }

    void days()
    {
        QFETCH(QString, cell);
        QFETCH(DayOrder, order);
        QFETCH(QString, day);
        const auto read = importValues::day(cell, order);
        QCOMPARE(read ? read->toString(Qt::ISODate) : QString(), day);
    }

    void orders_data()
    {
        QTest::addColumn<QStringList>("cells");
        QTest::addColumn<DayOrder>("order");
        QTest::newRow("nothing") << QStringList() << DayOrder::DayFirst;
        QTest::newRow("nothing tells") << QStringList{u"01/02/2026"_s, u"12.12.26"_s} << DayOrder::DayFirst;
        QTest::newRow("month first") << QStringList{u"01/02/2026"_s, u"12/31/2026"_s} << DayOrder::MonthFirst;
        QTest::newRow("day first") << QStringList{u"31/12/2026"_s, u"01/02/2026"_s} << DayOrder::DayFirst;
        QTest::newRow("both: as Italians write") << QStringList{u"12/31/2026"_s, u"31/12/2026"_s} << DayOrder::DayFirst;
        QTest::newRow("with times") << QStringList{u"12/31/2026 12:00:00 AM"_s} << DayOrder::MonthFirst;
        QTest::newRow("no day in any order")
            << QStringList{u"29/02/2023"_s, u"99/99/2026"_s, u"x"_s} << DayOrder::DayFirst;
        QTest::newRow("three forms") << QStringList{u"2026-12-31"_s, u"5 maggio 2026"_s, u"05/13/26"_s}
                                     << DayOrder::MonthFirst;
    }

    void orders()
    {
        QFETCH(QStringList, cells);
        QTEST(dayOrderOf(cells), "order");
    }

    void decimalSigns_data()
    {
        QTest::addColumn<QStringList>("cells");
        QTest::addColumn<DecimalSign>("sign");
        QTest::newRow("nothing") << QStringList() << DecimalSign::Unknown;
        QTest::newRow("whole") << QStringList{u"12"_s, {}, u"€ 5"_s} << DecimalSign::Unknown;
        QTest::newRow("three digits tell nothing") << QStringList{u"1.234"_s, u"1,234"_s} << DecimalSign::Unknown;
        QTest::newRow("comma") << QStringList{u"1.234"_s, u"12,5"_s} << DecimalSign::Comma;
        QTest::newRow("full stop") << QStringList{u"1,234"_s, u"12.50"_s} << DecimalSign::FullStop;
        QTest::newRow("both in one") << QStringList{u"1.234,56"_s} << DecimalSign::Comma;
        QTest::newRow("both in one, English") << QStringList{u"$1,234.56"_s} << DecimalSign::FullStop;
        QTest::newRow("groups") << QStringList{u"1.234.567"_s} << DecimalSign::Comma;
        QTest::newRow("groups, English") << QStringList{u"1,234,567"_s} << DecimalSign::FullStop;
        QTest::newRow("against one another") << QStringList{u"1.234,56"_s, u"1,234.56"_s} << DecimalSign::Both;
        QTest::newRow("a word's full stop") << QStringList{u"Fr. 12,50"_s, u"12,50 Fr."_s} << DecimalSign::Comma;
        QTest::newRow("a word's full stop, English")
            << QStringList{u"Fr. 1.5"_s, u"12.50 Fr."_s} << DecimalSign::FullStop;
    }

    void decimalSigns()
    {
        QFETCH(QStringList, cells);
        QTEST(decimalSignOf(cells), "sign");
    }

    void amounts_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<DecimalSign>("sign");
        QTest::addColumn<double>("value");
        QTest::addColumn<AmountFault>("fault");
        const auto add = [](const QString& cell, DecimalSign sign, double value,
                            AmountFault fault = AmountFault::None) {
            QTest::addRow("%s %d", qPrintable(cell), static_cast<int>(sign)) << cell << sign << value << fault;
        };
        using enum DecimalSign;
        add({}, Unknown, 0);
        add(u"1.234,56"_s, Comma, 1234.56);
        add(u"1,234.56"_s, FullStop, 1234.56);
        add(u"1.234,56"_s, Both, 1234.56);
        add(u"1,234.56"_s, Both, 1234.56);
        add(u"1.234"_s, Unknown, 1234);
        add(u"1.234"_s, Comma, 1234);
        add(u"1.234"_s, FullStop, 1.234);
        add(u"1,234"_s, FullStop, 1234);
        add(u"1,234"_s, Comma, 1.234);
        add(u"1.234"_s, Both, 0, AmountFault::Ambiguous);
        add(u"Fr. 1234"_s, Both, 1234);
        add(u"Fr. 1.50"_s, FullStop, 1.5);
        add(u"1,234.50 Fr."_s, FullStop, 1234.5);
        add(u"Fr. 1,50"_s, Comma, 1.5);
        add(u"-12,5"_s, Comma, -12.5);
        add(u"€ 12"_s, Unknown, 12);
        add(u"12 EUR"_s, Both, 12);
        add(u"gratis"_s, Comma, 0, AmountFault::NoAmount);
        add(u"1,2,3"_s, Comma, 0, AmountFault::NoAmount);
        add(u"1e999"_s, Comma, 0, AmountFault::NoAmount);
    }

    void amounts()
    {
        QFETCH(QString, cell);
        QFETCH(DecimalSign, sign);
        const Amount read = amount(cell, sign, u"Fr."_s);
        QTEST(read.fault, "fault");
        QTEST(read.value, "value");
    }

    void yesOrNo_data()
    {
        QTest::addColumn<QString>("cells");
        QTest::addColumn<int>("answer"); ///< -1 for none
        QTest::newRow("yes") << u"Sì|si\u0300|SI|yes|True|1|x|✓|Attivo|in  uso|Avvenuta|done"_s << 1;
        QTest::newRow("no") << u"No|FALSE|0|Inattivo|Dismessa|venduto|Non avvenuta|not done"_s << 0;
        QTest::newRow("neither") << u"|forse|2|attivo?|sìno"_s << -1;
    }

    void yesOrNo()
    {
        QFETCH(QString, cells);
        QFETCH(int, answer);
        for (const QString& cell : cells.split(u'|')) {
            const auto read = importValues::yesOrNo(cell);
            QVERIFY2((read ? int(*read) : -1) == answer, qPrintable(cell));
        }
    }
};

ABISSORA_TEST(tst_ImportValues);
#include "tst_ImportValues.moc"
