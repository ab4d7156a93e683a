// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const QByteArray recordText = R"({"id":"00000000-0000-4000-8000-000000000002","date":"2025-03-14T09:26:53Z",)"
                              R"("type":"Test","description":"","performedBy":"","cost":1,"notes":"",)"
                              R"("nextServiceDate":"2026-03-14T09:26:53Z"})";

/// One item with `members` before and after those that every item has.
tl::expected<QList<Equipment>, JsonError> decoded(const QByteArray& before, const QByteArray& after)
{
    QByteArray json = R"([{"id":"00000000-0000-4000-8000-000000000001","name":"N","type":"GAV","brand":"","model":"",)"
                      R"("serialNumber":"","purchaseDate":"2024-01-02T03:04:05Z",)"
                      R"("lastServiceDate":"2024-01-02T03:04:05Z","nextServiceDate":"2024-01-02T03:04:05Z",)"
                      R"("notes":"","isActive":true,"maintenanceHistory":[]}])";
    json.insert(2, before);
    json.insert(json.size() - 2, after);
    return decodeEquipment(json);
}

Equipment itemOf(const QByteArray& before, const QByteArray& after)
{
    const auto equipment = decoded(before, after);
    return equipment ? equipment->at(0) : test::equipment(1, equipment.error().description());
}

QString errorOf(const QByteArray& before, const QByteArray& after)
{
    const auto equipment = decoded(before, after);
    return equipment ? QString() : equipment.error().description();
}

} // namespace

/// The last of several members of one name counts, whatever the earlier ones hold.
class tst_RepeatedMembers : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ofTheRightType()
    {
        QCOMPARE(itemOf(R"("name":"first",)", "").name, u"N"_s);
        QCOMPARE(itemOf("", R"(,"name":"last")").name, u"last"_s);
        QCOMPARE(itemOf(R"("isActive":true,)", R"(,"isActive":true,"isActive":false)").isActive, false);
    }

    void anEarlierOneOfTheWrongType()
    {
        QCOMPARE(itemOf(R"("name":1,)", "").name, u"N"_s);
        QCOMPARE(itemOf(R"("name":null,"name":[1],"name":{"a":{}},)", "").name, u"N"_s);
        QCOMPARE(itemOf(R"("type":"Torcia",)", "").type, EquipmentType::bcd);
        QCOMPARE(itemOf(R"("maintenanceHistory":{},"maintenanceHistory":[1],"maintenanceHistory":[{}],)", "")
                     .maintenanceHistory.size(),
                 0);
    }

    void theLastOfTheWrongType()
    {
        QCOMPARE(errorOf("", R"(,"name":1)"), u"[0].name: expected a string, found a number"_s);
        QCOMPARE(errorOf("", R"(,"name":1,"name":null)"), u"[0].name: expected a string, found null"_s);
        QCOMPARE(errorOf("", R"(,"maintenanceHistory":[{}])"),
                 u"[0].maintenanceHistory[0].id: the member is missing"_s);
    }

    void listsAreReplacedWhole()
    {
        QCOMPARE(
            itemOf(R"("maintenanceHistory":[)" + recordText + "," + recordText + "],", "").maintenanceHistory.size(),
            0);
        QCOMPARE(itemOf("", R"(,"maintenanceHistory":[)" + recordText + "]").maintenanceHistory.size(), 1);
        QCOMPARE(itemOf("", R"(,"maintenanceHistory":[1],"maintenanceHistory":[)" + recordText + "]")
                     .maintenanceHistory.size(),
                 1);
    }

    void nullMakesAnOptionalMemberAbsent()
    {
        QVERIFY(itemOf("", R"(,"customTypeName":null,"customTypeName":"Torcia")").customTypeName);
        QVERIFY(!itemOf("", R"(,"customTypeName":"Torcia","customTypeName":null)").customTypeName);
        QCOMPARE(itemOf("", R"(,"customTypeName":7,"customTypeName":"Torcia")").customTypeName.value(), u"Torcia"_s);
        QVERIFY(!itemOf("", R"(,"customTypeName":7,"customTypeName":null)").customTypeName);
    }

    void insideRecords()
    {
        QByteArray repeated = recordText;
        repeated.insert(1, R"("cost":"x","cost":[],"date":5,)");
        QCOMPARE(itemOf("", R"(,"maintenanceHistory":[)" + repeated + "]").maintenanceHistory.at(0).cost, 1.0);
    }

    void namesWithEscapesAreTheSame() { QCOMPARE(itemOf("", R"(,"n\u0061me":"last")").name, u"last"_s); }
};

ABISSORA_TEST(tst_RepeatedMembers);
#include "tst_RepeatedMembers.moc"
