// SPDX-License-Identifier: MIT
#include "ProcessSetup.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace abissora::ProcessSetup {

#ifdef Q_OS_UNIX

void openStandardStreams()
{
    // From the lowest on: a file that is opened gets the lowest number that is free.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) == -1 && errno == EBADF)
            ::open("/dev/null", stream == STDIN_FILENO ? O_RDONLY : O_WRONLY);
    }
}

void outliveFailedWrites()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void restoreSignals()
{
    std::signal(SIGPIPE, SIG_DFL);
    std::signal(SIGXFSZ, SIG_DFL);
}

#else

void openStandardStreams() {}

void outliveFailedWrites() {}

void restoreSignals() {}

#endif

} // namespace abissora::ProcessSetup
