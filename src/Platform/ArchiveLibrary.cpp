// SPDX-License-Identifier: MIT
#include "ArchiveLibrary.h"

#include <QLibrary>

namespace abissora {

namespace {

constexpr int archiveAbiVersion = 13;

} // namespace

tl::expected<ArchiveLibrary, QString> ArchiveLibrary::load()
{
    QLibrary library(u"archive"_s, archiveAbiVersion);
    bool complete = library.load();
#ifdef Q_OS_WIN
    if (!complete) { // where names of libraries begin as they like
        library.setFileName(u"libarchive"_s);
        complete = library.load();
    }
#endif
    const auto resolve = [&](const char* name, auto& function) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
        complete = complete && function != nullptr;
    };
    ArchiveLibrary archive;
    resolve("archive_errno", archive.errorNumber);
    resolve("archive_entry_new", archive.newEntry);
    resolve("archive_entry_free", archive.freeEntry);
    resolve("archive_entry_set_pathname", archive.setName);
    resolve("archive_entry_set_filetype", archive.setType);
    resolve("archive_entry_set_perm", archive.setPermissions);
    resolve("archive_entry_set_size", archive.setSize);
    resolve("archive_entry_set_mtime", archive.setModified);
    resolve("archive_entry_pathname", archive.nameOf);
    resolve("archive_entry_filetype", archive.typeOf);
    resolve("archive_entry_hardlink", archive.hardLinkOf);
    resolve("archive_entry_is_encrypted", archive.isEncrypted);
    resolve("archive_write_new", archive.newWriter);
    resolve("archive_write_set_format_zip", archive.writeZip);
    resolve("archive_write_set_options", archive.setWriterOptions);
    resolve("archive_write_set_bytes_per_block", archive.setBlockSize);
    resolve("archive_write_set_bytes_in_last_block", archive.setLastBlockSize);
    resolve("archive_write_zip_set_compression_store", archive.storeOnly);
    resolve("archive_write_zip_set_compression_deflate", archive.deflate);
    resolve("archive_write_open", archive.openWriter);
    resolve("archive_write_header", archive.writeHeader);
    resolve("archive_write_data", archive.writeData);
    resolve("archive_write_finish_entry", archive.finishEntry);
    resolve("archive_write_close", archive.closeWriter);
    resolve("archive_write_free", archive.freeWriter);
    resolve("archive_read_new", archive.newReader);
    resolve("archive_read_support_format_zip_seekable", archive.readZip);
    resolve("archive_read_open_filename", archive.openFile);
    resolve("archive_read_open_memory", archive.openMemory);
    resolve("archive_read_next_header", archive.nextHeader);
    resolve("archive_read_data", archive.readData);
    resolve("archive_read_free", archive.freeReader);
    if (!complete)
        return tl::unexpected(library.errorString());
    return archive;
}

} // namespace abissora
