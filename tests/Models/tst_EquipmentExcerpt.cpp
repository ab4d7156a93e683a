// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "EquipmentExcerpt.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>
#include <algorithm>

using namespace abissora;

namespace {

QList<Equipment> threeItems()
{
    return {test::equipment(1), test::equipment(2), test::equipment(3)};
}

} // namespace

class tst_EquipmentExcerpt : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingHasNoItems()
    {
        const EquipmentExcerpt excerpt;
        QVERIFY(excerpt.isEmpty());
        QCOMPARE(excerpt.size(), 0);
        QVERIFY(excerpt.begin() == excerpt.end());
        QCOMPARE(excerpt, EquipmentExcerpt(QList<Equipment>()));
        QCOMPARE(excerpt, EquipmentExcerpt(threeItems(), {}));
    }

    void allItemsInTheirOrder()
    {
        const QList<Equipment> items = threeItems();
        const EquipmentExcerpt excerpt = items;
        QCOMPARE(excerpt.size(), 3);
        QVERIFY(!excerpt.isEmpty());
        QVERIFY(std::ranges::equal(excerpt, items));
    }

    void someItemsInAnOrderOfTheirOwn()
    {
        const QList<Equipment> items = threeItems();
        const EquipmentExcerpt excerpt(items, {2, 0});
        QCOMPARE(excerpt.size(), 2);
        QCOMPARE(excerpt.at(0), items.at(2));
        QCOMPARE(excerpt.at(1), items.at(0));
        QCOMPARE(excerpt.first(), items.at(2));
        QCOMPARE(std::ranges::count(excerpt, items.at(0).id, &Equipment::id), 1);
        QCOMPARE(std::ranges::count(excerpt, items.at(1).id, &Equipment::id), 0);
    }

    void itemsAreShared()
    {
        const QList<Equipment> items = threeItems();
        const EquipmentExcerpt excerpt(items, {1});
        QCOMPARE(&excerpt.first(), &items.at(1));
        const EquipmentExcerpt copy = excerpt;
        QCOMPARE(&copy.first(), &items.at(1));
    }

    void whatBecomesOfTheRegisterChangesNothing()
    {
        QList<Equipment> items = threeItems();
        const QList<Equipment> before = threeItems();
        EquipmentExcerpt excerpt(items, {2, 1});
        items[2].name = u"Altro nome"_s;
        items.removeAt(1);
        QCOMPARE(excerpt.at(0), before.at(2));
        QCOMPARE(excerpt.at(1), before.at(1));
        items.clear();
        const EquipmentExcerpt copy = std::exchange(excerpt, {});
        QCOMPARE(copy.at(1), before.at(1));
        QVERIFY(excerpt.isEmpty());
    }

    void equalItemsMakeEqualExcerpts()
    {
        QList<Equipment> items = threeItems();
        const EquipmentExcerpt excerpt(items, {0, 2});
        QVERIFY(excerpt == EquipmentExcerpt({items.at(0), items.at(2)}));
        QVERIFY(!(excerpt == EquipmentExcerpt(items, {2, 0})));
        QVERIFY(!(excerpt == EquipmentExcerpt(items, {0})));
        items[2].notes += u" e altro"_s;
        QVERIFY(!(excerpt == EquipmentExcerpt(items, {0, 2})));
    }
};

ABISSORA_TEST(tst_EquipmentExcerpt);

#include "tst_EquipmentExcerpt.moc"
