// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "EquipmentEncoder.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>
#include <random>

using namespace abissora;

namespace {

using Random = std::mt19937;

qsizetype upTo(Random& random, qsizetype most)
{
    return std::uniform_int_distribution<qsizetype>(0, most)(random);
}

Equipment anyItem(Random& random)
{
    static const QStringList names{u""_s, u"Bombola"_s, u"Muta \"stagna\" è\n\\"_s, u"Ω"_s.repeated(40)};
    static int next = 1;
    Equipment item = test::equipment(next++, names.at(upTo(random, names.size() - 1)));
    for (qsizetype i = upTo(random, 3); i > 0; --i)
        item.maintenanceHistory.append(test::maintenance(next++));
    return item;
}

/// What a person, an import or a restoration may do to a list.
void change(QList<Equipment>& items, Random& random)
{
    const qsizetype at = upTo(random, std::max<qsizetype>(0, items.size() - 1));
    switch (items.isEmpty() ? 1 : upTo(random, 8)) {
    case 0:
        items.insert(at, anyItem(random));
        break;
    case 1:
        items.append(anyItem(random));
        break;
    case 2:
        items.removeAt(at);
        break;
    case 3:
        items[at] = anyItem(random);
        break;
    case 4:
        items[at].name += u"é"_s;
        break;
    case 5:
        items.swapItemsAt(at, 0);
        break;
    case 6:
        for (qsizetype i = upTo(random, 5); i > 0; --i)
            items.append(anyItem(random));
        break;
    case 7:
        items.remove(at, upTo(random, std::min<qsizetype>(6, items.size() - at)));
        break;
    default:
        items[at].notes = items.at(at).notes; // nothing
    }
}

} // namespace

class tst_EquipmentEncoder : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whateverChangesTheTextIsTheWholeListS()
    {
        Random random(7);
        EquipmentEncoder encoder;
        QList<Equipment> items;
        for (int step = 0; step < 3000; ++step) {
            QCOMPARE(encoder.encode(items).value(), encode(items).value());
            change(items, random);
        }
        QCOMPARE(encoder.encode({}).value(), QByteArray("[]"));
    }

    void aSignOfZeroIsAChange()
    {
        Maintenance record = test::maintenance(2);
        record.cost = 0;
        QList<Equipment> items{test::equipmentWith(1, {record})};
        EquipmentEncoder encoder;
        QVERIFY(encoder.encode(items));
        items[0].maintenanceHistory[0].cost = -0.0;
        QCOMPARE(encoder.encode(items).value(), encode(items).value());
    }

    void anErrorNamesThePlaceAndChangesNothing()
    {
        QList<Equipment> items{test::equipment(1), test::equipment(2), test::equipment(3)};
        EquipmentEncoder encoder;
        QVERIFY(encoder.encode(items));
        items[0].name = u"Altro"_s;
        items[1].purchaseDate = Instant::max();
        QCOMPARE(encoder.encode(items).error(), encode(items).error());
        QCOMPARE(encoder.encode(items).error().path, u"[1].purchaseDate"_s);
        items[1].purchaseDate = {};
        QCOMPARE(encoder.encode(items).value(), encode(items).value());
    }

    void whatWasGivenOutStaysAsItWas()
    {
        QList<Equipment> items{test::equipment(1), test::equipment(2)};
        EquipmentEncoder encoder;
        const QByteArray first = encoder.encode(items).value();
        const QByteArray expected = encode(items).value();
        items.removeFirst();
        QVERIFY(encoder.encode(items));
        QCOMPARE(first, expected);
    }
};

ABISSORA_TEST(tst_EquipmentEncoder);
#include "tst_EquipmentEncoder.moc"
