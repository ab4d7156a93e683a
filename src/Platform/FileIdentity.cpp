// SPDX-License-Identifier: MIT
#include "FileIdentity.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace abissora {

std::optional<FileIdentity> FileIdentity::of(const QString& path)
{
#ifdef Q_OS_UNIX
    struct stat status
    {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
#ifdef Q_OS_DARWIN
    const timespec& time = status.st_mtimespec;
#else
    const timespec& time = status.st_mtim;
#endif
    constexpr qint64 nanoseconds = 1'000'000'000;
    // Whatever types the system has for them.
    return FileIdentity{static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino),
                        static_cast<qint64>(status.st_size), qint64{time.tv_sec} * nanoseconds + time.tv_nsec};
#else
    const QFileInfo info(path);
    if (!info.exists())
        return std::nullopt;
    return FileIdentity{0, 0, info.size(), info.lastModified().toMSecsSinceEpoch()};
#endif
}

} // namespace abissora
