// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

template <typename Record>
QString errorOf(const tl::expected<QList<Record>, JsonError>& decoded)
{
    return decoded ? QString() : decoded.error().description();
}

/// A register of three items; the third has all optional members and two records.
QByteArray validEquipment()
{
    Maintenance full = test::maintenance(5);
    full.isCompleted = true;
    full.receiptFileName = u"R.pdf"_s;
    full.certificateFileName = u"C.pdf"_s;
    Equipment item = test::equipmentWith(3, {full, test::maintenance(6)});
    item.customTypeName = u"Torcia"_s;
    return encode(QList{test::equipment(1), test::equipment(2), item}).value();
}

QByteArray validTypes()
{
    return encode(QList{test::equipmentType(1, u"Torcia"_s)}).value();
}

/// The last occurrence: members of the third item, of its second record where both have them.
QByteArray changed(QByteArray json, const QByteArray& from, const QByteArray& to)
{
    const qsizetype at = json.lastIndexOf(from);
    Q_ASSERT(at >= 0);
    return json.replace(at, from.size(), to);
}

void columns()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("error");
}

void row(const char* name, const char* from, const char* to, const char* error)
{
    QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QString::fromUtf8(error);
}

} // namespace

class tst_RecordDecoding : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wrongEquipment_data()
    {
        columns();
        const char* date = "expected a date such as \"2025-03-14T09:26:53Z\", found ";
        const auto dateRow = [date](const char* name, const char* from, const char* to, const char* path,
                                    const char* found) {
            row(name, from, to, QByteArray(QByteArray(path) + ": " + date + found).constData());
        };
        row("id missing", R"("id":"00000000-0000-4000-8000-000000000003",)", "", "[2].id: the member is missing");
        row("id not a UUID", "00000000-0000-4000-8000-000000000003", "3", "[2].id: expected a UUID, found \"3\"");
        row("id a number", R"("00000000-0000-4000-8000-000000000003")", "3", "[2].id: expected a UUID, found a number");
        row("name missing", R"("name":"Erogatore di prova",)", "", "[2].name: the member is missing");
        row("name null", R"("name":"Erogatore di prova")", R"("name":null)", "[2].name: expected a string, found null");
        row("name a list", R"("name":"Erogatore di prova")", R"("name":["a"])",
            "[2].name: expected a string, found an array");
        row("name an object", R"("name":"Erogatore di prova")", R"("name":{"a":"b"})",
            "[2].name: expected a string, found an object");
        row("name in capitals", R"("name":)", R"("Name":)", "[2].name: the member is missing");
        row("type unknown", R"("type":"GAV")", R"("type":"Torcia")",
            "[2].type: expected one of the known names, found \"Torcia\"");
        row("type in lower case", R"("type":"GAV")", R"("type":"gav")",
            "[2].type: expected one of the known names, found \"gav\"");
        row("type empty", R"("type":"GAV")", R"("type":"")",
            "[2].type: expected one of the known names, found a string");
        row("type a number", R"("type":"GAV")", R"("type":1)",
            "[2].type: expected one of the known names, found a number");
        row("brand missing", R"("brand":"Marca",)", "", "[2].brand: the member is missing");
        row("model a boolean", R"("model":"Modello")", R"("model":true)", "[2].model: expected a string, found true");
        row("serial number a number", R"("serialNumber":"SN-01")", R"("serialNumber":1)",
            "[2].serialNumber: expected a string, found a number");
        dateRow("date a number", R"("purchaseDate":"2024-01-02T03:04:05Z")", R"("purchaseDate":725857445)",
                "[2].purchaseDate", "a number");
        dateRow("date a real number", R"("lastServiceDate":"2025-06-07T08:09:10Z")", R"("lastServiceDate":1.5)",
                "[2].lastServiceDate", "a number");
        dateRow("date with fractions", "2026-12-31T23:59:59Z", "2026-12-31T23:59:59.000Z", "[2].nextServiceDate",
                "\"2026-12-31T23:59:59.000Z\"");
        dateRow("date that does not exist", "2026-12-31T23:59:59Z", "2026-02-29T23:59:59Z", "[2].nextServiceDate",
                "\"2026-02-29T23:59:59Z\"");
        dateRow("date null", R"("2026-12-31T23:59:59Z")", "null", "[2].nextServiceDate", "null");
        row("notes missing", R"("notes":"Note",)", "", "[2].notes: the member is missing");
        row("active a number", R"("isActive":true)", R"("isActive":1)",
            "[2].isActive: expected true or false, found a number");
        row("active a text", R"("isActive":true)", R"("isActive":"true")",
            "[2].isActive: expected true or false, found a string");
        row("active missing", R"("isActive":true,)", "", "[2].isActive: the member is missing");
        row("history missing", R"("maintenanceHistory")", R"("history")",
            "[2].maintenanceHistory: the member is missing");
        row("history null", R"("maintenanceHistory":[)", R"("maintenanceHistory":null,"old":[)",
            "[2].maintenanceHistory: expected an array, found null");
        row("history an object", R"("maintenanceHistory":[)", R"("maintenanceHistory":{},"old":[)",
            "[2].maintenanceHistory: expected an array, found an object");
        row("record a text", R"("maintenanceHistory":[)", R"("maintenanceHistory":["a",)",
            "[2].maintenanceHistory[0]: expected an object, found a string");
        row("record a list", R"("maintenanceHistory":[)", R"("maintenanceHistory":[[],)",
            "[2].maintenanceHistory[0]: expected an object, found an array");
        row("record empty", R"("maintenanceHistory":[)", R"("maintenanceHistory":[{},)",
            "[2].maintenanceHistory[0].id: the member is missing");
        row("own type a number", R"("customTypeName":"Torcia")", R"("customTypeName":1)",
            "[2].customTypeName: expected a string, found a number");
        row("own type a list", R"("customTypeName":"Torcia")", R"("customTypeName":[])",
            "[2].customTypeName: expected a string, found an array");

        row("cost a text", R"("cost":120.5)", R"("cost":"120.5")",
            "[2].maintenanceHistory[1].cost: expected a number, found a string");
        row("cost null", R"("cost":120.5)", R"("cost":null)",
            "[2].maintenanceHistory[1].cost: expected a number, found null");
        row("cost missing", R"("cost":120.5,)", "", "[2].maintenanceHistory[1].cost: the member is missing");
        row("performedBy false", R"("performedBy":"Officina Blu")", R"("performedBy":false)",
            "[2].maintenanceHistory[1].performedBy: expected a string, found false");
        row("kind of another enumeration", R"("type":"Riparazione")", R"("type":"GAV")",
            "[2].maintenanceHistory[1].type: expected one of the known names, found \"GAV\"");
        row("completed a number", R"("isCompleted":true)", R"("isCompleted":1)",
            "[2].maintenanceHistory[0].isCompleted: expected true or false, found a number");
        row("completed a text", R"("isCompleted":true)", R"("isCompleted":"no")",
            "[2].maintenanceHistory[0].isCompleted: expected true or false, found a string");
        row("receipt a number", R"("receiptFileName":"R.pdf")", R"("receiptFileName":7)",
            "[2].maintenanceHistory[0].receiptFileName: expected a string, found a number");
        row("the first of several faults", R"("notes":"Note","isActive":true)", R"("notes":1,"isActive":2)",
            "[2].notes: expected a string, found a number");
    }

    void wrongEquipment()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, error);
        QCOMPARE(errorOf(decodeEquipment(changed(validEquipment(), from, to))), error);
    }

    void wrongTypes_data()
    {
        columns();
        const char* number = "[0].serviceIntervalDays: expected a whole number of 64 bits, found a number";
        row("half a day", ":180", ":57.5", number);
        row("2^63", ":180", ":9223372036854775808", number);
        row("2^64", ":180", ":18446744073709551616", number);
        row("below -2^63", ":180", ":-9223372036854775809", number);
        row("2^63 as a real number", ":180", ":9.223372036854775808e18", number);
        row("very large", ":180", ":1e300", number);
        row("very small", ":180", ":1e-300", number);
        row("a text", ":180", R"(:"57")",
            "[0].serviceIntervalDays: expected a whole number of 64 bits, found a string");
        row("a boolean", ":180", ":true", "[0].serviceIntervalDays: expected a whole number of 64 bits, found true");
        row("null", ":180", ":null", "[0].serviceIntervalDays: expected a whole number of 64 bits, found null");
        row("without id", R"("id")", R"("ID")", "[0].id: the member is missing");
        row("without name", R"("name")", R"("Name")", "[0].name: the member is missing");
        row("without icon", R"("icon")", R"("image")", "[0].icon: the member is missing");
        row("without color", R"("color":"gray",)", "", "[0].color: the member is missing");
        row("without interval", R"("serviceIntervalDays":180,)", "", "[0].serviceIntervalDays: the member is missing");
        row("without isActive", R"(,"isActive":true)", "", "[0].isActive: the member is missing");
        row("color null", R"("color":"gray")", R"("color":null)", "[0].color: expected a string, found null");
    }

    void wrongTypes()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, error);
        QCOMPARE(errorOf(decodeTypes(changed(validTypes(), from, to))), error);
    }

    void wholeNumbers_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<qint64>("value");
        QTest::newRow("plain") << QByteArray("57") << qint64(57);
        QTest::newRow("with a fraction of nothing") << QByteArray("57.0") << qint64(57);
        QTest::newRow("with an exponent") << QByteArray("5.7e1") << qint64(57);
        QTest::newRow("negative") << QByteArray("-3") << qint64(-3);
        QTest::newRow("negative zero") << QByteArray("-0.0") << qint64(0);
        QTest::newRow("largest") << QByteArray("9223372036854775807") << std::numeric_limits<qint64>::max();
        QTest::newRow("smallest") << QByteArray("-9223372036854775808") << std::numeric_limits<qint64>::min();
    }

    void wholeNumbers()
    {
        QFETCH(QByteArray, text);
        const auto types = decodeTypes(changed(validTypes(), ":180", ':' + text));
        QCOMPARE(errorOf(types), QString());
        QTEST(qint64(types->at(0).serviceIntervalDays), "value");
    }

    void costsTakeAnyNumber()
    {
        const auto cost = [](const char* text) {
            const auto equipment = decodeEquipment(changed(validEquipment(), "120.5", text));
            return equipment ? equipment->at(2).maintenanceHistory.at(1).cost : -1.0;
        };
        QCOMPARE(cost("45"), 45.0);
        QCOMPARE(cost("45.0"), 45.0);
        QCOMPARE(cost("4.5E+1"), 45.0);
        QCOMPARE(cost("-7"), -7.0);
        QCOMPARE(cost("9223372036854775808"), 0x1p63);
        QCOMPARE(cost("123456789012345678901234567890"), 123456789012345678901234567890.0);
        QCOMPARE(cost("1e-400"), 0.0);
    }

    void optionalMembersMayBeNullOrMissing()
    {
        const auto expected = [] {
            auto equipment = decodeEquipment(validEquipment()).value();
            equipment[2].customTypeName.reset();
            Maintenance& record = equipment[2].maintenanceHistory[0];
            record.isCompleted.reset();
            record.receiptFileName.reset();
            record.certificateFileName.reset();
            return equipment;
        }();
        QByteArray nulls = validEquipment();
        nulls = changed(nulls, R"("isCompleted":true)", R"("isCompleted":null)");
        nulls = changed(nulls, R"("receiptFileName":"R.pdf")", R"("receiptFileName":null)");
        nulls = changed(nulls, R"("certificateFileName":"C.pdf")", R"("certificateFileName":null)");
        nulls = changed(nulls, R"("customTypeName":"Torcia")", R"("customTypeName":null)");
        QCOMPARE(decodeEquipment(nulls).value(), expected);

        const QByteArray written = encode(expected).value();
        QVERIFY(!written.contains("null"));
        QVERIFY(!written.contains("isCompleted") && !written.contains("FileName") &&
                !written.contains("customTypeName"));
        QCOMPARE(decodeEquipment(written).value(), expected);
    }

    void unknownMembersAreIgnored()
    {
        const QByteArray withUnknown = R"("future":{"id":1,"list":[{"name":null},[[]]],"cost":1e5},"":true,"id":)";
        QByteArray json = validEquipment();
        json.replace(R"("id":)", withUnknown);
        QCOMPARE(json.count("future"), 5);
        QCOMPARE(decodeEquipment(json).value(), decodeEquipment(validEquipment()).value());
        QByteArray types = validTypes();
        types.replace(R"("id":)", withUnknown);
        QCOMPARE(decodeTypes(types).value(), decodeTypes(validTypes()).value());
    }

    void theWholeDocument_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* json, const char* error) {
            QTest::newRow(json) << QByteArray(json) << QString::fromUtf8(error);
        };
        row("null", "expected an array, found null");
        row("true", "expected an array, found true");
        row("12", "expected an array, found a number");
        row("\"[]\"", "expected an array, found a string");
        row("{}", "expected an array, found an object");
        row("{\"equipment\":[]}", "expected an array, found an object");
        row("[null]", "[0]: expected an object, found null");
        row("[[]]", "[0]: expected an object, found an array");
        row("[1,{},\"a\"]", "[0]: expected an object, found a number");
        row("[{}]", "[0].id: the member is missing");
    }

    void theWholeDocument()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);
        QCOMPARE(errorOf(decodeEquipment(json)), error);
        QCOMPARE(errorOf(decodeTypes(json)), error);
    }

    void whiteSpaceAndOrderDoNotCount()
    {
        QCOMPARE(decodeEquipment(" \r\n\t[ ]\n").value().size(), 0);
        const QByteArray json = R"([ {"isActive" : true, "serviceIntervalDays":180,
            "color":"gray", "icon":"dive.tank",	"name":"Torcia",
            "id":"00000000-0000-4000-8000-000000000001"} ])";
        QCOMPARE(decodeTypes(json).value(), QList{test::equipmentType(1, u"Torcia"_s)});
    }
};

ABISSORA_TEST(tst_RecordDecoding);
#include "tst_RecordDecoding.moc"
