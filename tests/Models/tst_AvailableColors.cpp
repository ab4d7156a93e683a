// SPDX-License-Identifier: MIT
#include "AvailableColors.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

struct Row
{
    AvailableColors color;
    QStringView label;
    QStringView word;
    NamedColor value;
};

constexpr std::array table{
    Row{AvailableColors::blue, u"Blu", u"blue", NamedColor::blue},
    Row{AvailableColors::red, u"Rosso", u"red", NamedColor::red},
    Row{AvailableColors::green, u"Verde", u"green", NamedColor::green},
    Row{AvailableColors::orange, u"Arancione", u"orange", NamedColor::orange},
    Row{AvailableColors::purple, u"Viola", u"purple", NamedColor::purple},
    Row{AvailableColors::gray, u"Grigio", u"gray", NamedColor::gray},
    Row{AvailableColors::cyan, u"Ciano", u"cyan", NamedColor::cyan},
    Row{AvailableColors::indigo, u"Indaco", u"indigo", NamedColor::indigo},
    Row{AvailableColors::pink, u"Rosa", u"pink", NamedColor::pink},
    Row{AvailableColors::yellow, u"Giallo", u"yellow", NamedColor::yellow},
    Row{AvailableColors::teal, u"Verde Acqua", u"teal", NamedColor::teal},
    Row{AvailableColors::mint, u"Menta", u"mint", NamedColor::mint},
    Row{AvailableColors::brown, u"Marrone", u"brown", NamedColor::brown},
};

} // namespace

class tst_AvailableColors : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thirteenColours()
    {
        constexpr auto colors = allCases<AvailableColors>();
        QCOMPARE(colors.size(), table.size());
        for (std::size_t i = 0; i < table.size(); ++i) {
            QCOMPARE(colors[i], table[i].color);
            QCOMPARE(rawValue(colors[i]), table[i].label.toString());
            QCOMPARE(caseName(colors[i]), table[i].word.toString());
            QCOMPARE(colorValue(colors[i]), table[i].value);
            QVERIFY(fromRawValue<AvailableColors>(table[i].label) == colors[i]);
            QVERIFY(availableColorNamed(table[i].word) == colors[i]);
        }
    }

    void wordsAreNotLabels()
    {
        QVERIFY(!availableColorNamed(u"Blu"));
        QVERIFY(!availableColorNamed(u"Blue"));
        QVERIFY(!availableColorNamed(u""));
        QVERIFY(!fromRawValue<AvailableColors>(u"blue"));
        QVERIFY(!fromRawValue<AvailableColors>(u"verde acqua"));
    }
};

ABISSORA_TEST(tst_AvailableColors);
#include "tst_AvailableColors.moc"
