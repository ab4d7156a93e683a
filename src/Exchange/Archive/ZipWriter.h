// SPDX-License-Identifier: MIT
#pragma once

#include "ArchiveLibrary.h"
#include "Clock.h"
#include "SyncedFile.h"
#include "ZipLocale.h"

#include <optional>

namespace abissora {

/// Writes one zip file, of any size and any number of entries. After an error nothing more can be written.
class ZipWriter
{
public:
    /// Whether the bytes are worth being made smaller.
    enum class Packing { Stored, Deflated };

    /// `file` must have been created and outlive it.
    ZipWriter(const ArchiveLibrary& library, SyncedFile& file);
    ~ZipWriter();
    Q_DISABLE_COPY_MOVE(ZipWriter)

    /// Begins the next entry, which write() must give exactly `size` bytes.
    [[nodiscard]] IoResult<void> begin(const QString& name, qint64 size, Instant modified, Packing packing);
    [[nodiscard]] IoResult<void> write(const QByteArray& block);
    /// The directory at the end; without it the file is none.
    [[nodiscard]] IoResult<void> finish();

private:
    static la_ssize_t take(archive* writer, void* self, const void* bytes, std::size_t size);
    [[nodiscard]] IoResult<void> outcome(bool isDone);

    ZipLocale m_locale;
    ArchiveLibrary m_library;
    SyncedFile& m_file;
    archive* m_writer;
    std::optional<IoError> m_error; ///< of the file
    bool m_isAbandoned = false;
};

} // namespace abissora
