// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "DueServices.h"
#include "TestRunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace abissora;

class tst_DueServices : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thoseNearComeInTheirOrder_data()
    {
        QTest::addColumn<int>("within");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("past ones") << -1 << QStringList{u"past"_s};
        QTest::newRow("to this day") << 0 << QStringList{u"past"_s, u"today"_s};
        QTest::newRow("29 days") << 29 << QStringList{u"past"_s, u"today"_s};
        QTest::newRow("30 days") << 30 << QStringList{u"past"_s, u"today"_s, u"month"_s};
        QTest::newRow("all") << 999'999 << QStringList{u"past"_s, u"today"_s, u"month"_s, u"later"_s};
    }

    void thoseNearComeInTheirOrder()
    {
        QFETCH(int, within);
        QList<Equipment> items{item(u"later"_s, 31), item(u"month"_s, 30), item(u"past"_s, -5), item(u"today"_s, 0),
                               item(u"gone"_s, -9)};
        items.last().isActive = false;
        QStringList names;
        for (const DueService& due : dueServices(items, within, almanac))
            names.append(due.item.name);
        QTEST(names, "names");
    }

    void lines_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("make"); ///< brand|model
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("line");
        QTest::newRow("usual") << u"Muta"_s << u"Mares|Flexa"_s << 14
                               << u"29 giugno 2026\t14 giorni\tMuta (Mares Flexa)"_s;
        QTest::newRow("tomorrow") << u"Muta"_s << u"Mares|"_s << 1 << u"16 giugno 2026\t1 giorno\tMuta (Mares)"_s;
        QTest::newRow("yesterday") << u"Muta"_s << u"|"_s << -1 << u"14 giugno 2026\t-1 giorno\tMuta"_s;
        QTest::newRow("any text") << u"a\tb\nc\x1b[31m"_s << u"d\r\ne|f"_s << 0
                                  << u"15 giugno 2026\t0 giorni\ta b c[31m (d e f)"_s;
    }

    void lines()
    {
        QFETCH(QString, name);
        QFETCH(QString, make);
        QFETCH(int, days);
        Equipment one = item(name, days);
        one.brand = make.section(u'|', 0, 0);
        one.model = make.section(u'|', 1);
        QTEST(dueLine({one, days}, almanac), "line");
    }

    void jsonHasEveryMember()
    {
        Equipment one = item(u"Muta \"\n"_s, -3);
        one.customTypeName = u"Mia"_s;
        const QJsonArray array = QJsonDocument::fromJson(dueJson({{one, -3}}, almanac)).array();
        QCOMPARE(array.size(), 1);
        QCOMPARE(array.first().toObject(), (QJsonObject{{u"id"_s, u"00000000-0000-4000-8000-000000000001"_s},
                                                        {u"name"_s, u"Muta \"\n"_s},
                                                        {u"brand"_s, u"Marca"_s},
                                                        {u"model"_s, u"Modello"_s},
                                                        {u"serialNumber"_s, u"SN-01"_s},
                                                        {u"type"_s, u"Mia"_s},
                                                        {u"nextServiceDate"_s, u"2026-06-12"_s},
                                                        {u"days"_s, -3}}));
        QCOMPARE(QJsonDocument::fromJson(dueJson({}, almanac)).array(), QJsonArray());
        QVERIFY(QJsonDocument::fromJson(dueJson({}, almanac)).isArray());
    }

private:
    [[nodiscard]] Equipment item(const QString& name, int days) const
    {
        Equipment item = test::equipment(1, name);
        item.nextServiceDate = almanac.calendar.addDays(clock.now(), days).value();
        return item;
    }

    test::FixedClock clock;
    Almanac almanac{clock, Calendar{QTimeZone("Europe/Rome")},
                    DateFormat(QLocale(u"it_IT"_s), Calendar{QTimeZone("Europe/Rome")})};
};

ABISSORA_TEST(tst_DueServices);
#include "tst_DueServices.moc"
