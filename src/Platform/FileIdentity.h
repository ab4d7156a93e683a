// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace abissora {

/// Tells whether a file is still the one that was there, unchanged since: another file of its name, and one that was
/// written to, differ. On systems without inode numbers its size and its time must do.
struct FileIdentity
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modified = 0; ///< in the finest unit that the system has

    /// Nothing when no such file can be found.
    [[nodiscard]] static std::optional<FileIdentity> of(const QString& path);

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

} // namespace abissora
