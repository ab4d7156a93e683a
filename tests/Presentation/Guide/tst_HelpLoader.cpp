// SPDX-License-Identifier: MIT
#include "HelpLoader.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace abissora;

namespace {

/// id, title and body of each section.
QStringList described(const QList<HelpSection>& sections)
{
    QStringList all;
    for (const HelpSection& section : sections)
        all.append(QStringList{section.id, section.title, section.body}.join(u'|'));
    return all;
}

} // namespace

class tst_HelpLoader : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cutsADocumentIntoSections_data();
    void cutsADocumentIntoSections();
    void readsTheProgramsGuide();
    void readsAFile();
    void saysThatTheGuideIsMissing_data();
    void saysThatTheGuideIsMissing();
    void aDocumentWithoutSectionsIsAnEmptyList();
    void sectionsAreValues();
    void leavesOutWhatAProgramLacks();

private:
    QString written(const QByteArray& bytes) const;

    QTemporaryDir m_folder;
};

void tst_HelpLoader::cutsADocumentIntoSections_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QStringList>("sections");
    const auto row = [](const char* name, const char* document, std::initializer_list<const char*> sections) {
        QStringList expected;
        for (const char* section : sections)
            expected.append(QString::fromUtf8(section));
        QTest::newRow(name) << QString::fromUtf8(document) << expected;
    };
    row("nothing", "", {});
    row("blanks only", " \n\t\n", {});
    row("text without a heading", "Ciao.\n\nAncora.", {"sezione-0|Introduzione|Ciao.\n\nAncora."});
    row("a level-one title belongs to the introduction", "# Abissora\nCiao.\n## Uno\nA",
        {"sezione-0|Introduzione|# Abissora\nCiao.", "sezione-1|Uno|A"});
    row("an empty introduction is none", "\n\n## Uno\nA", {"sezione-0|Uno|A"});
    row("two sections", "## Uno\nA\n\n## Due\nB\nC\n", {"sezione-0|Uno|A", "sezione-1|Due|B\nC"});
    row("equal titles stay two sections", "## Uno\nA\n## Uno\nB", {"sezione-0|Uno|A", "sezione-1|Uno|B"});
    row("the title is trimmed of blanks and tabs", "##  \t Titolo \t \nA", {"sezione-0|Titolo|A"});
    row("a no-break space stays in the title", "## \u00A0Titolo\u00A0\nA", {"sezione-0|\u00A0Titolo\u00A0|A"});
    row("an empty title is a title", "## \nA", {"sezione-0||A"});
    row("no blank, no heading", "## Uno\n##Due\nA", {"sezione-0|Uno|##Due\nA"});
    row("a tab is no blank", "## Uno\n##\tDue", {"sezione-0|Uno|##\tDue"});
    row("number signs alone are no heading", "## Uno\n##\nA", {"sezione-0|Uno|##\nA"});
    row("a subheading is body", "## Uno\n### Due\nA", {"sezione-0|Uno|### Due\nA"});
    row("an indented heading is body", "## Uno\n ## Due\nA", {"sezione-0|Uno|## Due\nA"});
    row("headings count in code too", "## Uno\n```\n## Due\n```", {"sezione-0|Uno|```", "sezione-1|Due|```"});

    row("a table of contents is left out", "## Indice\n- Uno\n## Uno\nA", {"sezione-0|Uno|A"});
    row("whatever its case and its end", "## Uno\nA\n## INDICE DEI CONTENUTI\n- x\n## Due\nB",
        {"sezione-0|Uno|A", "sezione-1|Due|B"});
    row("by its beginning only", "## Un indice\nA", {"sezione-0|Un indice|A"});
    row("what begins like one is one", "## Indicepuntato\nA\n## Due\nB", {"sezione-0|Due|B"});

    row("an empty section is left out", "## Uno\n\n \t\n## Due\nB", {"sezione-0|Due|B"});
    row("so is one of separators and blank lines", "## Uno\n\n---\n \n --- \n\n## Due\nB", {"sezione-0|Due|B"});
    row("separators at both ends go", "## Uno\n---\n \t---\t \nA\n---\n---\n## Due\nB",
        {"sezione-0|Uno|A", "sezione-1|Due|B"});
    row("those inside stay", "## Uno\nA\n---\nB", {"sezione-0|Uno|A\n---\nB"});
    row("an empty line protects a separator", "## Uno\n\n---\nA", {"sezione-0|Uno|---\nA"});
    row("four hyphens separate nothing", "## Uno\n----\nA", {"sezione-0|Uno|----\nA"});
    row("the body is trimmed at both ends", "## Uno\n\n \tA \t\n\n", {"sezione-0|Uno|A"});
    row("its lines are left alone", "## Uno\nA \n  B\n\n\nC", {"sezione-0|Uno|A \n  B\n\n\nC"});
    row("a no-break space is text", "## Uno\n\u00A0", {"sezione-0|Uno|\u00A0"});

    row("a CR LF pair ends two lines", "## Uno\r\nA\r\nB", {"sezione-0|Uno|A\n\nB"});
    row("every newline ends a line", "## Uno\rA\u000BB\fC\u0085D\u2028E\u2029F", {"sezione-0|Uno|A\nB\nC\nD\nE\nF"});
    row("a heading after any of them", "A\u2029## Uno\u2028B", {"sezione-0|Introduzione|A", "sezione-1|Uno|B"});
}

void tst_HelpLoader::cutsADocumentIntoSections()
{
    QFETCH(const QString, document);
    QFETCH(const QStringList, sections);
    QCOMPARE(described(HelpLoader::parse(document)), sections);
}

void tst_HelpLoader::readsTheProgramsGuide()
{
    const QList<HelpSection> sections = HelpLoader::load();
    QVERIFY(!sections.isEmpty());
    QCOMPARE(sections.first().id, u"sezione-0"_s);
}

void tst_HelpLoader::readsAFile()
{
    QCOMPARE(described(HelpLoader::load(written("## Perch\xC3\xA9\nS\xC3\xAC"))),
             QStringList{u"sezione-0|Perché|Sì"_s});
}

void tst_HelpLoader::saysThatTheGuideIsMissing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no file") << m_folder.filePath(u"none.md"_s);
    QTest::newRow("no resource") << u":/guide/none.md"_s;
    QTest::newRow("a folder") << m_folder.path();
    QTest::newRow("Latin-1") << written("## Perch\xE9\nA");
    QTest::newRow("half a character at the end") << written("## Uno\nPerch\xC3");
    QTest::newRow("an encoded surrogate") << written("## Uno\n\xED\xA0\x80");
}

void tst_HelpLoader::saysThatTheGuideIsMissing()
{
    QFETCH(const QString, path);
    const HelpSection missing{u"non-disponibile"_s, u"Guida non disponibile"_s,
                              u"Il file HELP.md non è presente nel bundle dell'app.\n\nApri la cartella "
                              "dell'app e verifica che la guida sia stata inclusa tra le risorse."_s};
    QCOMPARE(HelpLoader::load(path), QList<HelpSection>{missing});
}

void tst_HelpLoader::aDocumentWithoutSectionsIsAnEmptyList()
{
    QVERIFY(HelpLoader::load(written({})).isEmpty());
    QVERIFY(HelpLoader::load(written("## Indice\nA\n")).isEmpty());
}

void tst_HelpLoader::sectionsAreValues()
{
    const HelpSection one{u"sezione-0"_s, u"Uno"_s, u"A"_s};
    HelpSection other = one;
    QCOMPARE(one, other);
    QCOMPARE(qHash(one), qHash(other));
    other.body = u"B"_s;
    QVERIFY(!(one == other));
    QCOMPARE((QSet<HelpSection>{one, other, one}.size()), qsizetype(2));
}

void tst_HelpLoader::leavesOutWhatAProgramLacks()
{
    const QList<HelpSection> whole = HelpLoader::parse(u"## Stampa\nCon **Stampa** si stampa.\n## Altro\n- **Apri**\n"
                                                       "- **Stampa** e **Apri**\n- Stampa\n- **Stampato**\n"_s);
    QCOMPARE(HelpLoader::without({u"Stampa"_s}, whole),
             (QList<HelpSection>{{u"sezione-1"_s, u"Altro"_s, u"- **Apri**\n- Stampa\n- **Stampato**"_s}}));
    QCOMPARE(HelpLoader::without({u"Apri"_s, u"Stampa"_s}, whole).constFirst().body, u"- Stampa\n- **Stampato**"_s);
    QCOMPARE(HelpLoader::without({}, whole), whole);
}

QString tst_HelpLoader::written(const QByteArray& bytes) const
{
    QFile file(m_folder.filePath(u"%1.md"_s.arg(qHash(bytes))));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("the temporary folder cannot be written");
    return file.fileName();
}

ABISSORA_TEST(tst_HelpLoader);
#include "tst_HelpLoader.moc"
