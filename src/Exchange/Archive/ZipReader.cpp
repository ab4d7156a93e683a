// SPDX-License-Identifier: MIT
#include "ZipReader.h"

#include "ArchiveTerms.h"

#include <QFile>

namespace abissora {

namespace {} // namespace

ZipReader::ZipReader(const ArchiveLibrary& library)
    : m_library(library)
    , m_reader(m_library.newReader())
{
    // By its directory at the end alone: a zip file that is only begun is none.
    m_library.readZip(m_reader);
}

ZipReader::~ZipReader()
{
    m_library.freeReader(m_reader);
}

bool ZipReader::openFile(const QString& path)
{
    return m_library.openFile(m_reader, QFile::encodeName(path).constData(), archived::blockSize) == ARCHIVE_OK;
}

bool ZipReader::openBytes(const QByteArray& bytes)
{
    return m_library.openMemory(m_reader, bytes.constData(), static_cast<std::size_t>(bytes.size())) == ARCHIVE_OK;
}

ZipReader::Result<std::optional<ZipReader::Entry>> ZipReader::next()
{
    archive_entry* entry = nullptr;
    const int status = m_library.nextHeader(m_reader, &entry);
    if (status == ARCHIVE_EOF)
        return std::nullopt;
    // A warning is a name that is not in the character set it claims, and the like.
    if (status != ARCHIVE_OK)
        return tl::unexpected(Failure::Damaged);
    const char* const name = m_library.nameOf(entry);
    if (name == nullptr)
        return tl::unexpected(Failure::Damaged);
    constexpr unsigned regularFile = AE_IFREG;
    return Entry{name, m_library.typeOf(entry) == regularFile && m_library.hardLinkOf(entry) == nullptr,
                 m_library.isEncrypted(entry) != 0};
}

ZipReader::Result<qsizetype> ZipReader::read(QByteArray& block)
{
    const la_ssize_t count = m_library.readData(m_reader, block.data(), static_cast<std::size_t>(block.size()));
    if (count < 0)
        return tl::unexpected(Failure::Damaged);
    return static_cast<qsizetype>(count);
}

} // namespace abissora
