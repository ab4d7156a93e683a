// SPDX-License-Identifier: MIT
#pragma once

#include "WritePermission.h"

#include <memory>

namespace abissora {

/// The right to write into a register's folder, which one process at a time has. The lock lies on the folder itself and
/// the kernel takes it back with its process: it needs no file, no space and no permission to write, and a copy of the
/// folder comes without it. Only where the file system refuses such locks does a file in the folder, "abissora.lock",
/// which is judged by process, computer and boot, stand in for it.
class FolderLock final : public WritePermission
{
public:
    enum class Outcome {
        Held,
        HeldByAnother,
        Impossible, ///< Nobody can tell whether another process is at work.
    };
    /// As flock(2).
    using Call = int (*)(int descriptor, int operation);

    explicit FolderLock(QString folder);
    FolderLock(QString folder, Call call);
    ~FolderLock() override;
    Q_DISABLE_COPY_MOVE(FolderLock)

    /// Creates the folder when it is missing, for its owner only. May be called again at any time: a lock that is held
    /// stays held, unless another folder has come to stand in the place of the locked one.
    [[nodiscard]] Outcome acquire();
    /// Acquires what is not held yet, and tells why nothing may be written.
    [[nodiscard]] IoResult<void> mayWrite() override;

    [[nodiscard]] const QString& folder() const { return m_folder; }
    /// Why the last attempt was impossible.
    [[nodiscard]] const IoError& reason() const { return m_reason; }

private:
    class Grip;
    class FolderGrip;
    class FileGrip;

    [[nodiscard]] Outcome takeFile(const IoError& refusal);
    [[nodiscard]] Outcome impossible(const IoError& reason);
    [[nodiscard]] QString lockFile() const;

    QString m_folder;
    Call m_call;
    IoError m_reason;
    std::unique_ptr<Grip> m_grip;
};

} // namespace abissora
