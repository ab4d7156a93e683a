// SPDX-License-Identifier: MIT
#include "SyncedFile.h"

#include <cerrno>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace abissora {

SyncedFile::~SyncedFile()
{
    m_file.close();
    if (!m_file.fileName().isEmpty())
        m_file.remove();
}

IoResult<void> SyncedFile::create(const QString& path, Readers readers)
{
    const auto mode = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    m_file.setFileName(path);
    errno = 0;
    const bool created = readers == Readers::Usual
                             ? m_file.open(mode)
                             : m_file.open(mode, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (created)
        return {};
    const int error = errno;
    const QString reason = m_file.errorString();
    m_file.setFileName({}); // somebody else's
    return tl::unexpected(error != 0 ? IoError::fromErrno(error) : IoError{reason});
}

IoResult<void> SyncedFile::write(const char* bytes, qsizetype size)
{
    while (size > 0) {
        const qint64 written = m_file.write(bytes, size);
        if (written <= 0)
            return tl::unexpected(IoError{m_file.errorString()});
        bytes += written;
        size -= written;
    }
    return {};
}

IoResult<void> SyncedFile::sync()
{
#ifdef Q_OS_UNIX
    int synced = ::fsync(m_file.handle());
    while (synced != 0 && errno == EINTR)
        synced = ::fsync(m_file.handle());
    if (synced != 0)
        return tl::unexpected(IoError::fromErrno(errno));
#endif
    m_file.close();
    return {};
}

} // namespace abissora
