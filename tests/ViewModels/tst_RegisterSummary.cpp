// SPDX-License-Identifier: MIT
#include "Catalogue.h"
#include "Literals.h"
#include "RegisterSummary.h"
#include "TestRunner.h"

#include <QTest>
#include <random>

using namespace abissora;
using namespace abissora::test;
using std::chrono::days;
using std::chrono::minutes;

namespace {

const Instant now = FixedClock().now();
const Calendar rome{QTimeZone("Europe/Rome")};

Equipment dueIn(int id, std::chrono::milliseconds time, bool isActive = true)
{
    Equipment item = equipment(id);
    item.nextServiceDate = now + time;
    item.isActive = isActive;
    return item;
}

/// Figures counted by hand: none of them is derived from another.
struct Figures
{
    qsizetype total = 0;
    qsizetype active = 0;
    qsizetype due = 0;
    qsizetype expiring = 0;
    qsizetype inOrder = 0;

    friend bool operator==(const Figures&, const Figures&) = default;
};

char* toString(const Figures& f)
{
    return QTest::toString(u"%1 in all, %2 active, %3 due, %4 expiring, %5 in order"_s.arg(f.total)
                               .arg(f.active)
                               .arg(f.due)
                               .arg(f.expiring)
                               .arg(f.inOrder));
}

Figures figuresOf(const RegisterSummary& summary)
{
    return {summary.total, summary.active, summary.due.size(), summary.expiring, summary.inOrder};
}

Figures figures(const QList<Equipment>& equipment)
{
    return figuresOf(RegisterSummary::of(equipment, now, rome));
}

} // namespace

class tst_RegisterSummary : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneItem_data()
    {
        QTest::addColumn<qint64>("minutesLeft");
        QTest::addColumn<bool>("isActive");
        QTest::addColumn<Figures>("expected");
        constexpr qint64 day = qint64{24} * 60;
        const auto row = [](const char* name, qint64 left, bool isActive, const Figures& expected) {
            QTest::newRow(name) << left << isActive << expected;
        };
        row("10 days overdue", -10 * day, true, {1, 1, 1, 0, 0});
        row("10 days overdue, inactive", -10 * day, false, {1, 0, 0, 0, 0});
        row("a day overdue", -day, true, {1, 1, 1, 0, 0});
        row("within the past day", -day + 1, true, {1, 1, 1, 0, 0});
        row("now", 0, true, {1, 1, 1, 0, 0});
        row("within the coming day", day - 1, true, {1, 1, 1, 0, 0});
        row("within the coming day, inactive", day - 1, false, {1, 0, 0, 0, 0});
        row("1 day", day, true, {1, 1, 1, 1, 0});
        row("15 days", 15 * day, true, {1, 1, 1, 1, 0});
        row("15 days, inactive", 15 * day, false, {1, 0, 0, 1, 0});
        row("30 days", 30 * day, true, {1, 1, 1, 1, 0});
        row("a minute short of 31 days", 31 * day - 1, true, {1, 1, 1, 1, 0});
        row("31 days", 31 * day, true, {1, 1, 0, 0, 1});
        row("31 days, inactive", 31 * day, false, {1, 0, 0, 0, 1});
    }

    void oneItem()
    {
        QFETCH(qint64, minutesLeft);
        QFETCH(bool, isActive);
        QFETCH(Figures, expected);
        QCOMPARE(figures({dueIn(1, minutes(minutesLeft), isActive)}), expected);
    }

    void nothing() { QCOMPARE(figures({}), Figures()); }

    void whereTheCalendarEnds()
    {
        Equipment item = equipment(1);
        item.nextServiceDate = at("9999-12-31T23:30:00Z"); // already the year 10000 in Rome
        QCOMPARE(figures({item}), (Figures{1, 1, 0, 0, 1}));
        item.nextServiceDate = lastInstant + std::chrono::milliseconds(1);
        QCOMPARE(figures({item}), (Figures{1, 1, 1, 0, 0}));
    }

    void whatIsDueIsToldAsByCounting_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("moment");
        QTest::newRow("clocks change in spring") << QByteArray("Europe/Rome") << u"2026-03-01T22:30:00Z"_s;
        QTest::newRow("clocks change in autumn") << QByteArray("Europe/Rome") << u"2026-09-26T00:30:00Z"_s;
        QTest::newRow("a day is skipped") << QByteArray("Pacific/Apia") << u"2011-12-01T09:00:00Z"_s;
        QTest::newRow("a day comes twice") << QByteArray("America/Juneau") << u"1867-09-18T12:00:00Z"_s;
        QTest::newRow("the calendar begins") << QByteArray("America/New_York") << u"0001-01-01T00:00:00Z"_s;
        QTest::newRow("the calendar ends") << QByteArray("Europe/Rome") << u"9999-11-28T12:00:00Z"_s;
        QTest::newRow("the calendar has ended") << QByteArray("Europe/Rome") << u"9999-12-31T23:59:59Z"_s;
    }

    void whatIsDueIsToldAsByCounting()
    {
        QFETCH(const QByteArray, zone);
        QFETCH(const QString, moment);
        const Calendar calendar{QTimeZone(zone)};
        const Instant then = at(moment.toLatin1().constData());
        Equipment item = equipment(1);
        for (minutes left = days(-2); left <= days(40); left += minutes(30)) {
            for (const bool isActive : {true, false}) {
                item.isActive = isActive;
                item.nextServiceDate = then + left;
                QCOMPARE(isDueSoon(item, then, calendar), isDueSoon(item, item.daysUntilNextService(then, calendar)));
            }
        }
    }

    void dueItemsInCatalogueOrderWithTheirDays()
    {
        const QList<Equipment> all{dueIn(1, days(12)), dueIn(2, days(40)), dueIn(3, -days(5)), dueIn(4, days(3), false),
                                   dueIn(5, minutes(1))};
        const QList<RegisterSummary::DueItem> expected{{all.at(0), 12}, {all.at(2), -5}, {all.at(4), 0}};
        QCOMPARE(RegisterSummary::of(all, now, rome).due, expected);
    }

    /// No clock change lies within the days that are drawn.
    void aThousandItems()
    {
        std::mt19937 random(7);
        const auto draw = [&random](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
        QList<Equipment> all;
        Figures expected;
        for (int i = 0; i < 1000; ++i) {
            const int left = draw(-60, 60);
            const minutes rest(draw(0, 24 * 60 - 1)); // does not make it a day more, or a day less
            const bool isActive = draw(0, 3) != 0;
            all.append(dueIn(i, days(left) + (left < 0 ? -rest : rest), isActive));
            ++expected.total;
            if (isActive)
                ++expected.active;
            if (isActive && left < 31)
                ++expected.due;
            if (left > 0 && left < 31)
                ++expected.expiring;
            if (left > 30)
                ++expected.inOrder;
        }
        QCOMPARE(figures(all), expected);
        QVERIFY(expected.due + expected.expiring + expected.inOrder != expected.total);

        Catalogue catalogue(all);
        QCOMPARE(figuresOf(catalogue.viewModel.summary()), expected);
        QCOMPARE(catalogue.viewModel.overdueEquipment().size(), expected.due);
        QCOMPARE(catalogue.console.calls(), QStringList());
    }

    void freshSamples()
    {
        TemporaryRegister files;
        const EquipmentViewModel viewModel(files.storageManager(), files.documents, files.console, files.clock,
                                           files.calendar);
        const RegisterSummary summary = viewModel.summary();
        QCOMPARE(summary.total, 3);
        QVERIFY(summary.expiring >= 1);
        QVERIFY(summary.inOrder >= 1);
        const auto isComputer = [](const auto& item) { return item.equipment.type == EquipmentType::computer; };
        const auto computer = std::find_if(summary.due.begin(), summary.due.end(), isComputer);
        QVERIFY(computer != summary.due.end());
        QCOMPARE(computer->days, 15);
    }

    void activeItemsByTypeNames()
    {
        QList<Equipment> all;
        for (int i = 0; i < 7; ++i)
            all.append(equipment(i)); // GAV
        all[1].customTypeName = u"Torcia"_s;
        all[2].customTypeName = QString(); // as if absent
        all[3].isActive = false;
        all[4].customTypeName = u"torcia"_s;
        all[5].type = EquipmentType::mask;
        all[6].type = EquipmentType::mask;
        all[6].customTypeName = u"Boa"_s;
        all[6].isActive = false;
        const QHash<QString, qsizetype> expected{{u"GAV"_s, 2}, {u"Torcia"_s, 1}, {u"torcia"_s, 1}, {u"Maschera"_s, 1}};
        QCOMPARE(activeItemsByTypeName(all), expected);
    }
};

ABISSORA_TEST(tst_RegisterSummary);
#include "tst_RegisterSummary.moc"
