// SPDX-License-Identifier: MIT
#include "AtomicFile.h"

#include "PosixFile.h"

#include <QFileInfo>
#include <functional>

namespace abissora::AtomicFile {

namespace {

using posix::Descriptor;

constexpr std::size_t blockSize = std::size_t{64} * 1024;

using Fill = std::function<IoResult<void>(int descriptor)>;
using Place = IoResult<void> (*)(const QByteArray& temporary, const QByteArray& target);

QString folderOf(const QString& path)
{
    return QFileInfo(path).path();
}

struct TemporaryFile
{
    QByteArray name;
    Descriptor descriptor;
};

IoResult<TemporaryFile> createTemporary(const QString& folder)
{
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        const QByteArray name = QFile::encodeName(folder + u'/' + temporaryName());
        auto created = posix::createFile(name);
        if (created)
            return TemporaryFile{name, *std::move(created)};
        if (created.error() != IoError::fromErrno(EEXIST))
            return tl::unexpected(created.error());
    }
    return posix::failure(EEXIST);
}

IoResult<void> write(const QString& path, const Fill& fill, Place place)
{
    const auto target = posix::systemName(path);
    if (!target)
        return tl::unexpected(target.error());
    // Opened first: a folder that cannot be synced is known before anything changed.
    const auto folder = posix::openFolder(folderOf(path));
    if (!folder)
        return tl::unexpected(folder.error());
    const auto temporary = createTemporary(folderOf(path));
    if (!temporary)
        return tl::unexpected(temporary.error());

    const int descriptor = temporary->descriptor.get();
    auto placed = fill(descriptor).and_then([&] { return posix::syncFile(descriptor); }).and_then([&] {
        return place(temporary->name, *target);
    });
    if (!placed) {
        static_cast<void>(posix::unlink(temporary->name));
        return placed;
    }
    return posix::syncFolder(folder->get());
}

} // namespace

IoResult<void> replace(const QString& path, const QByteArray& bytes)
{
    const Fill fill = [&bytes](int descriptor) {
        return posix::writeAll(descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    };
    return write(path, fill, posix::rename);
}

IoResult<void> copy(const QString& source, const QString& target)
{
    const auto original = posix::openRegular(source);
    if (!original)
        return tl::unexpected(original.error());
    const Fill fill = [&original](int descriptor) -> IoResult<void> {
        QByteArray block(static_cast<qsizetype>(blockSize), Qt::Uninitialized);
        while (true) {
            const auto count = posix::readSome(original->get(), block.data(), blockSize);
            if (!count)
                return tl::unexpected(count.error());
            if (*count == 0)
                return {};
            if (auto written = posix::writeAll(descriptor, block.constData(), *count); !written)
                return written;
        }
    };
    return write(target, fill, posix::renameNew);
}

IoResult<void> link(const QString& source, const QString& target)
{
    const auto from = posix::systemName(source);
    const auto to = posix::systemName(target);
    if (!from || !to)
        return posix::failure(EINVAL);
    const auto folder = posix::openFolder(folderOf(target));
    if (!folder)
        return tl::unexpected(folder.error());
    return posix::link(*from, *to).and_then([&] { return posix::syncFolder(folder->get()); });
}

IoResult<void> move(const QString& source, const QString& target)
{
    const auto from = posix::systemName(source);
    const auto to = posix::systemName(target);
    if (!from || !to)
        return posix::failure(EINVAL);
    const auto left = posix::openFolder(folderOf(source));
    if (!left)
        return tl::unexpected(left.error());
    const auto entered = posix::openFolder(folderOf(target));
    if (!entered)
        return tl::unexpected(entered.error());
    // The new name first: after a power cut between the two the file has both, never none.
    return posix::renameNew(*from, *to).and_then([&] { return posix::syncFolder(entered->get()); }).and_then([&] {
        return posix::syncFolder(left->get());
    });
}

IoResult<void> remove(const QString& path)
{
    const auto name = posix::systemName(path);
    if (!name)
        return tl::unexpected(name.error());
    return posix::unlink(*name).and_then([&] { return syncFolder(folderOf(path)); });
}

IoResult<void> syncFolder(const QString& path)
{
    const auto folder = posix::openFolder(path);
    if (!folder)
        return tl::unexpected(folder.error());
    return posix::syncFolder(folder->get());
}

IoResult<QByteArray> read(const QString& path)
{
    const auto file = posix::openRegular(path);
    if (!file)
        return tl::unexpected(file.error());
    // One byte more than the file has: only an empty read tells its end, and it may have grown.
    QByteArray bytes(QFileInfo(path).size() + 1, Qt::Uninitialized);
    qsizetype size = 0;
    while (true) {
        if (size == bytes.size())
            bytes.resize(size + static_cast<qsizetype>(blockSize));
        const auto room = static_cast<std::size_t>(bytes.size() - size);
        const auto count = posix::readSome(file->get(), bytes.data() + size, room);
        if (!count)
            return tl::unexpected(count.error());
        if (*count == 0)
            break;
        size += static_cast<qsizetype>(*count);
    }
    bytes.truncate(size);
    return bytes;
}

IoResult<void> makeFolder(const QString& path)
{
    const auto name = posix::systemName(path);
    if (!name)
        return tl::unexpected(name.error());
    if (QFileInfo(path).isDir())
        return {};
    auto made = posix::makeOneFolder(*name);
    if (!made && made.error() == IoError::fromErrno(ENOENT) && folderOf(path) != path)
        made = makeFolder(folderOf(path)).and_then([&] { return posix::makeOneFolder(*name); });
    // Another process may have been quicker, and "a/b/" is there once its parent "a/b" is.
    if (!made && !QFileInfo(path).isDir())
        return made;
    const auto parent = posix::openFolder(folderOf(path));
    if (!parent)
        return tl::unexpected(parent.error());
    return posix::syncFolder(parent->get());
}

} // namespace abissora::AtomicFile
