// SPDX-License-Identifier: MIT
#include "ProgramFacts.h"

#include "Literals.h"
#include "RegisterFixture.h"
#include "TestRunner.h"

#include <QFile>
#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

QStringList lines(const RegisterFixture& f)
{
    QStringList lines;
    for (const ProgramFact& fact : ProgramFacts{f.info, f.product}.all())
        lines.append(fact.label + u'=' + fact.value);
    return lines;
}

} // namespace

class tst_ProgramFacts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatTheProgramIs()
    {
        RegisterFixture f;
        f.product.author = u"Ada Marini"_s;
        QFile program(f.folder.filePath(u"program"_s));
        QVERIFY(program.open(QIODevice::WriteOnly));
        QVERIFY(program.setFileTime(QDateTime(QDate(2025, 3, 7), QTime(17, 45), Qt::UTC),
                                    QFileDevice::FileModificationTime));
        f.package.setExecutablePath(program.fileName());
        QCOMPARE(lines(f), QStringList({u"Versione=1.2.0 (build 42)"_s, u"Data Build=07/03/2025 18:45"_s,
                                        u"Sviluppato da=Ada Marini"_s, u"Copyright=© 2026 Ada Marini"_s}));
    }

    void whatIsNotKnownIsADash()
    {
        RegisterFixture f;
        f.package = {};
        QCOMPARE(lines(f).mid(0, 2), QStringList({u"Versione=— (build —)"_s, u"Data Build=—"_s}));
    }

    void aGuideSaysNothingOfACheckThatIsNotThere()
    {
        RegisterFixture f;
        const ProgramFacts program{f.info, f.product};
        const auto lineAboutUpdates = [&program] {
            for (const HelpSection& section : program.guide())
                for (const QString& line : QStringList{section.title} + section.body.split(u'\n'))
                    if (line.contains("aggiornament"_L1, Qt::CaseInsensitive))
                        return line;
            return QString();
        };
        QVERIFY(program.looksForUpdates());
        QCOMPARE(program.guide(), HelpLoader::load());
        QVERIFY(!lineAboutUpdates().isEmpty());

        f.product.manifestURL.clear();
        QVERIFY(!program.looksForUpdates());
        QCOMPARE(lineAboutUpdates(), QString());
        QCOMPARE(program.guide().size(), HelpLoader::load().size() - 1);
    }

    void factsAreThoseOfTheMoment()
    {
        RegisterFixture f;
        QVERIFY(lines(f).constLast().startsWith(u"Copyright=© 2026 "_s));
        f.clock.advance(std::chrono::hours(24 * 365));
        QVERIFY(lines(f).constLast().startsWith(u"Copyright=© 2027 "_s));
    }
};

ABISSORA_TEST(tst_ProgramFacts);
#include "tst_ProgramFacts.moc"
