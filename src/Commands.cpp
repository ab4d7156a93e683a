// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "ArchiveCommands.h"
#include "CommandLine.h"
#include "ExchangeCommands.h"
#include "ExitStatus.h"
#include "FolderAccess.h"
#include "FolderLock.h"
#include "Literals.h"
#include "PrintCommand.h"
#include "RegisterCheck.h"
#include "RegisterStart.h"
#include "StateContent.h"
#include "StoredRegister.h"

namespace abissora {

namespace {

QString counts(const StateContent& content)
{
    const auto& [isStored, records, total, error] = content.equipment;
    if (content.isEmpty())
        return u"niente di leggibile"_s;
    if (error)
        return u"leggibili %1 articoli su %2"_s.arg(QString::number(records.size()), QString::number(total));
    if (isStored)
        return u"articoli: %1, manutenzioni: %2"_s.arg(QString::number(records.size()),
                                                       QString::number(content.maintenanceCount()));
    return u"tipologie: %1 su %2"_s.arg(QString::number(content.types.records.size()),
                                        QString::number(content.types.total));
}

class Commands
{
public:
    Commands(const ApplicationDirectories& directories, const CommandStreams& streams)
        : m_directories(directories)
        , m_streams(streams)
        , m_lock(directories.root())
        , m_console(streams.error)
        , m_generations(directories, m_clock, m_calendar, m_console, m_lock)
    {}

    int listStates() const
    {
        for (const QString& folder : {m_directories.root(), m_directories.backups()}) {
            if (const auto looked = checkFolder(folder); !looked)
                return fail(exitStatus::noInput,
                            u"Gli stati non si possono elencare: «%1»: %2"_s.arg(folder, looked.error().reason));
        }
        for (const EarlierState& state : m_generations.list()) {
            const QString time = m_calendar.local(state.kept).toString(u"yyyy-MM-dd HH:mm"_s);
            say(m_streams.out, state.name + u'\t' + time + u'\t' + counts(readContent(state)));
        }
        return exitStatus::done;
    }

    int restore(const QString& name)
    {
        if (const auto permitted = m_lock.mayWrite(); !permitted) {
            if (m_lock.acquire() == FolderLock::Outcome::HeldByAnother)
                return fail(exitStatus::tryAgain,
                            u"Abissora è aperta su questo registro: va chiusa prima di ripristinare."_s);
            return fail(exitStatus::cannotCreate,
                        u"Il registro non si può modificare: %1"_s.arg(permitted.error().reason));
        }
        clearUp(m_directories, m_generations);
        if (isArchiveOperand(name)) {
            const int status = restoreArchive(name, m_directories, m_generations, m_lock, m_streams);
            if (status == exitStatus::done)
                settleDocuments();
            return status;
        }
        const auto state = m_generations.find(name);
        if (!state)
            return fail(exitStatus::noInput,
                        u"Nessuno stato si chiama «%1». Con «--list-states» l'elenco."_s.arg(name));
        if (const auto restored = Restoration(m_directories, m_generations).restore(*state); !restored)
            return fail(exitStatus::badData,
                        u"Non è stato possibile ripristinare «%1»: %2"_s.arg(name, restored.error().reason));
        settleDocuments();
        say(m_streams.out, u"Ripristinato lo stato «%1»."_s.arg(name));
        return exitStatus::done;
    }

    int check() const
    {
        const CheckReport report = checkRegister(m_directories);
        for (const QString& problem : report.problems)
            say(m_streams.out, problem);
        for (const QString& note : report.notes)
            say(m_streams.out, u"conservato perché illeggibile: "_s + note);
        if (!report.hasRegister)
            return fail(exitStatus::noInput, noRegister(m_directories));
        say(m_streams.out, (report.problems.isEmpty() ? u"Tutto in ordine: "_s : u"Letti: "_s) + report.summary);
        return report.problems.isEmpty() ? exitStatus::done : exitStatus::found;
    }

private:
    int fail(int status, const QString& sentence) const
    {
        say(m_streams.error, sentence);
        return status;
    }

    void settleDocuments()
    {
        const StateContent content = readPresentContent(m_directories);
        if (content.equipment.isStored && !content.equipment.error)
            DocumentArchive(m_directories, m_clock, m_lock).settle(documentNames(content.equipment.records));
    }

    ApplicationDirectories m_directories;
    CommandStreams m_streams;
    SystemClock m_clock;
    Calendar m_calendar;
    FolderLock m_lock;
    StreamConsole m_console;
    Generations m_generations;
};

} // namespace

int runCommand(const CommandLine& commandLine, const ApplicationDirectories& directories, const CommandStreams& streams)
{
    if (commandLine.command == Command::Print)
        return printCommand(commandLine, directories, streams);
    Commands commands(directories, streams);
    switch (commandLine.command.value()) {
    case Command::Export:
        return exportRegister(commandLine, directories, streams);
    case Command::Import:
        return importFile(commandLine, directories, streams);
    case Command::Due:
        return listDue(commandLine, directories, streams);
    case Command::Check:
        return commands.check();
    case Command::ListStates:
        return commands.listStates();
    case Command::Restore:
        return commands.restore(commandLine.operand);
    case Command::Backup:
        return backUp(commandLine.operand, directories, streams);
    case Command::Print:
        break;
    }
    return exitStatus::usage;
}

} // namespace abissora
