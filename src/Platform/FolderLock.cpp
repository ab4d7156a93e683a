// SPDX-License-Identifier: MIT
#include "FolderLock.h"

#include "AtomicFile.h"
#include "Literals.h"
#include "OwnersFile.h"

#include <QFile>
#include <QLockFile>
#include <cerrno>
#ifdef Q_OS_UNIX
#include "PosixFile.h"

#include <sys/file.h>
#endif

namespace abissora {

/// What holds the lock, for as long as it lives.
class FolderLock::Grip
{
public:
    virtual ~Grip() = default;
    [[nodiscard]] virtual bool isOn(const QString& folder) const = 0;
};

class FolderLock::FileGrip final : public Grip
{
public:
    explicit FileGrip(const QString& file)
        : m_file(file)
    {
        m_file.setStaleLockTime(0);
    }

    [[nodiscard]] bool take()
    {
        const bool isOurs = m_file.tryLock(0);
        if (isOurs)
            makeOwnersFile(m_file.fileName());
        return isOurs;
    }
    [[nodiscard]] QLockFile::LockError error() const { return m_file.error(); }
    [[nodiscard]] bool isOn(const QString& /*folder*/) const override { return m_file.isLocked(); }

private:
    QLockFile m_file;
};

#ifdef Q_OS_UNIX

class FolderLock::FolderGrip final : public Grip
{
public:
    explicit FolderGrip(posix::Descriptor folder)
        : m_folder(std::move(folder))
    {}

    [[nodiscard]] bool isOn(const QString& folder) const override
    {
        struct stat locked
        {};
        struct stat present
        {};
        return ::fstat(m_folder.get(), &locked) == 0 && ::stat(QFile::encodeName(folder).constData(), &present) == 0 &&
               locked.st_dev == present.st_dev && locked.st_ino == present.st_ino;
    }

private:
    posix::Descriptor m_folder;
};

namespace {

IoResult<posix::Descriptor> openOrMake(const QString& path)
{
    auto present = posix::openFolder(path);
    if (present || present.error() != IoError::fromErrno(ENOENT))
        return present;
    const auto made = AtomicFile::makeFolder(path);
    // It may be there although its making could not be synced.
    auto folder = posix::openFolder(path);
    if (!folder && !made)
        return tl::unexpected(made.error());
    return folder;
}

/// What file systems without such locks answer, those of the network among them.
bool isRefusal(int error)
{
    // EOPNOTSUPP and ENOTSUP are one number here and two elsewhere. NOLINTNEXTLINE(misc-redundant-expression)
    return error == ENOLCK || error == EOPNOTSUPP || error == ENOTSUP || error == ENOSYS || error == EINVAL ||
           error == EBADF;
}

} // namespace

FolderLock::FolderLock(QString folder)
    : FolderLock(std::move(folder), ::flock)
{}

FolderLock::Outcome FolderLock::acquire()
{
    if (m_grip && m_grip->isOn(m_folder))
        return Outcome::Held;
    m_grip.reset();
    auto folder = openOrMake(m_folder);
    if (!folder)
        return impossible(folder.error());
    if (posix::uninterrupted([&] { return m_call(folder->get(), LOCK_EX | LOCK_NB); }) != 0) {
        const int error = errno;
        if (error == EWOULDBLOCK)
            return Outcome::HeldByAnother;
        return isRefusal(error) ? takeFile(IoError::fromErrno(error)) : impossible(IoError::fromErrno(error));
    }
    m_grip = std::make_unique<FolderGrip>(*std::move(folder));
    // Left by an earlier version, or come with a copy of a folder that was in use.
    QFile::remove(lockFile());
    return Outcome::Held;
}

#else

FolderLock::FolderLock(QString folder)
    : FolderLock(std::move(folder), nullptr)
{}

FolderLock::Outcome FolderLock::acquire()
{
    if (m_grip)
        return Outcome::Held;
    if (const auto made = AtomicFile::makeFolder(m_folder); !made)
        return impossible(made.error());
    return takeFile(IoError::fromErrno(ENOSYS));
}

#endif

FolderLock::FolderLock(QString folder, Call call)
    : m_folder(std::move(folder))
    , m_call(call)
{}

FolderLock::~FolderLock() = default;

FolderLock::Outcome FolderLock::takeFile(const IoError& refusal)
{
    auto grip = std::make_unique<FileGrip>(lockFile());
    if (grip->take()) {
        m_grip = std::move(grip);
        return Outcome::Held;
    }
    if (grip->error() == QLockFile::LockFailedError)
        return Outcome::HeldByAnother;
    return impossible(grip->error() == QLockFile::PermissionError ? IoError::fromErrno(EACCES) : refusal);
}

FolderLock::Outcome FolderLock::impossible(const IoError& reason)
{
    m_reason = reason;
    return Outcome::Impossible;
}

IoResult<void> FolderLock::mayWrite()
{
    switch (acquire()) {
    case Outcome::Held:
        return {};
    case Outcome::HeldByAnother:
        return tl::unexpected(IoError::fromErrno(EBUSY));
    case Outcome::Impossible:
        break;
    }
    return tl::unexpected(m_reason);
}

QString FolderLock::lockFile() const
{
    return m_folder + "/abissora.lock"_L1;
}

} // namespace abissora
