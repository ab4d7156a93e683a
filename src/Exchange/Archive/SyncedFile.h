// SPDX-License-Identifier: MIT
#pragma once

#include "IoError.h"

#include <QFile>

namespace abissora {

/// A new file that is written piece by piece and on the disk when sync() has said so. It is removed again unless it
/// was synced and kept.
class SyncedFile
{
public:
    /// Whoever may read the person's other new files may read this one.
    enum class Readers { Usual, Owner };

    SyncedFile() = default;
    ~SyncedFile();
    Q_DISABLE_COPY_MOVE(SyncedFile)

    /// "File exists" when there is one.
    [[nodiscard]] IoResult<void> create(const QString& path, Readers readers = Readers::Owner);
    [[nodiscard]] IoResult<void> write(const char* bytes, qsizetype size);
    [[nodiscard]] IoResult<void> sync();
    /// Leaves it to others, under whatever name it has by then.
    void keep() { m_file.setFileName({}); }

    [[nodiscard]] QString path() const { return m_file.fileName(); }

private:
    QFile m_file;
};

} // namespace abissora
