// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "RecordJson.h"
#include "RegisterParts.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QList<Equipment> items(int count)
{
    QList<Equipment> list;
    for (int i = 0; i < count; ++i)
        list.append(test::equipmentWith(3 * i, {test::maintenance(3 * i + 1), test::maintenance(3 * i + 2)}));
    return list;
}

/// Long enough to be read in parts.
QByteArray longRegister()
{
    return encode(items(2000)).value();
}

} // namespace

class tst_RegisterParts : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void togetherTheyAreTheList()
    {
        const QByteArray json = encode(items(20)).value();
        for (int count = 1; count <= 8; ++count) {
            const auto parts = json::partsOf(json, count);
            QCOMPARE(parts.size(), qsizetype(count));
            QByteArray joined;
            QList<Equipment> read;
            for (const QByteArrayView part : parts) {
                joined += (joined.isEmpty() ? "" : ",") + part.toByteArray();
                read += decodeEquipment('[' + part.toByteArray() + ']').value();
            }
            QCOMPARE('[' + joined + ']', json);
            QCOMPARE(read, items(20));
        }
    }

    void aListOfFewItemsHasNoMoreParts()
    {
        QCOMPARE(json::partsOf(encode(items(1)).value(), 4).size(), 1);
        QCOMPARE(json::partsOf("[]", 4), QList<QByteArrayView>{QByteArrayView("")});
        QVERIFY(json::partsOf(encode(items(3)).value(), 4).size() <= 3);
    }

    void whatIsNoListHasNone()
    {
        for (const char* text : {"", "[", "]", "{}", " []", "[] ", "[1"})
            QVERIFY2(json::partsOf(text, 2).isEmpty(), text);
    }

    void aLongRegisterIsReadWhole()
    {
        const auto read = readEquipment(longRegister());
        QCOMPARE(read->records, items(2000));
        QVERIFY(!read->hasUnknownMembers);
    }

    void unknownMembersAreSeenInEveryPart()
    {
        const QByteArray json = longRegister();
        for (const char* name : {"\"name\":", "\"notes\":"}) {
            for (const qsizetype at : {json.indexOf(name), json.lastIndexOf(name)})
                QVERIFY(readEquipment(QByteArray(json).insert(at, "\"later\":1,"))->hasUnknownMembers);
        }
    }

    void anErrorIsThatOfTheWholeList()
    {
        const QByteArray json = longRegister();
        const QByteArray last = QByteArray(json).replace(json.lastIndexOf("\"name\":"), 6, "\"nome\"");
        QCOMPARE(readEquipment(last).error(), (JsonError{u"[1999].name"_s, u"the member is missing"_s}));
        QCOMPARE(decodeEquipment(last).error(), (JsonError{u"[1999].name"_s, u"the member is missing"_s}));
        QVERIFY(!readEquipment(json.chopped(1)));
        QVERIFY(!readEquipment(json + ']'));
        QVERIFY(!readEquipment(QByteArray(json).replace(json.size() / 4, 1, QByteArray(1, '\0'))));
        const qsizetype comma = json.indexOf("},{\"id\":", json.size() / 2) + 1;
        QVERIFY(!readEquipment(QByteArray(json).insert(comma, ',')));
        QVERIFY(!readEquipment(QByteArray(json).remove(comma, 1)));
        QVERIFY(!readEquipment(QByteArray(json).replace(comma, 1, "],[")));
    }

    void textsThatLookLikeTheEndOfAnItemAreTexts()
    {
        QList<Equipment> list = items(600);
        const QString trap = u"},{\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\",\"name\":\"\"}]"_s;
        for (Equipment& item : list) {
            item.notes = trap.repeated(5);
            for (Maintenance& record : item.maintenanceHistory)
                record.description = trap;
        }
        QCOMPARE(readEquipment(encode(list).value())->records, list);
    }

    void aTextWrittenByOthersIsReadToo()
    {
        // A member that holds what looks like two items makes the parts none, and is passed over.
        const QByteArray json = longRegister();
        const qsizetype at = json.indexOf("\"name\":", json.size() / 2);
        const QByteArray item = "{\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\",\"name\":\"\"}";
        const QByteArray trap = "\"others\":[" + QByteArray(item + ",").repeated(10'000) + item + "],";
        const auto read = readEquipment(QByteArray(json).insert(at, trap));
        QCOMPARE(read->records, items(2000));
        QVERIFY(read->hasUnknownMembers);
        QCOMPARE(readEquipment(QByteArray(json).replace("},{", "},\n  {"))->records, items(2000));
    }
};

ABISSORA_TEST(tst_RegisterParts);
#include "tst_RegisterParts.moc"
