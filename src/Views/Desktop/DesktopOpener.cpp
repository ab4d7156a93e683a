// SPDX-License-Identifier: MIT
#include "DesktopOpener.h"

#include "Answer.h"
#include "Literals.h"
#include "ProcessSetup.h"

#include <QDesktopServices>
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

/// Out of reach of what ends this program, and without the signals that this program ignores.
void detach(QProcess& process)
{
#ifdef Q_OS_UNIX
    process.setChildProcessModifier([] {
        ::setsid();
        ProcessSetup::restoreSignals();
    });
#endif
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}

} // namespace

DesktopOpener::DesktopOpener(std::chrono::milliseconds patience)
    : m_patience(patience)
{}

QCoro::Task<bool> DesktopOpener::open(QUrl url)
{
    const QString command = openingCommand();
    if (command.isEmpty())
        co_return QDesktopServices::openUrl(url);

    // Deletes itself at its end. One that outlives this program must not be deleted with it: that would kill it.
    auto* const process = new QProcess;
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QObject::connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
    Answer<bool> opened;
    // Its connections end with this coroutine, and so before what they name. clazy:excludeall=lambda-in-connect
    const QObject waiting;
    QObject::connect(process, &QProcess::finished, &waiting, [&opened](int code, QProcess::ExitStatus status) {
        opened.give(status == QProcess::NormalExit && code == 0);
    });
    QObject::connect(process, &QProcess::errorOccurred, &waiting, [&opened] { opened.give(false); });
    QTimer::singleShot(m_patience, &waiting, [&opened] { opened.give(true); });
    detach(*process);
    process->start(command, {url.isLocalFile() ? url.toLocalFile() : url.toString(QUrl::FullyEncoded)});
    co_return co_await opened.given();
}

} // namespace abissora
