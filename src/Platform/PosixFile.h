// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

/// The system calls behind AtomicFile, repeated after signals, with their reasons.
namespace abissora::posix {

[[nodiscard]] inline tl::unexpected<IoError> failure(int error)
{
    return tl::unexpected(IoError::fromErrno(error));
}

class Descriptor
{
public:
    explicit Descriptor(int value)
        : m_value(value)
    {}
    ~Descriptor()
    {
        if (m_value >= 0)
            ::close(m_value);
    }
    Descriptor(Descriptor&& other) noexcept
        : m_value(std::exchange(other.m_value, -1))
    {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    [[nodiscard]] int get() const { return m_value; }

private:
    int m_value;
};

/// Repeats a system call that a signal interrupted.
template <typename Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

[[nodiscard]] inline IoResult<void> result(int returned)
{
    if (returned != 0)
        return failure(errno);
    return {};
}

// For the owner only, whatever the process's umask takes away from new files and folders.
constexpr mode_t ownersFile = 0600;
constexpr mode_t ownersFolder = 0700;

[[nodiscard]] inline IoResult<Descriptor> open(const QByteArray& name, int flags)
{
    const int descriptor = uninterrupted([&] { return ::open(name.constData(), flags | O_CLOEXEC, ownersFile); });
    if (descriptor < 0)
        return failure(errno);
    return Descriptor(descriptor);
}

/// "Invalid argument" for a path with a NUL: the system would take the part before it for the name.
[[nodiscard]] inline IoResult<QByteArray> systemName(const QString& path)
{
    if (path.contains(QChar::Null))
        return failure(EINVAL);
    return QFile::encodeName(path);
}

/// An existing regular file, for reading.
[[nodiscard]] inline IoResult<Descriptor> openRegular(const QString& path)
{
    // Non-blocking, so that a pipe without a writer cannot hold the program.
    auto file = systemName(path).and_then([](const QByteArray& name) { return open(name, O_RDONLY | O_NONBLOCK); });
    if (!file)
        return file;
    struct stat status
    {};
    if (::fstat(file->get(), &status) != 0)
        return failure(errno);
    if (S_ISDIR(status.st_mode))
        return failure(EISDIR);
    if (!S_ISREG(status.st_mode))
        return failure(EINVAL);
    return file;
}

[[nodiscard]] inline IoResult<Descriptor> openFolder(const QString& path)
{
    return systemName(path).and_then([](const QByteArray& name) { return open(name, O_RDONLY | O_DIRECTORY); });
}

/// A new file, for writing, readable by its owner only.
[[nodiscard]] inline IoResult<Descriptor> createFile(const QByteArray& name)
{
    auto file = open(name, O_WRONLY | O_CREAT | O_EXCL);
    struct stat status
    {};
    // Where the file system knows no modes there is nothing to mend.
    if (file && ::fstat(file->get(), &status) == 0 && (status.st_mode & ownersFile) != ownersFile)
        uninterrupted([&] { return ::fchmod(file->get(), ownersFile); });
    return file;
}

[[nodiscard]] inline IoResult<void> writeAll(int descriptor, const char* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = uninterrupted([&] { return ::write(descriptor, bytes, size); });
        if (written < 0)
            return failure(errno);
        if (written == 0)
            return failure(EIO);
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return {};
}

/// 0 at the end of the file.
[[nodiscard]] inline IoResult<std::size_t> readSome(int descriptor, char* bytes, std::size_t size)
{
    const ssize_t count = uninterrupted([&] { return ::read(descriptor, bytes, size); });
    if (count < 0)
        return failure(errno);
    return static_cast<std::size_t>(count);
}

[[nodiscard]] inline IoResult<void> syncFile(int descriptor)
{
#ifdef F_FULLFSYNC
    if (::fcntl(descriptor, F_FULLFSYNC) == 0)
        return {};
#endif
    return result(uninterrupted([&] { return ::fsync(descriptor); }));
}

[[nodiscard]] inline IoResult<void> syncFolder(int descriptor)
{
    auto synced = syncFile(descriptor);
    // Some file systems have no way to sync a folder; nothing better can be had there.
    if (!synced && (synced.error() == IoError::fromErrno(EINVAL) || synced.error() == IoError::fromErrno(ENOTSUP)))
        return {};
    return synced;
}

[[nodiscard]] inline IoResult<void> makeOneFolder(const QByteArray& name)
{
    if (uninterrupted([&] { return ::mkdir(name.constData(), ownersFolder); }) != 0)
        return failure(errno);
    struct stat status
    {};
    if (::stat(name.constData(), &status) == 0 && (status.st_mode & ownersFolder) != ownersFolder)
        uninterrupted(
            [&] { return ::chmod(name.constData(), static_cast<mode_t>((status.st_mode & 07777) | ownersFolder)); });
    return {};
}

[[nodiscard]] inline IoResult<void> rename(const QByteArray& source, const QByteArray& target)
{
    return result(uninterrupted([&] { return ::rename(source.constData(), target.constData()); }));
}

[[nodiscard]] inline IoResult<void> link(const QByteArray& source, const QByteArray& target)
{
    return result(uninterrupted([&] { return ::link(source.constData(), target.constData()); }));
}

[[nodiscard]] inline IoResult<void> unlink(const QByteArray& name)
{
    return result(uninterrupted([&] { return ::unlink(name.constData()); }));
}

/// Fails when `target` exists, without a moment in which another process could slip in.
[[nodiscard]] inline IoResult<void> renameNew(const QByteArray& source, const QByteArray& target)
{
#ifdef RENAME_NOREPLACE
    if (uninterrupted([&] {
            return ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE);
        }) == 0)
        return {};
    if (errno != EINVAL && errno != ENOSYS)
        return failure(errno);
#endif
    auto linked = link(source, target);
    if (linked)
        static_cast<void>(unlink(source));
    else if (linked.error() == IoError::fromErrno(EPERM) && ::access(target.constData(), F_OK) != 0)
        return rename(source, target); // a folder has no second name
    return linked;
}

} // namespace abissora::posix
