// SPDX-License-Identifier: MIT
#include "ArchiveCommands.h"

#include "ArchiveRestoration.h"
#include "ExitStatus.h"
#include "Literals.h"
#include "RegisterArchive.h"
#include "StateFiles.h"

#include <QFileInfo>

namespace abissora {

namespace {

bool always(qint64 /*done*/, qint64 /*whole*/)
{
    return true;
}

int fail(int status, const IoError& error, const CommandStreams& streams)
{
    say(streams.error, error.reason);
    return status;
}

} // namespace

int backUp(const QString& target, const ApplicationDirectories& directories, const CommandStreams& streams)
{
    const bool isStored = storedFiles(directories.preferences()).contains(registerKey);
    const auto written = RegisterArchive(directories).write(target, SystemClock().now(), always);
    if (!written)
        return fail(isStored ? exitStatus::cannotCreate : exitStatus::noInput, written.error(), streams);
    say(streams.out, u"Copiati in «%1»: %2."_s.arg(target, written->counts.text()));
    return exitStatus::done;
}

bool isArchiveOperand(const QString& operand)
{
    return operand.endsWith(".zip"_L1, Qt::CaseInsensitive);
}

int restoreArchive(const QString& path, const ApplicationDirectories& directories, Generations& generations,
                   WritePermission& permission, const CommandStreams& streams)
{
    // Before anything of the register is touched, and so that it is known whose fault it is.
    if (const auto read = ArchiveReader::read(path, always); !read)
        return fail(QFileInfo(path).isReadable() && QFileInfo(path).isFile() ? exitStatus::badData
                                                                             : exitStatus::noInput,
                    read.error(), streams);
    const auto unpacked = UnpackedArchive::unpack(path, directories, always);
    if (!unpacked)
        return fail(exitStatus::cannotCreate, unpacked.error(), streams);
    const auto restored =
        ArchiveRestoration(directories, generations, permission, SystemClock().now()).restore(**unpacked);
    if (!restored)
        return fail(exitStatus::cannotCreate, restored.error(), streams);
    say(streams.out, u"Ripristinati da «%1»: %2."_s.arg(path, (*unpacked)->manifest().counts.text()));
    return exitStatus::done;
}

} // namespace abissora
