// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <archive.h>
#include <archive_entry.h>
#include <tl/expected.hpp>

namespace abissora {

/// The functions of libarchive that are used here. The library is loaded when the first copy of a register is written
/// or read, as linking it would cost every start more than a millisecond.
struct ArchiveLibrary
{
    decltype(&archive_errno) errorNumber = nullptr;
    decltype(&archive_entry_new) newEntry = nullptr;
    decltype(&archive_entry_free) freeEntry = nullptr;
    decltype(&archive_entry_set_pathname) setName = nullptr;
    decltype(&archive_entry_set_filetype) setType = nullptr;
    decltype(&archive_entry_set_perm) setPermissions = nullptr;
    decltype(&archive_entry_set_size) setSize = nullptr;
    decltype(&archive_entry_set_mtime) setModified = nullptr;
    decltype(&archive_entry_pathname) nameOf = nullptr;
    decltype(&archive_entry_filetype) typeOf = nullptr;
    decltype(&archive_entry_hardlink) hardLinkOf = nullptr;
    decltype(&archive_entry_is_encrypted) isEncrypted = nullptr;

    decltype(&archive_write_new) newWriter = nullptr;
    decltype(&archive_write_set_format_zip) writeZip = nullptr;
    decltype(&archive_write_set_options) setWriterOptions = nullptr;
    decltype(&archive_write_set_bytes_per_block) setBlockSize = nullptr;
    decltype(&archive_write_set_bytes_in_last_block) setLastBlockSize = nullptr;
    decltype(&archive_write_zip_set_compression_store) storeOnly = nullptr;
    decltype(&archive_write_zip_set_compression_deflate) deflate = nullptr;
    decltype(&archive_write_open) openWriter = nullptr;
    decltype(&archive_write_header) writeHeader = nullptr;
    decltype(&archive_write_data) writeData = nullptr;
    decltype(&archive_write_finish_entry) finishEntry = nullptr;
    decltype(&archive_write_close) closeWriter = nullptr;
    decltype(&archive_write_free) freeWriter = nullptr;

    decltype(&archive_read_new) newReader = nullptr;
    decltype(&archive_read_support_format_zip_seekable) readZip = nullptr;
    decltype(&archive_read_open_filename) openFile = nullptr;
    decltype(&archive_read_open_memory) openMemory = nullptr;
    decltype(&archive_read_next_header) nextHeader = nullptr;
    decltype(&archive_read_data) readData = nullptr;
    decltype(&archive_read_free) freeReader = nullptr;

    /// Loads it at the first call; an error says why that failed and may be gone at the next call. Stays loaded.
    [[nodiscard]] static tl::expected<ArchiveLibrary, QString> load();
};

} // namespace abissora
