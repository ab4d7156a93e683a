// SPDX-License-Identifier: MIT
// RegularFile where the POSIX calls are missing: as safe as Qt's own classes make it.
#include "RegularFile.h"

#include "AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>

namespace abissora::RegularFile {

namespace {

constexpr qint64 blockSize = qint64{256} * 1024;

tl::unexpected<IoError> failure(const QFileDevice& device)
{
    return tl::unexpected(IoError{device.errorString()});
}

tl::unexpected<IoError> failure(int error)
{
    return tl::unexpected(IoError::fromErrno(error));
}

IoResult<void> openRegular(QFile& file)
{
    const QFileInfo info(file.fileName());
    if (!info.exists())
        return failure(ENOENT);
    if (info.isDir())
        return failure(EISDIR);
    if (!info.isFile())
        return failure(EINVAL);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file);
    return {};
}

IoResult<void> transfer(QFile& source, QFile& target, const GoesOn& goesOn)
{
    const qint64 whole = source.size();
    qint64 copied = 0;
    while (goesOn(copied, whole)) {
        const QByteArray block = source.read(blockSize);
        if (source.error() != QFileDevice::NoError)
            return failure(source);
        if (target.write(block) != block.size() || !target.flush())
            return failure(target);
        copied += block.size();
        if (block.isEmpty())
            return goesOn(copied, whole) ? IoResult<void>() : failure(ECANCELED);
    }
    return failure(ECANCELED);
}

} // namespace

IoResult<QByteArray> beginning(const QString& path, qsizetype size)
{
    QFile file(path);
    if (auto opened = openRegular(file); !opened)
        return tl::unexpected(opened.error());
    QByteArray bytes = file.read(size);
    if (file.error() != QFileDevice::NoError)
        return failure(file);
    return bytes;
}

IoResult<void> copy(const QString& source, const QString& target, const GoesOn& goesOn)
{
    QFile original(source);
    if (auto opened = openRegular(original); !opened)
        return opened;
    QFile copied(QFileInfo(target).path() + u'/' + AtomicFile::temporaryName());
    if (!copied.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return failure(copied);
    auto placed = transfer(original, copied, goesOn);
    copied.close();
    // Does not replace an existing file.
    if (placed && !copied.rename(target))
        placed = QFileInfo::exists(target) ? failure(EEXIST) : failure(copied);
    if (!placed)
        copied.remove();
    return placed;
}

} // namespace abissora::RegularFile
