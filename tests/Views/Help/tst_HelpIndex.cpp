// SPDX-License-Identifier: MIT
#include "HelpIndex.h"
#include "HelpLoader.h"
#include "HelpParts.h"
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
    const QString start = QStringLiteral("Primi passi");
    const QString maintenance = QStringLiteral("Manutenzioni");
    const QString types = QStringLiteral("Tipologie e qualità");
    const QStringList all{start, maintenance, types};
    row("nothing typed", {}, all);
    row("blanks only", QStringLiteral("   "), all);
    row("blanks, tabs and newlines only", QStringLiteral(" \t\n\u2028 "), all);
    row("another letter case", QStringLiteral("MANUTENZIONE"), {start, maintenance});
    row("blanks at the ends", QStringLiteral("  \tscontrino\n"), {maintenance});
    row("a blank inside", QStringLiteral("primi passi"), {start});
    row("two blanks inside", QStringLiteral("primi  passi"), {});
    row("the body", QStringLiteral("intervallo"), {types});
    row("across lines", QStringLiteral("uno\ndue"), {start});
    row("an accent typed", QStringLiteral("QUALITÀ"), {types});
    row("an accent left out", QStringLiteral("qualita"), {});
    row("an accent too much", QStringLiteral("scontrìno"), {});
    row("an accent typed apart", QStringLiteral("qualita\u0300"), {types});
    row("three number signs", QStringLiteral("###"), {maintenance});
    row("two asterisks", QStringLiteral("**"), {types});
    row("nothing", QStringLiteral("rebreather"), {});
    row("ids are not searched", QStringLiteral("sezione"), {});
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
    QCOMPARE(index.selection(), QStringLiteral("sezione-0"));
    QCOMPARE(index.selectedSection()->title, QStringLiteral("Primi passi"));
    QVERIFY(index.searchText().isEmpty());
}

void tst_HelpIndex::anEmptyGuideChoosesNothing()
{
    HelpIndex index({});
    QVERIFY(!index.selection());
    QVERIFY(!index.selectedSection());
    index.setSearchText(QStringLiteral("a"));
    index.setSearchText({});
    QVERIFY(!index.selection());
}

void tst_HelpIndex::aMatchingSectionStaysChosen()
{
    HelpIndex index(test::threeSections());
    index.select(QStringLiteral("sezione-1"));
    index.setSearchText(QStringLiteral("manutenzione"));
    QCOMPARE(index.filteredSections().size(), qsizetype(2));
    QCOMPARE(index.selection(), QStringLiteral("sezione-1"));
}

void tst_HelpIndex::anotherGivesWayToTheFirstMatch()
{
    HelpIndex index(test::threeSections());
    index.select(QStringLiteral("sezione-2"));
    index.setSearchText(QStringLiteral("manutenzione"));
    QCOMPARE(index.selection(), QStringLiteral("sezione-0"));
    index.setSearchText(QStringLiteral("scontrino"));
    QCOMPARE(index.selection(), QStringLiteral("sezione-1"));
    index.setSearchText({});
    QCOMPARE(index.selection(), QStringLiteral("sezione-1"));
}

void tst_HelpIndex::nothingFoundChoosesNothingAndStaysSo()
{
    HelpIndex index(test::threeSections());
    index.setSearchText(QStringLiteral("rebreather"));
    QVERIFY(!index.selection());
    index.setSearchText(QStringLiteral("scontrino"));
    QVERIFY(!index.selection());
    index.setSearchText({});
    QVERIFY(!index.selection());
    index.select(QStringLiteral("sezione-2"));
    QCOMPARE(index.selectedSection()->title, QStringLiteral("Tipologie e qualità"));
}

void tst_HelpIndex::theSearchIsKeptAsItWasTyped()
{
    HelpIndex index(test::threeSections());
    index.setSearchText(QStringLiteral("  gav "));
    QCOMPARE(index.searchText(), QStringLiteral("  gav "));
}

ABISSORA_TEST(tst_HelpIndex);
#include "tst_HelpIndex.moc"
