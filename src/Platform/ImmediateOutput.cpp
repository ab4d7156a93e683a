// SPDX-License-Identifier: MIT
#include "ImmediateOutput.h"

#ifdef Q_OS_UNIX
#include "PosixFile.h"

#include <algorithm>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#else
#include <io.h>
#endif

namespace abissora {

#ifdef Q_OS_UNIX

namespace {

#ifdef MSG_NOSIGNAL
constexpr int withoutSignal = MSG_NOSIGNAL;
#else
constexpr int withoutSignal = 0;
#endif

/// There is room for so many bytes wherever poll() finds any: no terminal and no pipe counts in smaller ones.
constexpr qsizetype piece = 256;

short readiness(int descriptor, int timeout)
{
    pollfd waiting{descriptor, POLLOUT, 0};
    return ::poll(&waiting, 1, timeout) > 0 ? waiting.revents : short{0};
}

/// The same pipe or terminal, opened anew; less than 0 where that cannot be done.
int openedAnew(int descriptor)
{
#ifdef Q_OS_LINUX
    // The controlling side of a pseudo-terminal would become that of another one.
    unsigned terminal = 0;
    if (::ioctl(descriptor, TIOCGPTN, &terminal) == 0)
        return -1;
    const QByteArray name = "/proc/self/fd/" + QByteArray::number(descriptor);
    return posix::uninterrupted(
        [&name] { return ::open(name.constData(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); });
#else
    Q_UNUSED(descriptor)
    return -1;
#endif
}

} // namespace

ImmediateOutput::ImmediateOutput(int descriptor)
    : m_descriptor(descriptor)
    , m_way(findWay())
{}

ImmediateOutput::~ImmediateOutput()
{
    if (m_way == Way::Own)
        ::close(m_descriptor);
}

ImmediateOutput::Way ImmediateOutput::findWay()
{
    struct stat status
    {};
    if (::fstat(m_descriptor, &status) != 0 || S_ISREG(status.st_mode))
        return Way::Plain;
    if (S_ISSOCK(status.st_mode))
        return Way::Socket;
    if (S_ISFIFO(status.st_mode) || ::isatty(m_descriptor) == 1) {
        if (const int own = openedAnew(m_descriptor); own >= 0) {
            m_descriptor = own;
            return Way::Own;
        }
    }
    return Way::InPieces;
}

std::optional<qsizetype> ImmediateOutput::write(QByteArrayView bytes)
{
    auto size = static_cast<std::size_t>(bytes.size());
    if (m_way == Way::InPieces) {
        if (readiness(m_descriptor, 0) == 0)
            return 0;
        size = std::min(size, static_cast<std::size_t>(piece));
    }
    const ssize_t written = posix::uninterrupted([&] {
        return m_way == Way::Socket ? ::send(m_descriptor, bytes.data(), size, MSG_DONTWAIT | withoutSignal)
                                    : ::write(m_descriptor, bytes.data(), size);
    });
    if (written > 0)
        return written;
    if (written < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return 0;
    return std::nullopt; // an output that takes nothing, without a reason, would be tried for ever
}

bool ImmediateOutput::waitForRoom(const QDeadlineTimer& deadline) const
{
    while (!deadline.hasExpired()) {
        if (readiness(m_descriptor, static_cast<int>(deadline.remainingTime())) != 0)
            return true;
    }
    return false;
}

#else

ImmediateOutput::ImmediateOutput(int descriptor)
    : m_descriptor(descriptor)
{}

ImmediateOutput::~ImmediateOutput() = default;

std::optional<qsizetype> ImmediateOutput::write(QByteArrayView bytes)
{
    const int written = _write(m_descriptor, bytes.data(), static_cast<unsigned>(bytes.size()));
    return written > 0 ? std::optional<qsizetype>(written) : std::nullopt;
}

bool ImmediateOutput::waitForRoom(const QDeadlineTimer&) const
{
    return false;
}

#endif

} // namespace abissora
