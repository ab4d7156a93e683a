// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <sys/stat.h>

namespace abissora::test {

/// While it lives new files and folders lack these permissions.
class Umask
{
public:
    explicit Umask(mode_t mask)
        : m_before(::umask(mask))
    {}
    ~Umask() { ::umask(m_before); }
    Q_DISABLE_COPY_MOVE(Umask)

private:
    mode_t m_before;
};

/// 0 of what is not there.
inline mode_t modeOf(const QString& path)
{
    struct stat status
    {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & mode_t{07777} : mode_t{0};
}

} // namespace abissora::test
