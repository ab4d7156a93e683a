// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QTest>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

using namespace abissora;
using test::at;

namespace {

QByteArray jsonOf(const QList<Equipment>& equipment)
{
    return encode(equipment).value_or(QByteArray("(error)"));
}

QString errorOf(const QList<Equipment>& equipment)
{
    const auto json = encode(equipment);
    return json ? QString() : json.error().description();
}

Equipment withCost(double cost)
{
    Maintenance record = test::maintenance(2);
    record.cost = cost;
    return test::equipmentWith(1, {record});
}

std::uint64_t bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

double costAfterRoundTrip(double cost)
{
    return decodeEquipment(jsonOf({withCost(cost)})).value().at(0).maintenanceHistory.at(0).cost;
}

} // namespace

class tst_RecordEncoding : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothing()
    {
        QCOMPARE(jsonOf({}), QByteArray("[]"));
        QCOMPARE(encode(QList<EquipmentTypeModel>()).value(), QByteArray("[]"));
    }

    void absentMembersAreLeftOut()
    {
        QCOMPARE(jsonOf({test::equipmentWith(1, {test::maintenance(2)})}),
                 QByteArray(R"([{"id":"00000000-0000-4000-8000-000000000001","name":"Erogatore di prova","type":"GAV",)"
                            R"("brand":"Marca","model":"Modello","serialNumber":"SN-01",)"
                            R"("purchaseDate":"2024-01-02T03:04:05Z","lastServiceDate":"2025-06-07T08:09:10Z",)"
                            R"("nextServiceDate":"2026-12-31T23:59:59Z","notes":"Note","isActive":true,)"
                            R"("maintenanceHistory":[{"id":"00000000-0000-4000-8000-000000000002",)"
                            R"("date":"2025-03-14T09:26:53Z","type":"Riparazione",)"
                            R"("description":"Revisione primo stadio","performedBy":"Officina Blu","cost":120.5,)"
                            R"("notes":"O-ring sostituiti","nextServiceDate":"2026-03-14T09:26:53Z"}]}])"));
    }

    void presentMembersAreWritten()
    {
        Maintenance record = test::maintenance(2);
        record.isCompleted = false;
        record.receiptFileName = QString();
        record.certificateFileName = u"C.PDF"_s;
        Equipment item = test::equipmentWith(1, {record});
        item.isActive = false;
        item.customTypeName = QString();
        const QByteArray json = jsonOf({item});
        QVERIFY(json.contains(R"("notes":"Note","isActive":false,"maintenanceHistory":[{)"));
        QVERIFY(json.endsWith(R"("nextServiceDate":"2026-03-14T09:26:53Z","isCompleted":false,"receiptFileName":"",)"
                              R"("certificateFileName":"C.PDF"}],"customTypeName":""}])"));
    }

    void types()
    {
        EquipmentTypeModel type = test::equipmentType(1, u"Torcia"_s);
        type.id = QUuid::fromString(u"e621e1f8-c36c-495a-93fc-0c247a3e6e5f"_s);
        type.serviceIntervalDays = std::numeric_limits<std::int64_t>::min();
        QCOMPARE(encode(QList{type, type})
                     .value()
                     .count(R"({"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F",)"
                            R"("name":"Torcia","icon":"dive.tank","color":"gray",)"
                            R"("serviceIntervalDays":-9223372036854775808,)"
                            R"("isActive":true})"),
                 2);
        QCOMPARE(decodeTypes(encode(QList{type}).value()).value(), QList{type});
    }

    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("quotes") << u"a\"b\\c/d"_s << QByteArray("\"a\\\"b\\\\c/d\"");
        QTest::newRow("lines") << u"a\nb\r\tc"_s << QByteArray("\"a\\nb\\r\\tc\"");
        QTest::newRow("controls") << u"\b\f\x1F\x7F"_s << QByteArray("\"\\u0008\\u000c\\u001f\x7F\"");
        QTest::newRow("NUL") << QString(QChar(0)) << QByteArray("\"\\u0000\"");
        QTest::newRow("only specials") << u"\"\"\n"_s << QByteArray("\"\\\"\\\"\\n\"");
        QTest::newRow("accents") << u"Perché così"_s << QByteArray("\"Perch\xC3\xA9 cos\xC3\xAC\"");
        QTest::newRow("outside the plane") << u"🤿"_s << QByteArray("\"\xF0\x9F\xA4\xBF\"");
        QTest::newRow("line separator") << QString(QChar(0x2028)) << QByteArray("\"\xE2\x80\xA8\"");
        QTest::newRow("no character") << QString(QChar(0xFFFF)) << QByteArray("\"\xEF\xBF\xBF\"");
        QTest::newRow("two marks at the beginning")
            << u"\uFEFF\uFEFFa"_s << QByteArray("\"\xEF\xBB\xBF\xEF\xBB\xBF\x61\"");
        QTest::newRow("empty") << QString() << QByteArray("\"\"");
    }

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, written);
        const Equipment item = test::equipment(1, text);
        const QByteArray json = jsonOf({item});
        QVERIFY2(json.contains(QByteArray("\"name\":" + written + ",\"type\"")), json.constData());
        QCOMPARE(decodeEquipment(json).value().at(0).name, text);
    }

    void whatUtf8CannotHoldIsReplaced()
    {
        const QByteArray json = jsonOf({test::equipment(1, u"a"_s + QChar(0xD83E) + u'b')});
        const auto decoded = decodeEquipment(json);
        QVERIFY2(decoded, json.constData());
        QCOMPARE(decoded->at(0).name.size(), 3);
    }

    void costs_data()
    {
        QTest::addColumn<double>("cost");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("whole") << 45.0 << QByteArray("45");
        QTest::newRow("zero") << 0.0 << QByteArray("0");
        QTest::newRow("negative zero") << -0.0 << QByteArray("-0.0");
        QTest::newRow("tenth") << 0.1 << QByteArray("0.1");
        QTest::newRow("sum of tenths") << 0.1 + 0.2 << QByteArray("0.30000000000000004");
        QTest::newRow("cents") << 1234.56 << QByteArray("1234.56");
        QTest::newRow("negative") << -12.5 << QByteArray("-12.5");
        QTest::newRow("large") << 1e21 << QByteArray("1e+21");
        QTest::newRow("beyond 2^53") << 9007199254740994.0 << QByteArray("9007199254740994");
        QTest::newRow("2^63") << 0x1p63 << QByteArray("9223372036854775808");
        QTest::newRow("-2^63") << -0x1p63 << QByteArray("-9223372036854775808");
        QTest::newRow("2^64") << 0x1p64 << QByteArray("18446744073709551616");
        QTest::newRow("subnormal") << 1e-320 << QByteArray("1e-320");
        QTest::newRow("smallest") << 5e-324 << QByteArray("5e-324");
        QTest::newRow("largest") << std::numeric_limits<double>::max() << QByteArray("1.7976931348623157e+308");
    }

    void costs()
    {
        QFETCH(double, cost);
        QFETCH(QByteArray, written);
        const QByteArray json = jsonOf({withCost(cost)});
        QVERIFY2(json.contains(QByteArray("\"cost\":" + written + ",\"notes\"")), json.constData());
        QCOMPARE(bits(costAfterRoundTrip(cost)), bits(cost));
    }

    void anyCostSurvives()
    {
        std::mt19937_64 random(7); // the same numbers at every run
        for (int i = 0; i < 20'000; ++i) {
            const auto cost = std::bit_cast<double>(random());
            if (std::isfinite(cost))
                QCOMPARE(bits(costAfterRoundTrip(cost)), bits(cost));
        }
    }

    void valuesWithoutAStoredForm_data()
    {
        QTest::addColumn<Equipment>("item");
        QTest::addColumn<QString>("error");
        const QString notFinite = u"[1].maintenanceHistory[0].cost: the number is not finite"_s;
        QTest::newRow("not a number") << withCost(std::numeric_limits<double>::quiet_NaN()) << notFinite;
        QTest::newRow("infinite") << withCost(std::numeric_limits<double>::infinity()) << notFinite;
        QTest::newRow("negatively infinite") << withCost(-std::numeric_limits<double>::infinity()) << notFinite;
        Equipment item = test::equipment(1);
        item.purchaseDate = at("9999-12-31T23:59:59Z") + std::chrono::seconds(1);
        QTest::newRow("year 10000") << item << u"[1].purchaseDate: the year lies outside 1 to 9999"_s;
        item = test::equipmentWith(1, {test::maintenance(2), test::maintenance(3)});
        item.maintenanceHistory[1].nextServiceDate = at("0001-01-01T00:00:00Z") - std::chrono::seconds(1);
        QTest::newRow("year 0") << item
                                << u"[1].maintenanceHistory[1].nextServiceDate: the year lies outside 1 to 9999"_s;
    }

    void valuesWithoutAStoredForm()
    {
        QFETCH(Equipment, item);
        QFETCH(QString, error);
        QCOMPARE(errorOf({test::equipmentWith(9, {test::maintenance(8)}), item}), error);
    }

    void everyFieldSurvives()
    {
        Maintenance full = test::maintenance(3);
        full.isCompleted = true;
        full.receiptFileName = u"R.pdf"_s;
        full.certificateFileName = u"C.pdf"_s;
        Equipment item = test::equipmentWith(1, {test::maintenance(2), full});
        item.customTypeName = u"Torcia"_s;
        item.isActive = false;
        const QList<Equipment> equipment{item, test::equipment(4)};
        QCOMPARE(decodeEquipment(jsonOf(equipment)).value(), equipment);

        QList<Equipment> finer = equipment;
        finer[0].lastServiceDate += std::chrono::milliseconds(999);
        finer[0].maintenanceHistory[0].date += std::chrono::milliseconds(1);
        QCOMPARE(decodeEquipment(jsonOf(finer)).value(), equipment);
    }
};

ABISSORA_TEST(tst_RecordEncoding);
#include "tst_RecordEncoding.moc"
