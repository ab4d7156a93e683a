// SPDX-License-Identifier: MIT
#include "CsvText.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

/// "1:a|b 2:c|d", with the line of each row.
QString shown(const QList<csv::Row>& rows)
{
    QStringList texts;
    for (const csv::Row& row : rows)
        texts.append(QString::number(row.line) + u':' + row.cells.join(u'|'));
    return texts.join(u'#');
}

} // namespace

class tst_CsvText : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("rows");
        const auto add = [](const char* name, const QString& text, const QString& rows) {
            QTest::newRow(name) << text << rows;
        };
        add("nothing", {}, {});
        add("one line without an end", u"a;b"_s, u"1:a|b"_s);
        add("every line end, mixed", u"a\r\nb\nc\rd"_s, u"1:a#2:b#3:c#4:d"_s);
        add("a lone carriage return at the end", u"a\r"_s, u"1:a"_s);
        add("blank lines are counted and left out", u"\n\na;b\n\n;;\n  \nc"_s, u"3:a|b#7:c"_s);
        add("an empty cell at the end", u"a;"_s, u"1:a|"_s);
        add("an empty cell at the beginning", u";a"_s, u"1:|a"_s);
        add("outer blanks are no part of a cell", u"  a b \u00a0;\tc"_s, u"1:a b|c"_s);
        add("but of a quoted one", u"\"  a \";b"_s, u"1:  a |b"_s);
        add("blanks around the quotes", u" \"a\" ; \"b\"\t"_s, u"1:a|b"_s);
        add("quotes in quotes", u"\"a \"\"b\"\"\""_s, u"1:a \"b\""_s);
        add("an empty quoted cell", u"\"\";a"_s, u"1:|a"_s);
        add("quotes within a cell", u"12\" tubo;a"_s, u"1:12\" tubo|a"_s);
        add("separators and line ends in quotes", u"\"a;b\r\nc\nd\re\";f\ng"_s, u"1:a;b\r\nc\nd\re|f#5:g"_s);
        add("other separators", u"a,b|c\td;e"_s, u"1:a,b|c\td|e"_s);
    }

    void reads()
    {
        QFETCH(QString, text);
        const auto rows = csv::read(text, u';');
        QVERIFY2(rows, qPrintable(rows ? QString() : rows.error()));
        QTEST(shown(*rows), "rows");
        QCOMPARE(csv::readable(text, u';'), *rows);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("error");
        QTest::addColumn<qsizetype>("readable");
        const auto add = [](const char* name, const QString& text, const QString& error, qsizetype readable) {
            QTest::newRow(name) << text << error << readable;
        };
        add("quotes that do not end", u"a;b\nc;\"d\n\ne;f\n"_s,
            u"Riga 2, colonna 2: le virgolette aperte qui non si chiudono."_s, 1);
        add("text after quotes", u"a;\"b\"c"_s, u"Riga 1, colonna 2: dopo le virgolette chiuse c'è ancora del testo."_s,
            0);
        const QString null = u"c'è un carattere nullo: il file è danneggiato o non è un testo."_s;
        add("a NUL", u"a\nb;c"_s + QChar(QChar::Null) + u"d\n"_s, u"Riga 2, colonna 2: "_s + null, 1);
        add("a NUL in quotes", u"a\n\"b\n"_s + QChar(QChar::Null) + u"\""_s, u"Riga 3, colonna 1: "_s + null, 1);
        add("nothing but NUL", QString(1000, QChar(QChar::Null)), u"Riga 1, colonna 1: "_s + null, 0);
        add("too many columns", u"a\n"_s + QString(csv::mostColumns, u';'),
            u"Riga 2, colonna 201: le colonne sono più di 200."_s, 1);
        add("too many rows", u"a\n"_s.repeated(csv::mostRows + 1),
            u"Riga 200001, colonna 1: le righe sono più di 200000."_s, csv::mostRows);
        const QString wide = u"a"_s + QString(csv::mostColumns - 1, u';') + u'\n';
        const qsizetype fitting = csv::mostCells / csv::mostColumns;
        add("too many cells", wide.repeated(fitting + 1), u"Riga 15001, colonna 1: le celle sono più di 3000000."_s,
            fitting);
    }

    void refuses()
    {
        QFETCH(QString, text);
        const auto rows = csv::read(text, u';');
        QVERIFY(!rows);
        QTEST(rows.error(), "error");
        QTEST(csv::readable(text, u';').size(), "readable");
    }

    void asManyColumnsAsAllowed()
    {
        QCOMPARE(csv::read(u"a"_s + QString(csv::mostColumns - 1, u';'), u';')->first().cells.size(), csv::mostColumns);
    }

    void writes_data()
    {
        QTest::addColumn<QStringList>("cells");
        QTest::addColumn<QString>("line");
        QTest::newRow("plain") << QStringList{u"a"_s, u"b c"_s, {}} << u"a;b c;\r\n"_s;
        QTest::newRow("an empty first one") << QStringList{{}, {}, u"a"_s} << u";;a\r\n"_s;
        QTest::newRow("quotes") << QStringList{u"a \"b\""_s} << u"\"a \"\"b\"\"\"\r\n"_s;
        QTest::newRow("each separator") << QStringList{u"a;"_s, u"a,"_s, u"a|"_s, u"a\tb"_s}
                                        << u"\"a;\";\"a,\";\"a|\";\"a\tb\"\r\n"_s;
        QTest::newRow("line ends") << QStringList{u"a\nb"_s, u"a\rb"_s} << u"\"a\nb\";\"a\rb\"\r\n"_s;
        QTest::newRow("outer blanks") << QStringList{u" a"_s, u"a "_s} << u"\" a\";\"a \"\r\n"_s;
        QTest::newRow("a NUL") << QStringList{u"a"_s + QChar(QChar::Null) + u"b"_s} << u"ab\r\n"_s;
    }

    void writes()
    {
        QFETCH(QStringList, cells);
        const QString line = csv::line(cells, u';');
        QTEST(line, "line");
        for (QString& cell : cells)
            cell.remove(QChar(QChar::Null));
        QCOMPARE(csv::read(line, u';')->first().cells, cells);
    }

    void formulasAreDefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("defused");
        for (const QString& text : {u"=1+1"_s, u"+39 06"_s, u"-5"_s, u"@x"_s, u"\tx"_s, u"\rx"_s, u"\nx"_s, u"＝1"_s,
                                    u"＋1"_s, u"－1"_s, u"＠1"_s, u"'=1"_s, u"''@"_s})
            QTest::newRow(qPrintable(text)) << text << u'\'' + text;
        for (const QString& text : {u""_s, u"a=1"_s, u" =1"_s, u"'"_s, u"''"_s, u"'a"_s, u"'80 e '90"_s, u"1-2"_s})
            QTest::newRow(qPrintable(u"plain "_s + text)) << text << text;
    }

    void formulasAreDefused()
    {
        QFETCH(QString, text);
        QTEST(csv::defused(text), "defused");
        QCOMPARE(csv::restored(csv::defused(text)), text);
    }
};

ABISSORA_TEST(tst_CsvText);
#include "tst_CsvText.moc"
