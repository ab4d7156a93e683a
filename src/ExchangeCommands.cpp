// SPDX-License-Identifier: MIT
#include "ExchangeCommands.h"

#include "CommandLine.h"
#include "DueServices.h"
#include "ExitStatus.h"
#include "Export.h"
#include "FolderLock.h"
#include "ForeignText.h"
#include "ImportPlan.h"
#include "OutputFile.h"
#include "PackageInformation.h"
#include "RecordJson.h"
#include "RegisterStart.h"
#include "RegularFile.h"
#include "StoredRegister.h"

#include <QFileInfo>

namespace abissora {

namespace {

constexpr qsizetype mostFaults = 20;    ///< more say nothing new
constexpr qsizetype longestCell = 1000; ///< as it is printed

int fail(const CommandStreams& streams, int status, const QString& sentence)
{
    say(streams.error, sentence);
    return status;
}

QString programVersion()
{
    return BuiltInPackageInformation().value(u"CFBundleShortVersionString"_s).toString();
}

/// What is stored, or nothing where nothing was stored so far.
tl::expected<QList<Equipment>, QString> itemsOrNone(const StoredRegister& stored,
                                                    const ApplicationDirectories& directories)
{
    const bool isStored = storedFiles(directories.preferences()).contains(registerKey);
    return isStored ? stored.equipment() : QList<Equipment>();
}

QString rowText(const ImportPlan& plan, qsizetype row)
{
    const ImportRow& content = plan.rows().at(row);
    QStringList cells{content.standing == ImportRow::Standing::New       ? u"nuova"_s
                      : content.standing == ImportRow::Standing::Present ? u"già presente"_s
                                                                         : u"errore"_s};
    for (qsizetype column = 0; column < content.cells.size(); ++column) {
        const ImportCell& cell = content.cells.at(column);
        if (plan.columns().at(column).field != ImportField::None || plan.table() == nullptr)
            cells.append(shownLine(cell.problem.isEmpty() ? cell.text : cell.problem, longestCell));
    }
    return cells.join(u'\t');
}

void print(const ImportPlan& plan, const CommandStreams& streams)
{
    QStringList titles{u"riga"_s};
    for (const ImportColumn& column : plan.columns()) {
        if (column.field != ImportField::None || plan.table() == nullptr)
            titles.append(column.title);
        else if (!column.heading.isEmpty())
            say(streams.error, u"Colonna che non viene importata: «%1»."_s.arg(shownLine(column.heading, longestCell)));
    }
    QString text = titles.join(u'\t');
    for (qsizetype row = 0; row < plan.rows().size(); ++row)
        text += u'\n' + rowText(plan, row);
    say(streams.out, text);
}

/// The register's files, for one change from the command line.
class Writer
{
public:
    Writer(const ApplicationDirectories& directories, const CommandStreams& streams)
        : m_directories(directories)
        , m_lock(directories.root())
        , m_console(streams.error)
        , m_generations(directories, m_clock, Calendar(), m_console, m_lock)
    {}

    /// False while another process works on the register or where it cannot be written.
    bool begin()
    {
        if (!m_lock.mayWrite())
            return false;
        clearUp(m_directories, m_generations);
        return true;
    }
    [[nodiscard]] bool isHeldByAnother() { return m_lock.acquire() == FolderLock::Outcome::HeldByAnother; }

    IoResult<void> store(QList<Equipment> items, const ImportPlan& plan)
    {
        PreferencesStore preferences(m_directories.preferences(), m_generations);
        if (auto seen = see(preferences); !seen)
            return seen;
        // Known before anything is written: an earlier state is kept, once.
        const QList<EquipmentTypeModel> types = plan.types(m_ids);
        if (!types.isEmpty()) {
            ResourceSymbolLibrary symbols;
            EquipmentTypeViewModel(preferences, symbols, m_console, m_ids).importTypes(types);
        }
        addImported(items, plan.records(m_ids));
        return preferences.setData(registerKey, encode(items).value(),
                                   types.isEmpty() ? Occasion::import : Occasion::change);
    }

private:
    /// What was not read by the store that writes would count as another program's.
    static IoResult<void> see(PreferencesStore& preferences)
    {
        return preferences.data(registerKey).map([&preferences](const std::optional<QByteArray>& bytes) {
            const auto stored = bytes ? readEquipment(*bytes) : Decoded<Equipment>();
            if (stored && stored->hasUnknownMembers)
                preferences.keepUnknownMembers(registerKey);
        });
    }

    ApplicationDirectories m_directories;
    SystemClock m_clock;
    FolderLock m_lock;
    StreamConsole m_console;
    Generations m_generations;
    RandomIdGenerator m_ids;
};

int store(const ImportPlan& plan, const QList<Equipment>& items, Writer& writer, const CommandStreams& streams)
{
    RandomIdGenerator ids;
    const QString done = importedText(plan.records(ids)) + u'.';
    if (const auto stored = writer.store(items, plan); !stored)
        return fail(streams, exitStatus::cannotCreate,
                    u"Non è stato possibile salvare: %1"_s.arg(stored.error().reason));
    say(streams.out, done);
    return exitStatus::done;
}

} // namespace

int exportRegister(const CommandLine& commandLine, const ApplicationDirectories& directories,
                   const CommandStreams& streams)
{
    const QString& path = commandLine.operand;
    const auto form = exportFormOf(path, commandLine.records ? ExportForm::Records : ExportForm::Items);
    if (!form)
        return fail(streams, exitStatus::usage,
                    u"Il nome «%1» non dice il formato: finisce in .csv, .ics o .json."_s.arg(path));
    if (commandLine.records && *form != ExportForm::Records)
        return fail(streams, exitStatus::usage, u"«--what» sceglie fra le tabelle: il file deve finire in .csv."_s);
    const StoredRegister stored(directories);
    if (!stored.equipment())
        return fail(streams, exitStatus::noInput, stored.equipment().error());
    const Almanac& almanac = stored.almanac();
    const ExportSource source{*stored.equipment(), stored.types().types(),   almanac.calendar,
                              almanac.now(),       DateFormat::userLocale(), programVersion()};
    if (const auto written = OutputFile::write(path, exported(*form, source)); !written)
        return fail(streams, exitStatus::cannotCreate, OutputFile::failure(path, written.error()));
    say(streams.out, exportedText(*form, source) + u'.');
    return exitStatus::done;
}

int importFile(const CommandLine& commandLine, const ApplicationDirectories& directories, const CommandStreams& streams)
{
    const QString& path = commandLine.operand;
    if (!QFileInfo::exists(path))
        return fail(streams, exitStatus::noInput, u"Il file «%1» non c'è."_s.arg(path));
    if (const auto readable = RegularFile::beginning(path, 1); !readable)
        return fail(streams, exitStatus::noInput,
                    u"Il file «%1» non si può leggere: %2."_s.arg(path, readable.error().reason));
    auto source = readImport(path);
    if (!source)
        return fail(streams, exitStatus::badData, source.error());
    Writer writer(directories, streams);
    if (commandLine.yes && !writer.begin()) {
        return writer.isHeldByAnother()
                   ? fail(
                         streams, exitStatus::tryAgain,
                         u"Abissora è aperta su questo registro: va chiusa prima di importare, oppure si importa lì."_s)
                   : fail(streams, exitStatus::cannotCreate, u"Il registro non si può modificare."_s);
    }
    const StoredRegister stored(directories);
    const auto items = itemsOrNone(stored, directories);
    if (!items)
        return fail(streams, exitStatus::noInput, items.error());
    const Almanac& almanac = stored.almanac();
    const ImportPlan plan(*std::move(source), {*items, stored.types().types(), almanac.calendar, almanac.now(),
                                               stored.settings().currencySymbol()});
    if (!plan.columnsProblem().isEmpty())
        return fail(streams, exitStatus::badData, plan.columnsProblem());
    const QStringList faults = plan.faults(mostFaults);
    for (const QString& fault : faults)
        say(streams.error, fault);
    if (!commandLine.yes) {
        print(plan, streams);
        say(streams.out, QStringList{plan.summary(), plan.faultSummary()}.join(faults.isEmpty() ? u""_s : u", "_s) +
                             u". Niente è stato salvato: con «--yes» si importa."_s);
        return faults.isEmpty() ? exitStatus::done : exitStatus::found;
    }
    if (!faults.isEmpty())
        return fail(streams, exitStatus::badData, u"Niente è stato importato."_s);
    if (plan.chosenCount() == 0) {
        say(streams.out, u"Non c'è niente di nuovo da importare."_s);
        return exitStatus::done;
    }
    return store(plan, *items, writer, streams);
}

int listDue(const CommandLine& commandLine, const ApplicationDirectories& directories, const CommandStreams& streams)
{
    const StoredRegister stored(directories);
    if (!stored.equipment())
        return fail(streams, exitStatus::noInput, stored.equipment().error());
    const QList<DueService> due = dueServices(*stored.equipment(), commandLine.days, stored.almanac());
    if (commandLine.json) {
        say(streams.out, QString::fromUtf8(dueJson(due, stored.almanac())).trimmed());
    } else {
        for (const DueService& item : due)
            say(streams.out, dueLine(item, stored.almanac()));
    }
    return due.isEmpty() ? exitStatus::done : exitStatus::found;
}

} // namespace abissora
