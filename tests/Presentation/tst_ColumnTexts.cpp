// SPDX-License-Identifier: MIT
#include "ColumnTexts.h"

#include "RegisterFixture.h"
#include "TestRunner.h"

using namespace abissora;
using namespace abissora::test;

class tst_ColumnTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ofAShortRegisterEveryTextCounts()
    {
        const RegisterFixture f;
        const QList<Equipment>& items = f.equipment.equipment();
        const ColumnTexts texts = ColumnTexts::of(items, {f.types, f.almanac});
        QCOMPARE(texts.names.size(), items.size());
        QCOMPARE(texts.dates.size(), items.size());
        QVERIFY(texts.names.contains(items.last().name));
        QVERIFY(texts.typeNames.contains(items.first().displayTypeName()));
        QVERIFY(texts.dates.contains(f.almanac.dates.longDate(items.first().nextServiceDate)));
        QVERIFY(texts.abbreviatedDates.contains(f.almanac.dates.abbreviatedDate(items.first().nextServiceDate)));
    }

    void ofALongRegisterTheLongestCountAndAllMonths()
    {
        const RegisterFixture f;
        QList<Equipment> items;
        for (int i = 0; i < 10'000; ++i)
            items.append(makeItem(i, u"Pinne"_s, EquipmentType::fins, f.inDays(1)));
        items[7'777].name = u"Un nome più lungo di tutti gli altri"_s;
        items[7'777].brand = u"Marca lunga"_s;
        const ColumnTexts texts = ColumnTexts::of(items, {f.types, f.almanac});
        QVERIFY(texts.names.contains(items.at(7'777).name));
        QVERIFY(texts.brands.contains(items.at(7'777).brand));
        for (const QStringList& list : {texts.names, texts.typeNames, texts.brands, texts.models, texts.dates})
            QVERIFY(list.size() <= ColumnTexts::mostTexts);
        QCOMPARE(texts.dates.filter(u"settembre"_s).size(), 1);
        QCOMPARE(texts.dates.size(), 12);
    }

    void theLongestAreKeptEachOnceWhereverTheyStand()
    {
        const RegisterFixture f;
        QList<Equipment> items;
        QStringList names;
        for (int i = 0; i < 300; ++i) {
            const int length = (i * 7) % 100; // each of a hundred lengths three times, two of them the same name
            items.append(makeItem(i, QString(length, i < 200 ? u'a' : u'b'), EquipmentType::fins, f.inDays(1)));
        }
        for (int length = 99; length >= 84; --length)
            names += {QString(length, u'a'), QString(length, u'b')};
        const QStringList kept = ColumnTexts::of(items, {f.types, f.almanac}).names;
        QCOMPARE(kept.size(), ColumnTexts::mostTexts);
        QCOMPARE(QSet(kept.begin(), kept.end()), QSet(names.begin(), names.end()));
    }

    void nothingHasNoTexts()
    {
        const RegisterFixture f;
        QVERIFY(ColumnTexts::of({}, {f.types, f.almanac}).names.isEmpty());
    }
};

ABISSORA_TEST(tst_ColumnTexts);

#include "tst_ColumnTexts.moc"
