// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_CommandLine : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void understood()
    {
        const auto parsed = CommandLine::parse({u"--data-dir"_s, u"d"_s, u"--snapshot=a.png"_s});
        QVERIFY(parsed.has_value());
        QCOMPARE(parsed->dataDir, u"d"_s);
        QCOMPARE(parsed->snapshot, u"a.png"_s);
        QVERIFY(!parsed->help && !parsed->version);
        QVERIFY(CommandLine::parse({u"-v"_s})->version);
        QVERIFY(CommandLine::parse({u"--help"_s})->help);
        QVERIFY(CommandLine::parse({}).has_value());
        const auto printed = CommandLine::parse({u"--print"_s, u"a.pdf"_s, u"--item"_s, u"GAV"_s});
        QCOMPARE(printed->command, Command::Print);
        QCOMPARE(printed->operand, u"a.pdf"_s);
        QCOMPARE(printed->item, u"GAV"_s);
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("unknown") << QStringList(u"--colour"_s) << u"Opzione sconosciuta: «colour»."_s;
        QTest::newRow("no value") << QStringList(u"--data-dir"_s)
                                  << u"A un'opzione manca il suo valore, o ne ha uno di troppo."_s;
        QTest::newRow("empty value") << QStringList(u"--data-dir="_s)
                                     << u"L'opzione «--data-dir» ha un valore vuoto."_s;
        QTest::newRow("item without print")
            << QStringList{u"--check"_s, u"--item=GAV"_s} << u"L'opzione «--item» va insieme a «--print»."_s;
        QTest::newRow("two commands") << QStringList{u"--due"_s, u"--export=a.csv"_s}
                                      << u"Due comandi insieme non si possono eseguire."_s;
        QTest::newRow("a command and a picture")
            << QStringList{u"--due"_s, u"--snapshot=a.png"_s} << u"Due comandi insieme non si possono eseguire."_s;
        QTest::newRow("two wishes") << QStringList{u"--new-item"_s, u"--show-due"_s}
                                    << u"Due comandi insieme non si possono eseguire."_s;
        QTest::newRow("a wish and a picture")
            << QStringList{u"--show-due"_s, u"--snapshot=a.png"_s} << u"Due comandi insieme non si possono eseguire."_s;
        QTest::newRow("a wish and a command")
            << QStringList{u"--new-item"_s, u"--check"_s} << u"Due comandi insieme non si possono eseguire."_s;
        QTest::newRow("a wish with a value")
            << QStringList{u"--new-item=GAV"_s} << u"A un'opzione manca il suo valore, o ne ha uno di troppo."_s;
        QTest::newRow("no file") << QStringList(u"--import"_s)
                                 << u"A un'opzione manca il suo valore, o ne ha uno di troppo."_s;
        QTest::newRow("an empty file") << QStringList{u"--export"_s, QString()}
                                       << u"L'opzione «--export» ha un valore vuoto."_s;
        QTest::newRow("yes to nothing") << QStringList{u"--yes"_s} << u"L'opzione «--yes» va insieme a «--import»."_s;
        QTest::newRow("yes to another") << QStringList{u"--export=a.csv"_s, u"--yes"_s}
                                        << u"L'opzione «--yes» va insieme a «--import»."_s;
        QTest::newRow("another's JSON") << QStringList{u"--check"_s, u"--json"_s}
                                        << u"L'opzione «--json» va insieme a «--due»."_s;
        QTest::newRow("a table of nothing")
            << QStringList{u"--what=articoli"_s} << u"L'opzione «--what» va insieme a «--export»."_s;
        QTest::newRow("an unknown table")
            << QStringList{u"--export=a.csv"_s, u"--what=tutto"_s} << u"«--what» vuole «articoli» o «manutenzioni»."_s;
        QTest::newRow("days in words") << QStringList{u"--due"_s, u"dieci"_s}
                                       << u"«dieci» non è un numero di giorni."_s;
        QTest::newRow("too many days") << QStringList{u"--due"_s, u"1000000"_s}
                                       << u"«1000000» non è un numero di giorni."_s;
        QTest::newRow("days twice") << QStringList{u"--due"_s, u"1"_s, u"2"_s} << u"Argomento inatteso: «2»."_s;
        QTest::newRow("days of another command") << QStringList{u"--check"_s, u"1"_s} << u"Argomento inatteso: «1»."_s;
        QTest::newRow("stray") << QStringList(u"registro"_s) << u"Argomento inatteso: «registro»."_s;
    }

    void errors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, sentence);
        const auto parsed = CommandLine::parse(arguments);
        QVERIFY(!parsed.has_value());
        QCOMPARE(parsed.error(), sentence);
    }

    void exchangeIsUnderstood()
    {
        const auto records = CommandLine::parse({u"--export"_s, u"a.csv"_s, u"--what"_s, u"manutenzioni"_s}).value();
        QCOMPARE(records.command, Command::Export);
        QCOMPARE(records.operand, u"a.csv"_s);
        QVERIFY(records.records);
        QVERIFY(!CommandLine::parse({u"--export=a.csv"_s, u"--what=articoli"_s})->records);
        QVERIFY(!CommandLine::parse({u"--export=a.csv"_s})->records);
        const auto stored = CommandLine::parse({u"--import=a.csv"_s, u"--yes"_s}).value();
        QCOMPARE(stored.command, Command::Import);
        QVERIFY(stored.yes);
        QVERIFY(!CommandLine::parse({u"--import=a.csv"_s})->yes);
        const auto due = CommandLine::parse({u"--due"_s, u"7"_s, u"--json"_s}).value();
        QCOMPARE(due.command, Command::Due);
        QCOMPARE(due.days, 7);
        QVERIFY(due.json);
        QCOMPARE(CommandLine::parse({u"--due"_s})->days, 30);
        QCOMPARE(CommandLine::parse({u"--due"_s, u"0"_s})->days, 0);
    }

    void wishesAreUnderstood()
    {
        QCOMPARE(CommandLine::parse({u"--new-item"_s})->wish, Wish::NewItem);
        QCOMPARE(CommandLine::parse({u"--show-due"_s})->wish, Wish::ShowDue);
        QVERIFY(!CommandLine::parse({})->wish);
        QVERIFY(!CommandLine::nameCommand({u"--new-item"_s, u"--show-due"_s})); // they need a screen
        for (const Wish wish : {Wish::NewItem, Wish::ShowDue})
            QCOMPARE(CommandLine::wishFor(CommandLine::wordFor(wish)), wish);
        for (const QString& word : {u"--new-item"_s, u"new-items"_s, u"check"_s, QString()})
            QVERIFY(!CommandLine::wishFor(word));
    }

    void helpNamesEveryOption()
    {
        for (const char* option :
             {"--data-dir", "--snapshot", "--version", "--help", "ABISSORA_DATA_DIR", "--export", "--what", "--import",
              "--yes", "--print", "--item", "--backup", "--due", "--json", "--check", "--restore", "--list-states"})
            QVERIFY(CommandLine::helpText().contains(QLatin1String(option)));
        QVERIFY(CommandLine::versionText().startsWith("Abissora "_L1));
    }
};

ABISSORA_TEST(tst_CommandLine);

#include "tst_CommandLine.moc"
