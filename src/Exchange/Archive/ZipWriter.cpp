// SPDX-License-Identifier: MIT
#include "ZipWriter.h"

#include "ArchiveTerms.h"

#include <cerrno>

namespace abissora {

ZipWriter::ZipWriter(const ArchiveLibrary& library, SyncedFile& file)
    : m_library(library)
    , m_file(file)
    , m_writer(m_library.newWriter())
{
    m_library.writeZip(m_writer);
    m_library.setWriterOptions(m_writer, "zip:hdrcharset=UTF-8");
    m_library.setBlockSize(m_writer, archived::blockSize);
    m_library.setLastBlockSize(m_writer, 1); // no padding
    m_library.openWriter(m_writer, this, nullptr, &ZipWriter::take, nullptr);
}

ZipWriter::~ZipWriter()
{
    m_isAbandoned = true; // what it still holds goes nowhere
    m_library.freeWriter(m_writer);
}

IoResult<void> ZipWriter::begin(const QString& name, qint64 size, Instant modified, Packing packing)
{
    packing == Packing::Stored ? m_library.storeOnly(m_writer) : m_library.deflate(m_writer);
    constexpr unsigned ownersFile = 0600;
    constexpr unsigned regularFile = AE_IFREG;
    archive_entry* const entry = m_library.newEntry();
    m_library.setName(entry, name.toUtf8().constData());
    m_library.setType(entry, regularFile);
    m_library.setPermissions(entry, ownersFile);
    m_library.setSize(entry, size);
    m_library.setModified(entry, std::chrono::duration_cast<std::chrono::seconds>(modified.time_since_epoch()).count(),
                          0);
    const int status = m_library.writeHeader(m_writer, entry);
    m_library.freeEntry(entry);
    return outcome(status == ARCHIVE_OK);
}

IoResult<void> ZipWriter::write(const QByteArray& block)
{
    const la_ssize_t written = m_library.writeData(m_writer, block.constData(), static_cast<std::size_t>(block.size()));
    return outcome(written == block.size());
}

IoResult<void> ZipWriter::finish()
{
    return outcome(m_library.closeWriter(m_writer) == ARCHIVE_OK);
}

la_ssize_t ZipWriter::take(archive* /*writer*/, void* self, const void* bytes, std::size_t size)
{
    auto& zip = *static_cast<ZipWriter*>(self);
    // The library hears of no error: what it holds when its writing fails it never gives back.
    if (zip.m_isAbandoned || zip.m_error)
        return static_cast<la_ssize_t>(size);
    if (const auto written = zip.m_file.write(static_cast<const char*>(bytes), static_cast<qsizetype>(size)); !written)
        zip.m_error = written.error();
    return static_cast<la_ssize_t>(size);
}

IoResult<void> ZipWriter::outcome(bool isDone)
{
    if (isDone && !m_error)
        return {};
    if (m_error)
        return tl::unexpected(*m_error);
    const int error = m_library.errorNumber(m_writer);
    return tl::unexpected(IoError::fromErrno(error > 0 ? error : EIO));
}

} // namespace abissora
