// SPDX-License-Identifier: MIT
#include "ImportSource.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TestRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

using namespace abissora;

namespace {

/// "; Nome|Marca 2:a|b 3:c|d"
QString shown(const ImportedTable& table)
{
    QString text = table.separator + u' ' + table.headings.cells.join(u'|');
    for (const csv::Row& row : table.rows)
        text += u' ' + QString::number(row.line) + u':' + row.cells.join(u'|');
    return text;
}

/// Notes of many lines, which a sample of the text cuts.
QByteArray longNotes()
{
    QByteArray text("Nome,Marca,Note\n");
    for (int row = 0; row < 4; ++row)
        text += "a,b,\"" + QByteArray("Riga; di nota\n").repeated(1000) + "\"\n";
    return text;
}

QByteArray registerText(std::int64_t version, const QByteArray& rest)
{
    return "{\"format\":\"abissora-register\",\"version\":" + QByteArray::number(qint64(version)) + rest + '}';
}

} // namespace

class tst_ImportSource : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tables_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("table");
        const auto add = [](const char* name, const QByteArray& text, const QString& table) {
            QTest::newRow(name) << text << table;
        };
        add("semicolons", "Nome;Marca\na;b\n", u"; Nome|Marca 2:a|b"_s);
        add("commas", "Nome,Marca\na,b\n", u", Nome|Marca 2:a|b"_s);
        add("tabs", "Nome\tMarca\na\tb\n", u"\t Nome|Marca 2:a|b"_s);
        add("bars", "Nome|Marca\na|b\n", u"| Nome|Marca 2:a|b"_s);
        add("one column", "Nome\na, b e c\n", u"; Nome 2:a, b e c"_s);
        add("one row with amounts", "Articolo;Data;Costo\na;2026-01-02;1,50\n",
            u"; Articolo|Data|Costo 2:a|2026-01-02|1,50"_s);
        add("other separators in every row", "Nome,Note\na,\"b;c;d\"\ne,\"f;g;h\"\n",
            u", Nome|Note 2:a|b;c;d 3:e|f;g;h"_s);
        add("unknown headings", "Rosso,Verde\na,b\n", u", Rosso|Verde 2:a|b"_s);
        add("blank columns at the right", "Nome;;\na\n", u"; Nome 2:a"_s);
        add("sep=", "sep=,\r\nNome,Marca\r\na,b\r\n", u", Nome|Marca 3:a|b"_s);
        add("sep= in quotes, other case", "\"SEP=;\"\nNome;Marca\na;b\n", u"; Nome|Marca 3:a|b"_s);
        add("sep= before a lone CR", "sep=;\rNome;Marca\ra;b\r", u"; Nome|Marca 3:a|b"_s);
        add("sep= a tab", "sep=\t\nNome\tMarca\na\tb\n", u"\t Nome|Marca 3:a|b"_s);
        add("sep= padded by a spreadsheet", "sep=;;;\nNome;Marca\na;b\n", u"; Nome|Marca 3:a|b"_s);
        add("sep= one of its own", "sep=^\nNome^Marca\na^b\n", u"^ Nome|Marca 3:a|b"_s);
        add("blank rows and columns", "\n;;\nNome;;Marca;;\n;;;;\na;;b;;\n;;;\n", u"; Nome||Marca 5:a||b"_s);
        add("short rows", "Nome;Marca;Modello\na\nb;c\n", u"; Nome|Marca|Modello 2:a|| 3:b|c|"_s);
        add("mixed line ends", "Nome;Marca\ra;b\r\nc;d\ne;f", u"; Nome|Marca 2:a|b 3:c|d 4:e|f"_s);
        add("a byte order mark", "\xEF\xBB\xBFNome;Marca\na;b\n", u"; Nome|Marca 2:a|b"_s);
        add("a heading in brackets", "\"[Nome]\";Marca\na;b\n", u"; [Nome]|Marca 2:a|b"_s);
    }

    void tables()
    {
        QFETCH(QByteArray, text);
        const auto source = parseImport(u"a.csv"_s, text);
        QVERIFY2(source, qPrintable(source ? QString() : source.error()));
        const auto* table = std::get_if<ImportedTable>(&source->content);
        QVERIFY(table != nullptr);
        QTEST(shown(*table), "table");
        QCOMPARE(source->fileName, u"a.csv"_s);
    }

    void aLongTextIsCutWithinQuotes()
    {
        const auto source = parseImport(u"a.csv"_s, longNotes());
        const auto& table = std::get<ImportedTable>(source.value().content);
        QCOMPARE(table.separator, u',');
        QCOMPARE(table.rows.size(), 4);
        QCOMPARE(table.rows.last().line, 2 + 3 * 1001);
    }

    void quotesThatDoNotEndAreToldWhereTheyStand()
    {
        QCOMPARE(parseImport({}, "Nome,Marca,Note\na,b,c\nd,\"e,f\ng,h,i\n").error(),
                 u"Riga 3, colonna 2: le virgolette aperte qui non si chiudono."_s);
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error"); ///< how it begins
        const auto add = [](const char* name, const QByteArray& text, const QString& error) {
            QTest::newRow(name) << text << error;
        };
        add("nothing", {}, u"Il file è vuoto."_s);
        add("headings alone", "Nome;Marca\n", u"Nel file non ci sono righe sotto le intestazioni."_s);
        add("a cell beside the headings", "Nome;Marca\na;b\nc;d;;e\n",
            u"Riga 3, colonna 4: questa cella non ha un'intestazione."_s);
        add("10,000 columns", "Nome" + QByteArray(9'999, ';') + "\na\n",
            u"Riga 1, colonna 201: le colonne sono più di 200."_s);
        add("10,000 columns with commas", "Nome" + QByteArray(9'999, ',') + "\na\n",
            u"Riga 1, colonna 201: le colonne sono più di 200."_s);
        QByteArray wide("a");
        for (int column = 1; column < csv::mostColumns; ++column)
            wide += ";b";
        add("few cells that become many", wide + '\n' + QByteArray("a\n").repeated(20'000),
            u"Il file è troppo grande: più di 3000000 celle."_s);
        add("a NUL", QByteArray("Nome;Marca\na;\0\n", 14), u"Riga 2, colonna 2: c'è un carattere nullo"_s);
        add("a PDF", "%PDF-1.4", u"Il file non è una tabella"_s);
        add("nested brackets", QByteArray(100'000, '['),
            u"Il file non è un registro che si possa leggere: parse error"_s);
        add("nested brackets in a register", registerText(1, ",\"x\":" + QByteArray(100'000, '[')),
            u"Il file non è un registro che si possa leggere: parse error"_s);
        add("invalid UTF-8", registerText(1, ",\"program\":\"\xFF\""),
            u"Il file non è un registro che si possa leggere: parse error"_s);
        add("another object", "{\"a\":1}", u"Il file non è un registro che si possa leggere: "_s);
        add("another format", "{\"format\":\"x\",\"version\":1}", u"Il file non è un registro di Abissora."_s);
        add("a version there never was", registerText(0, {}), u"Il file non è un registro di Abissora."_s);
        add("other objects in a list", "[{\"a\":1}]", u"Il file non è un registro che si possa leggere: [0]"_s);
        add("a register without its lists", registerText(1, {}), u"Il file non è un registro che si possa leggere: "_s);
        add("a newer register", registerText(2, ",\"program\":\"9.0\",\"savedEquipment\":5"),
            u"Il registro è stato scritto da una versione più recente di Abissora (9.0)."_s);
        add("a newer register of nobody", registerText(2, {}),
            u"Il registro è stato scritto da una versione più recente di Abissora (?)."_s);
        add("a newer register with hostile words",
            registerText(2, ",\"program\":\"a\\n\\u001b[31m" + QByteArray(1000, 'x') + "\""),
            u"Il registro è stato scritto da una versione più recente di Abissora (a [31mxxxx"_s);
    }

    void refuses()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, error);
        const auto source = parseImport(u"a.csv"_s, text);
        QVERIFY(!source);
        QVERIFY2(source.error().startsWith(error), qPrintable(source.error()));
        QVERIFY2(source.error().size() < 300 && !source.error().contains(u'\n') && !source.error().contains(u'\x1b'),
                 qPrintable(source.error()));
    }

    void registers_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray members(",\"program\":\"1\",\"exported\":\"2026-01-01T00:00:00Z\",\"equipmentTypes\":[],"
                                 "\"savedEquipment\":[]");
        QTest::newRow("plain") << registerText(1, members);
        QTest::newRow("unknown members") << registerText(1, members + ",\"more\":[1]");
        QTest::newRow("after blanks and a mark") << "\xEF\xBB\xBF" + QByteArray(100, '\n') + registerText(1, members);
        QTest::newRow("the stored list") << QByteArray("[]");
    }

    void registers()
    {
        QFETCH(QByteArray, text);
        const auto source = parseImport(u"a.json"_s, text);
        QVERIFY2(source, qPrintable(source ? QString() : source.error()));
        QVERIFY(std::holds_alternative<RegisterDocument>(source->content));
    }

    void files_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a device without an end") << u"/dev/zero"_s << u"Invalid argument"_s;
        QTest::newRow("a device without bytes") << u"/dev/null"_s << u"Invalid argument"_s;
        QTest::newRow("a folder") << u"/"_s << u"Is a directory"_s;
        QTest::newRow("none") << u"/nowhere/a.csv"_s << u"No such file or directory"_s;
    }

    void files()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        QCOMPARE(readImport(path).error(), u"Il file «%1» non si può leggere: %2."_s.arg(path, reason));
    }

    void aPipeHoldsNobody()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"pipe.csv"_s);
        QCOMPARE(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
        QVERIFY(readImport(path).error().endsWith(u": Invalid argument."_s));
    }

    void aFileIsReadUpToASize()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"a.csv"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("Nome\na\n") == 7 && file.flush());
        QCOMPARE(readImport(file.fileName())->fileName, u"a.csv"_s);
        QVERIFY(file.resize(largestImport + 1)); // takes no space
        QCOMPARE(readImport(file.fileName()).error(), u"Il file è troppo grande: più di 64 MB."_s);
        QVERIFY(file.resize(largestImport));
        QVERIFY(readImport(file.fileName()).error().startsWith(u"Riga 3, colonna 1: c'è un carattere nullo"_s));
    }
};

ABISSORA_TEST(tst_ImportSource);
#include "tst_ImportSource.moc"
