// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QByteArray>
#include <cstddef>

/// The system calls behind AtomicFile, repeated after signals, with their reasons.
namespace abissora::posix {

[[nodiscard]] tl::unexpected<IoError> failure(int error);

class Descriptor
{
public:
    explicit Descriptor(int value)
        : m_value(value)
    {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    [[nodiscard]] int get() const { return m_value; }

private:
    int m_value;
};

/// "Invalid argument" for a path with a NUL: the system would take the part before it for the name.
[[nodiscard]] IoResult<QByteArray> systemName(const QString& path);

/// An existing regular file, for reading.
[[nodiscard]] IoResult<Descriptor> openRegular(const QString& path);
[[nodiscard]] IoResult<Descriptor> openFolder(const QString& path);
/// A new file, for writing, readable by its owner only.
[[nodiscard]] IoResult<Descriptor> createFile(const QByteArray& name);

[[nodiscard]] IoResult<void> writeAll(int descriptor, const char* bytes, std::size_t size);
/// 0 at the end of the file.
[[nodiscard]] IoResult<std::size_t> readSome(int descriptor, char* bytes, std::size_t size);

[[nodiscard]] IoResult<void> syncFile(int descriptor);
[[nodiscard]] IoResult<void> syncFolder(int descriptor);

[[nodiscard]] IoResult<void> makeOneFolder(const QByteArray& name);
[[nodiscard]] IoResult<void> rename(const QByteArray& source, const QByteArray& target);
/// Fails when `target` exists, without a moment in which another process could slip in.
[[nodiscard]] IoResult<void> renameNew(const QByteArray& source, const QByteArray& target);
[[nodiscard]] IoResult<void> link(const QByteArray& source, const QByteArray& target);

} // namespace abissora::posix
