// SPDX-License-Identifier: MIT
// AtomicFile where the POSIX calls are missing: as safe as Qt's own classes make it.
#include "AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace abissora::AtomicFile {

namespace {

tl::unexpected<IoError> failure(const QFileDevice& device)
{
    return tl::unexpected(IoError{device.errorString()});
}

tl::unexpected<IoError> failure(int error)
{
    return tl::unexpected(IoError::fromErrno(error));
}

IoResult<void> checkRegular(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return failure(ENOENT);
    if (info.isDir())
        return failure(EISDIR);
    if (!info.isFile())
        return failure(EINVAL);
    return {};
}

} // namespace

IoResult<void> replace(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failure(file);
    // A short write is only reported here: commit() would put the truncated file into place.
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        auto failed = failure(file);
        file.cancelWriting();
        return failed;
    }
    if (!file.commit())
        return failure(file);
    return {};
}

IoResult<void> copy(const QString& source, const QString& target)
{
    if (auto regular = checkRegular(source); !regular)
        return regular;
    if (QFileInfo::exists(target))
        return failure(EEXIST);
    const QString temporary = QFileInfo(target).path() + u'/' + temporaryName();
    QFile file(source);
    if (!file.copy(temporary)) {
        QFile::remove(temporary);
        return failure(file);
    }
    // Does not replace an existing file.
    QFile copied(temporary);
    if (!copied.rename(target)) {
        auto failed = failure(copied);
        QFile::remove(temporary);
        return failed;
    }
    return {};
}

IoResult<void> link(const QString& source, const QString& target)
{
    std::error_code error;
    std::filesystem::create_hard_link(source.toStdU16String(), target.toStdU16String(), error);
    if (error)
        return tl::unexpected(IoError{QString::fromStdString(error.message())});
    return {};
}

IoResult<void> move(const QString& source, const QString& target)
{
    if (QFileInfo::exists(target))
        return failure(EEXIST);
    std::error_code error;
    std::filesystem::rename(source.toStdU16String(), target.toStdU16String(), error);
    if (error)
        return tl::unexpected(IoError{QString::fromStdString(error.message())});
    return {};
}

IoResult<void> remove(const QString& path)
{
    QFile file(path);
    if (!file.remove())
        return failure(file);
    return {};
}

IoResult<void> syncFolder(const QString& /*path*/)
{
    return {}; // no call for it
}

IoResult<QByteArray> read(const QString& path)
{
    if (auto regular = checkRegular(path); !regular)
        return tl::unexpected(regular.error());
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file);
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failure(file);
    return bytes;
}

IoResult<void> makeFolder(const QString& path)
{
    if (!QDir().mkpath(path))
        return failure(QFileInfo::exists(path) ? EEXIST : EACCES);
    return {};
}

} // namespace abissora::AtomicFile
