// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "IoError.h"
#include "RecordJson.h"

#include <memory>

namespace abissora {

/// A stored register that is read and decoded by threads of its own while the program does something else. What comes
/// of it is what reading and decoding at the moment of the question would give: a file that has changed since is read
/// anew, and other bytes are decoded anew. Copies share one piece of work, which is given out once.
class RegisterAhead
{
public:
    /// Nothing is done ahead.
    RegisterAhead() = default;
    /// Begins at once with the file of the list of items.
    explicit RegisterAhead(const QString& path);
    explicit RegisterAhead(const ApplicationDirectories& directories);

    /// As AtomicFile::read().
    [[nodiscard]] IoResult<QByteArray> read(const QString& path) const;
    /// As readEquipment().
    [[nodiscard]] tl::expected<Decoded<Equipment>, JsonError> decoded(const QByteArray& bytes) const;
    /// Until both answers are ready. On any thread.
    void wait() const;

private:
    struct Work;

    std::shared_ptr<Work> m_work;
};

} // namespace abissora
