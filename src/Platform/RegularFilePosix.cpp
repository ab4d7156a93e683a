// SPDX-License-Identifier: MIT
#include "RegularFile.h"

#include "AtomicFile.h"
#include "PosixFile.h"

#include <QFileInfo>

namespace abissora::RegularFile {

namespace {

constexpr std::size_t blockSize = std::size_t{256} * 1024;
constexpr qint64 syncedAtOnce = qint64{16} * 1024 * 1024;

IoResult<void> transfer(int source, int target, const GoesOn& goesOn)
{
    struct stat status
    {};
    if (::fstat(source, &status) != 0)
        return posix::failure(errno);
    QByteArray block(static_cast<qsizetype>(blockSize), Qt::Uninitialized);
    qint64 copied = 0;
    qint64 synced = 0;
    while (goesOn(copied, status.st_size)) {
        const auto count = posix::readSome(source, block.data(), blockSize);
        if (!count)
            return tl::unexpected(count.error());
        auto written = posix::writeAll(target, block.constData(), *count);
        copied += static_cast<qint64>(*count);
        const bool isEnd = *count == 0;
        if (written && (isEnd || copied - synced >= syncedAtOnce)) {
            written = posix::syncFile(target);
            synced = copied;
        }
        if (!written)
            return written;
        if (isEnd)
            return goesOn(copied, status.st_size) ? IoResult<void>() : posix::failure(ECANCELED);
    }
    return posix::failure(ECANCELED);
}

} // namespace

IoResult<QByteArray> beginning(const QString& path, qsizetype size)
{
    const auto file = posix::openRegular(path);
    if (!file)
        return tl::unexpected(file.error());
    QByteArray bytes(size, Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < size) {
        const auto count = posix::readSome(file->get(), bytes.data() + filled, static_cast<std::size_t>(size - filled));
        if (!count)
            return tl::unexpected(count.error());
        if (*count == 0)
            break;
        filled += static_cast<qsizetype>(*count);
    }
    bytes.truncate(filled);
    return bytes;
}

IoResult<void> copy(const QString& source, const QString& target, const GoesOn& goesOn)
{
    const auto original = posix::openRegular(source);
    if (!original)
        return tl::unexpected(original.error());
    const auto name = posix::systemName(target);
    if (!name)
        return tl::unexpected(name.error());
    const QString folderName = QFileInfo(target).path();
    const auto folder = posix::openFolder(folderName);
    if (!folder)
        return tl::unexpected(folder.error());
    const QByteArray temporary = QFile::encodeName(folderName + u'/' + AtomicFile::temporaryName());
    const auto created = posix::createFile(temporary);
    if (!created)
        return tl::unexpected(created.error());

    auto placed =
        transfer(original->get(), created->get(), goesOn).and_then([&] { return posix::renameNew(temporary, *name); });
    if (!placed) {
        ::unlink(temporary.constData());
        return placed;
    }
    return posix::syncFolder(folder->get());
}

} // namespace abissora::RegularFile
