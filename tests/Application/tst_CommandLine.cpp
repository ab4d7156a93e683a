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

    void helpNamesEveryOption()
    {
        for (const char* option :
             {"--data-dir", "--snapshot", "--version", "--help", "--print", "--item", "ABISSORA_DATA_DIR"})
            QVERIFY(CommandLine::helpText().contains(QLatin1String(option)));
        QVERIFY(CommandLine::versionText().startsWith("Abissora "_L1));
    }
};

ABISSORA_TEST(tst_CommandLine);

#include "tst_CommandLine.moc"
