// SPDX-License-Identifier: MIT
#include "HelpIndex.h"
#include "HelpLoader.h"
#include "HelpParts.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_HelpIndex : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void theFirstSectionIsChosenAtTheStart();
    void anEmptyGuideChoosesNothing();
    void aMatchingSectionStaysChosen();
    void anotherGivesWayToTheFirstMatch();
    void nothingFoundChoosesNothingAndStaysSo();
    void theSearchIsKeptAsItWasTyped();
};

void tst_HelpIndex::finds_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("titles");
    const auto row = [](const char* name, const QString& search, const QStringList& titles) {
        QTest::newRow(name) << search << titles;
    };
    const QString start = u"Primi passi"_s;
    const QString maintenance = u"Manutenzioni"_s;
    const QString types = u"Tipologie e qualità"_s;
    const QStringList all{start, maintenance, types};
    row("nothing typed", {}, all);
    row("blanks only", u"   "_s, all);
    row("blanks, tabs and newlines only", u" \t\n\u2028 "_s, all);
    row("another letter case", u"MANUTENZIONE"_s, {start, maintenance});
    row("blanks at the ends", u"  \tscontrino\n"_s, {maintenance});
    row("a blank inside", u"primi passi"_s, {start});
    row("two blanks inside", u"primi  passi"_s, {});
    row("the body", u"intervallo"_s, {types});
    row("across lines", u"uno\ndue"_s, {start});
    row("an accent typed", u"QUALITÀ"_s, {types});
    row("an accent left out", u"qualita"_s, {});
    row("an accent too much", u"scontrìno"_s, {});
    row("an accent typed apart", u"qualita\u0300"_s, {types});
    row("three number signs", u"###"_s, {maintenance});
    row("two asterisks", u"**"_s, {types});
    row("nothing", u"rebreather"_s, {});
    row("ids are not searched", u"sezione"_s, {});
}

void tst_HelpIndex::finds()
{
    QFETCH(const QString, search);
    QFETCH(const QStringList, titles);
    HelpIndex index(test::threeSections());
    index.setSearchText(search);
    QStringList found;
    for (const HelpSection& section : index.filteredSections())
        found.append(section.title);
    QCOMPARE(found, titles);
}

void tst_HelpIndex::theFirstSectionIsChosenAtTheStart()
{
    const HelpIndex index(test::threeSections());
    QCOMPARE(index.selection(), u"sezione-0"_s);
    QCOMPARE(index.selectedSection()->title, u"Primi passi"_s);
    QVERIFY(index.searchText().isEmpty());
}

void tst_HelpIndex::anEmptyGuideChoosesNothing()
{
    HelpIndex index({});
    QVERIFY(!index.selection());
    QVERIFY(!index.selectedSection());
    index.setSearchText(u"a"_s);
    index.setSearchText({});
    QVERIFY(!index.selection());
}

void tst_HelpIndex::aMatchingSectionStaysChosen()
{
    HelpIndex index(test::threeSections());
    index.select(u"sezione-1"_s);
    index.setSearchText(u"manutenzione"_s);
    QCOMPARE(index.filteredSections().size(), qsizetype(2));
    QCOMPARE(index.selection(), u"sezione-1"_s);
}

void tst_HelpIndex::anotherGivesWayToTheFirstMatch()
{
    HelpIndex index(test::threeSections());
    index.select(u"sezione-2"_s);
    index.setSearchText(u"manutenzione"_s);
    QCOMPARE(index.selection(), u"sezione-0"_s);
    index.setSearchText(u"scontrino"_s);
    QCOMPARE(index.selection(), u"sezione-1"_s);
    index.setSearchText({});
    QCOMPARE(index.selection(), u"sezione-1"_s);
}

void tst_HelpIndex::nothingFoundChoosesNothingAndStaysSo()
{
    HelpIndex index(test::threeSections());
    index.setSearchText(u"rebreather"_s);
    QVERIFY(!index.selection());
    index.setSearchText(u"scontrino"_s);
    QVERIFY(!index.selection());
    index.setSearchText({});
    QVERIFY(!index.selection());
    index.select(u"sezione-2"_s);
    QCOMPARE(index.selectedSection()->title, u"Tipologie e qualità"_s);
}

void tst_HelpIndex::theSearchIsKeptAsItWasTyped()
{
    HelpIndex index(test::threeSections());
    index.setSearchText(u"  gav "_s);
    QCOMPARE(index.searchText(), u"  gav "_s);
}

ABISSORA_TEST(tst_HelpIndex);
#include "tst_HelpIndex.moc"
