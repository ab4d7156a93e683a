// SPDX-License-Identifier: MIT
#include "AvailableColors.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QSet>
#include <QTest>

using namespace abissora;

class tst_AvailableColors : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Records keep these words.
    void storedWords()
    {
        QStringList words;
        for (const auto color : allCases<AvailableColors>())
            words.append(caseName(color));
        QCOMPARE(words.join(u' '), u"blue red green orange purple gray cyan indigo pink yellow teal mint brown"_s);
        QCOMPARE(caseName(AvailableColors::teal), u"teal"_s);
    }

    void everyColourIsItself()
    {
        QSet<QString> labels;
        QSet<NamedColor> values;
        for (const auto color : allCases<AvailableColors>()) {
            QVERIFY(availableColorNamed(caseName(color)) == color);
            QVERIFY(fromRawValue<AvailableColors>(rawValue(color)) == color);
            // Both enumerations begin with the same colours.
            QCOMPARE(static_cast<int>(colorValue(color)), static_cast<int>(color));
            labels.insert(rawValue(color));
            values.insert(colorValue(color));
        }
        QCOMPARE(labels.size(), 13);
        QCOMPARE(values.size(), 13);
        QCOMPARE(rawValue(AvailableColors::blue), u"Blu"_s);
        QCOMPARE(rawValue(AvailableColors::teal), u"Verde Acqua"_s);
        QCOMPARE(colorValue(AvailableColors::brown), NamedColor::brown);
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
