// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "PresentItems.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

Equipment told(const QString& text)
{
    const QStringList parts = text.split(u'|');
    Equipment item;
    item.name = parts.at(0);
    item.brand = parts.at(1);
    item.model = parts.at(2);
    item.serialNumber = parts.at(3);
    return item;
}

} // namespace

class tst_PresentItems : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<bool>("contained");
        QTest::addColumn<QList<qsizetype>>("found");
        using Places = QList<qsizetype>;
        const auto add = [](const char* name, const QString& row, bool contained, const Places& found) {
            QTest::newRow(name) << row << contained << found;
        };
        add("by the serial number alone", u"Altro|||sn  1"_s, true, Places{0});
        add("by its make", u"GAV|Mares|Hybrid|"_s, true, Places{3});
        add("in other letters and blanks", u" gav |MARES|hybrid |"_s, true, Places{3});
        add("the make of a numbered one", u"Bombola|Faber|12L|"_s, true, Places{0, 1});
        add("without a brand", u"GAV|||"_s, false, Places{3});
        add("without a model", u"Bombola|Faber||"_s, false, Places{0, 1, 2});
        add("another brand", u"GAV|Cressi|Hybrid|"_s, false, Places{});
        add("another number of the same make", u"Bombola|Faber|12L|SN 9"_s, true, Places{});
        add("a number where the register has none", u"GAV|Mares|Hybrid|SN 9"_s, true, Places{3});
        add("of several the one without a number", u"Maschera|Mares||"_s, true, Places{5});
        add("several without a number", u"Pinne|||"_s, true, Places{6, 7});
        add("nothing at all", u"|||"_s, false, Places{});
    }

    void finds()
    {
        QFETCH(QString, row);
        QList<Equipment> items;
        for (const QString& text :
             {u"Bombola|Faber|12L|SN 1"_s, u"Bombola|Faber|12L|SN 2"_s, u"Bombola|Faber|15L|SN 3"_s,
              u"GAV|Mares|Hybrid|"_s, u"Maschera|Mares||SN 4"_s, u"Maschera|Mares||"_s, u"Pinne|||"_s, u"Pinne|||"_s})
            items.append(told(text));
        const PresentItems present(items);
        QTEST(present.contains(told(row)), "contained");
        QTEST(present.find(told(row)), "found");
    }
};

ABISSORA_TEST(tst_PresentItems);
#include "tst_PresentItems.moc"
