// SPDX-License-Identifier: MIT
#include "DesktopOpener.h"

#include "Literals.h"

#include <QDesktopServices>
#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace abissora {

namespace {

/// The desktop's own command; empty where the toolkit opens addresses without one.
QString openingCommand()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return QStandardPaths::findExecutable(u"xdg-open"_s);
#else
    return {};
#endif
}

/// Out of reach of what ends this program.
void detach(QProcess& process)
{
#ifdef Q_OS_UNIX
    process.setChildProcessModifier([] { ::setsid(); });
#endif
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}

} // namespace

DesktopOpener::DesktopOpener(std::chrono::milliseconds patience)
    : m_patience(patience)
{}

bool DesktopOpener::open(const QUrl& url)
{
    const QString command = openingCommand();
    if (command.isEmpty())
        return QDesktopServices::openUrl(url);

    // Deletes itself at its end. One that outlives this program must not be deleted with it: that would kill it.
    auto* const process = new QProcess;
    detach(*process);
    QEventLoop waiting;
    QObject::connect(process, &QProcess::finished, &waiting, &QEventLoop::quit);
    QObject::connect(process, &QProcess::errorOccurred, &waiting, &QEventLoop::quit);
    QTimer::singleShot(m_patience, &waiting, &QEventLoop::quit);
    process->start(command, {url.isLocalFile() ? url.toLocalFile() : url.toString(QUrl::FullyEncoded)});
    if (process->state() != QProcess::NotRunning)
        waiting.exec(QEventLoop::ExcludeUserInputEvents);

    const bool ended = process->state() == QProcess::NotRunning;
    const bool failed = ended && (process->error() != QProcess::UnknownError ||
                                  process->exitStatus() != QProcess::NormalExit || process->exitCode() != 0);
    if (ended)
        delete process;
    else
        QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    return !failed;
}

} // namespace abissora
