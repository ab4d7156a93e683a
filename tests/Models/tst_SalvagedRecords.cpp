// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QByteArray threeItems()
{
    return encode(QList{test::equipmentWith(1, {test::maintenance(11)}), test::equipment(2),
                        test::equipmentWith(3, {test::maintenance(31), test::maintenance(32)})})
        .value();
}

QList<QUuid> ids(const Salvaged<Equipment>& salvaged)
{
    QList<QUuid> all;
    for (const Equipment& item : salvaged.records)
        all.append(item.id);
    return all;
}

const QUuid one = test::SequentialIds::at(1);
const QUuid two = test::SequentialIds::at(2);
const QUuid three = test::SequentialIds::at(3);

} // namespace

/// What is left of a document that the strict reader refuses.
class tst_SalvagedRecords : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aWholeDocumentLosesNothing()
    {
        const auto salvaged = salvageEquipment(threeItems());
        QCOMPARE(salvaged.total, 3);
        QCOMPARE(salvaged.records, decodeEquipment(threeItems()).value());
    }

    void documents_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QList<QUuid>>("kept");
        QTest::addColumn<qsizetype>("total");
        const QByteArray whole = threeItems();
        const auto changed = [&whole](const char* from, const char* to, qsizetype at) {
            return QByteArray(whole).replace(whole.indexOf(from, at), qsizetype(qstrlen(from)), to);
        };
        const qsizetype second = whole.indexOf(test::SequentialIds::at(2).toByteArray(QUuid::WithoutBraces));
        const qsizetype third = whole.indexOf(test::SequentialIds::at(3).toByteArray(QUuid::WithoutBraces));
        const auto row = [](const char* name, const QByteArray& json, const QList<QUuid>& kept, qsizetype total) {
            QTest::newRow(name) << json << kept << total;
        };
        row("an unknown kind", changed("\"GAV\"", "\"Torcia\"", second), {one, three}, 3);
        row("a bad record within an item", changed("\"cost\":120.5", "\"cost\":\"x\"", third), {one, two}, 3);
        row("a missing member", changed("\"brand\":\"Marca\",", "", 0), {two, three}, 3);
        row("broken off within the last item", whole.left(third + 60), {one, two}, 3);
        row("broken off within a history", whole.left(whole.size() - 40), {one, two}, 3);
        row("broken off between items", whole.left(whole.indexOf("},{", second) + 1), {one, two}, 2);
        row("NUL bytes from a failing disk", whole.left(third + 60) + QByteArray(4096, '\0'), {one, two}, 3);
        row("a byte order mark", "\xEF\xBB\xBF" + whole, {one, two, three}, 3);
        row("other elements", "[5," + whole.mid(1).chopped(1) + ",[1,{\"a\":[]}],null]", {one, two, three}, 6);
        row("broken off within what is skipped", "[[1,[2", {}, 1);
        row("no list", "{\"id\":5}", {}, 0);
        row("no JSON", "che bello", {}, 0);
        row("nothing", "", {}, 0);
        row("an empty list", "[]", {}, 0);
    }

    void documents()
    {
        QFETCH(QByteArray, json);
        QFETCH(QList<QUuid>, kept);
        QFETCH(qsizetype, total);
        const auto salvaged = salvageEquipment(json);
        QCOMPARE(ids(salvaged), kept);
        QCOMPARE(salvaged.total, total);
        for (const Equipment& item : salvaged.records)
            QVERIFY(decodeEquipment(threeItems())->contains(item));
    }

    void aLaterMemberReplacesABadOne()
    {
        const auto salvaged = salvageTypes(
            R"([{"id":5,"id":"00000000-0000-4000-8000-000000000001","name":"Boa","icon":"lasso","color":"red",)"
            R"("serviceIntervalDays":365,"isActive":true},{"name":"x"}])");
        QCOMPARE(salvaged.total, 2);
        QCOMPARE(salvaged.records.size(), 1);
        QCOMPARE(salvaged.records.first().name, u"Boa"_s);
    }

    void manyBadOnesCostLittle()
    {
        const auto salvaged = salvageEquipment('[' + QByteArray("{\"id\":[[[]]]},").repeated(100'000) + "7]");
        QCOMPARE(salvaged.total, 100'001);
        QVERIFY(salvaged.records.isEmpty());
    }

    void membersThatThisVersionDoesNotKnow()
    {
        QVERIFY(!readEquipment(threeItems())->hasUnknownMembers);
        QVERIFY(!readEquipment("[]")->hasUnknownMembers);
        QVERIFY(readEquipment(threeItems().replace("\"brand\":", "\"depth\":40,\"brand\":"))->hasUnknownMembers);
        QVERIFY(
            readEquipment(threeItems().replace("\"cost\":", "\"currency\":{\"a\":1},\"cost\":"))->hasUnknownMembers);
        QVERIFY(!readTypes("[]")->hasUnknownMembers);
    }
};

ABISSORA_TEST(tst_SalvagedRecords);
#include "tst_SalvagedRecords.moc"
