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
        for (const char* option : {"--data-dir", "--snapshot", "--version", "--help", "ABISSORA_DATA_DIR"})
            QVERIFY(CommandLine::helpText().contains(QLatin1String(option)));
        QVERIFY(CommandLine::versionText().startsWith("Abissora "_L1));
    }
};

ABISSORA_TEST(tst_CommandLine);

#include "tst_CommandLine.moc"
