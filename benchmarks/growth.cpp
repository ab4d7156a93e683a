// SPDX-License-Identifier: MIT
// abissora-growth: what grows with a register, and how: a table in Markdown, a column for each size. Start and memory
// are divided by those of an empty window of the toolkit, every other time by that of a fixed piece of plain work, all
// measured in the same run. Build it with the preset "release" and run it with QT_QPA_PLATFORM=offscreen.
//
//   abissora-growth [--runs N] [SIZE...]
#include "Catalogue.h"
#include "Child.h"
#include "ContentView.h"
#include "Export.h"
#include "ImportPlan.h"
#include "Literals.h"
#include "Register.h"
#include "ShellFixture.h"
#include "Theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLineEdit>
#include <QSaveFile>

using namespace abissora;
using namespace abissora::benchmark;
using test::settle;

namespace {

struct Column
{
    int items = 0;
    QList<double> ratios; ///< in the order of the rows
};

const QStringList& rows()
{
    static const QStringList titles{
        u"start to the first frame"_s, u"memory"_s,          u"a letter typed into the search"_s,
        u"one change stored"_s,        u"overview opened"_s, u"table of items exported"_s,
        u"table of items imported"_s};
    return titles;
}

/// The programs that are started lie beside this one.
QString beside(const char* name)
{
    return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name);
}

void store(const QString& folder, const QList<Equipment>& equipment)
{
    QDir().mkpath(folder + u"/preferences"_s);
    QSaveFile file(folder + u"/preferences/savedEquipment.json"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write(encode(equipment).value()) < 0 || !file.commit())
        qFatal("%s cannot be written", qUtf8Printable(file.fileName()));
}

class Measurement
{
public:
    Measurement(int items, int runs, Duration unit, const Run& window)
        : m_equipment(registerOf(items, m_clock.now()))
        , m_column{items, {}}
        , m_runs(runs)
        , m_unit(unit)
        , m_window(window)
    {}

    Column make()
    {
        measureStart();
        measureScreens();
        measureSave();
        measureExchange();
        return m_column;
    }

private:
    template <typename Operation>
    [[nodiscard]] double ratio(Operation operation) const
    {
        return medianOf(m_runs, operation) / m_unit;
    }

    void measureStart()
    {
        const QTemporaryDir folder;
        store(folder.path(), m_equipment);
        const Run start = medianRun(m_runs, beside("abissora-until-first-frame"), {u"--data-dir"_s, folder.path()});
        m_column.ratios += {start.time / m_window.time, start.memory / m_window.memory};
    }

    void measureScreens()
    {
        test::ShellFixture fixture(m_equipment);
        MainWindow window(fixture, fixture.equipment, fixture.directories.windowStateFile());
        window.resize(1280, 800);
        window.show();
        settle();
        auto& search = *window.findChild<QLineEdit*>(u"search"_s);
        const double letterAndBack = ratio([&] {
            search.setText(u"e"_s);
            settle();
            search.clear();
            settle();
        });
        m_letter = letterAndBack / 2;
        m_overview = ratio([&] {
            const std::unique_ptr<QWidget> overview(fixture.makeOverview());
            overview->resize(1030, 720);
            overview->show();
            settle();
        });
    }

    void measureSave()
    {
        Catalogue catalogue(m_equipment, m_clock, Calendar());
        Equipment changed = m_equipment.front();
        const double save = ratio([&] {
            changed.isActive = !changed.isActive;
            catalogue->updateEquipment(changed);
        });
        m_column.ratios += {m_letter, save, m_overview};
    }

    void measureExchange()
    {
        const QLocale locale(QLocale::Italian, QLocale::Italy);
        SilentConsole console;
        RandomIdGenerator ids;
        AnySymbol symbols;
        KeepNothing keeper;
        const QTemporaryDir folder;
        PreferencesStore preferences(folder.path(), keeper);
        const EquipmentTypeViewModel types(preferences, symbols, console, ids);
        const Almanac almanac{m_clock, Calendar(), DateFormat(locale, Calendar())};
        const ExportSource source{m_equipment, types.types(), almanac.calendar, almanac.now(), locale, u"1"_s};
        m_column.ratios += ratio([&] { sink = static_cast<std::size_t>(exported(ExportForm::Items, source).size()); });
        const QByteArray text = exported(ExportForm::Items, source);
        m_column.ratios += ratio([&] {
            const ImportPlan plan(parseImport(u"a"_s, text).value(),
                                  {{}, types.types(), almanac.calendar, almanac.now(), u"€"_s});
            sink = static_cast<std::size_t>(plan.records(ids).items.size());
        });
    }

    SystemClock m_clock;
    QList<Equipment> m_equipment;
    Column m_column;
    int m_runs;
    Duration m_unit;
    Run m_window;
    double m_letter = 0;
    double m_overview = 0;
};

QString line(const QStringList& cells)
{
    return u"| "_s + cells.join(u" | "_s) + u" |\n"_s;
}

QString table(const QList<Column>& columns)
{
    const QLocale english(QLocale::English);
    QStringList head{u"items"_s};
    QStringList rule{u"---"_s};
    for (const Column& column : columns) {
        head += english.toString(column.items);
        rule += u"---:"_s;
    }
    QString text = line(head) + line(rule);
    for (qsizetype row = 0; row < rows().size(); ++row) {
        QStringList cells{rows().at(row)};
        for (const Column& column : columns)
            cells += english.toString(column.ratios.at(row), 'g', 3);
        text += line(cells);
    }
    return text;
}

} // namespace

// A value that is not there ends it. NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption runsOption(u"runs"_s, {}, u"N"_s, u"11"_s);
    parser.addOption(runsOption);
    parser.process(application);
    const int runs = parser.value(runsOption).toInt();
    QStringList sizes = parser.positionalArguments();
    if (sizes.isEmpty())
        sizes = {u"300"_s, u"3000"_s, u"30000"_s, u"100000"_s};

    applyTheme(application, Scheme::Light);
    const Duration unit = medianOf(51, reference);
    const Run window = medianRun(runs, beside("abissora-empty-window"), {});
    QList<Column> columns;
    for (const QString& size : std::as_const(sizes))
        columns += Measurement(size.toInt(), runs, unit, window).make();
    std::printf("%s\nAn empty window: %.0f ms, %.0f MB; the plain work: %.2f ms.\n", qUtf8Printable(table(columns)),
                window.time.count(), window.memory, unit.count());
    return 0;
}
