// SPDX-License-Identifier: MIT
#include "FolderAccess.h"

#include <QFileInfo>
#include <cerrno>
#ifdef Q_OS_UNIX
#include "PosixFile.h"
#else
#include <filesystem>
#endif

namespace abissora {

namespace {

#ifdef Q_OS_UNIX

IoResult<void> look(const QString& path)
{
    return posix::openFolder(path).and_then([](const posix::Descriptor& folder) {
        // One that may be listed and not entered gives names without files.
        struct stat status
        {};
        return posix::result(::fstatat(folder.get(), ".", &status, 0));
    });
}

#else

IoResult<void> look(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tl::unexpected(IoError::fromErrno(ENOENT));
    if (!info.isDir())
        return tl::unexpected(IoError::fromErrno(ENOTDIR));
    std::error_code error;
    const std::filesystem::directory_iterator first(path.toStdU16String(), error);
    if (error)
        return tl::unexpected(IoError{QString::fromStdString(error.message())});
    return {};
}

#endif

} // namespace

IoResult<void> checkFolder(const QString& path)
{
    auto looked = look(path);
    const bool isAbsent = !looked && looked.error() == IoError::fromErrno(ENOENT);
    // A link to nowhere is there.
    return isAbsent && !QFileInfo(path).isSymLink() ? IoResult<void>() : looked;
}

} // namespace abissora
