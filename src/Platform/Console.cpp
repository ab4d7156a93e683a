// SPDX-License-Identifier: MIT
#include "Console.h"

#include <QByteArray>
#include <cerrno>

#ifdef Q_OS_UNIX
#include <poll.h>
#include <unistd.h>
#else
#include <io.h>
#endif

namespace abissora {

namespace {

constexpr int standardOutput = 1;

#ifdef Q_OS_UNIX

bool waitUntilWritable(int descriptor)
{
    pollfd waiting{descriptor, POLLOUT, 0};
    return poll(&waiting, 1, -1) >= 0 || errno == EINTR;
}

bool writeAll(int descriptor, const QByteArray& bytes)
{
    const char* next = bytes.constData();
    auto left = static_cast<std::size_t>(bytes.size());
    while (left > 0) {
        const ssize_t written = ::write(descriptor, next, left);
        if (written > 0) {
            next += written;
            left -= static_cast<std::size_t>(written);
        } else if (written < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            if (!waitUntilWritable(descriptor))
                return false;
        } else if (written == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

#else

bool writeAll(int descriptor, const QByteArray& bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const int written = _write(descriptor, bytes.constData() + done, static_cast<unsigned>(bytes.size() - done));
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

#endif

} // namespace

StandardOutput::StandardOutput()
    : StandardOutput(standardOutput)
{}

StandardOutput::StandardOutput(int descriptor)
    : m_descriptor(descriptor)
{}

void StandardOutput::print(const QString& text)
{
    if (m_broken)
        return;
    QByteArray bytes = text.toUtf8();
    bytes.append('\n');
    m_broken = !writeAll(m_descriptor, bytes);
}

} // namespace abissora
