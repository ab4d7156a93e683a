// SPDX-License-Identifier: MIT
#include "RegisterAhead.h"

#include "AtomicFile.h"
#include "FileIdentity.h"
#include "StateFiles.h"

#include <future>
#include <system_error>

namespace abissora {

struct RegisterAhead::Work
{
    struct Outcome
    {
        std::optional<FileIdentity> file;
        QByteArray bytes;
        tl::expected<Decoded<Equipment>, JsonError> decoded;
    };

    /// Nothing comes of what could not be read: whoever asks for it learns the reason then.
    void run()
    {
        // Before the bytes: what changes while they are read then counts as changed.
        const auto file = FileIdentity::of(path);
        auto bytes = AtomicFile::read(path);
        if (!file || !bytes)
            return;
        auto decoded = readEquipment(*bytes);
        outcome = Outcome{file, *std::move(bytes), std::move(decoded)};
    }

    QString path;
    std::optional<Outcome> outcome;
    std::shared_future<void> end; ///< the last member: it goes first, and waits for what uses the others
};

RegisterAhead::RegisterAhead(const QString& path)
{
    const auto work = std::make_shared<Work>();
    work->path = path;
    try {
        work->end = std::async(std::launch::async, &Work::run, work.get());
    } catch (const std::system_error&) {
        return; // without a thread nothing is ahead
    }
    m_work = work;
}

RegisterAhead::RegisterAhead(const ApplicationDirectories& directories)
    : RegisterAhead(directories.preferences() + u'/' + registerKey + ".json"_L1)
{}

void RegisterAhead::wait() const
{
    if (m_work)
        m_work->end.wait();
}

IoResult<QByteArray> RegisterAhead::read(const QString& path) const
{
    if (m_work && path == m_work->path) {
        wait();
        if (const auto& outcome = m_work->outcome; outcome && outcome->file == FileIdentity::of(path))
            return outcome->bytes;
    }
    return AtomicFile::read(path);
}

tl::expected<Decoded<Equipment>, JsonError> RegisterAhead::decoded(const QByteArray& bytes) const
{
    if (m_work) {
        wait();
        if (auto outcome = std::exchange(m_work->outcome, {}); outcome && outcome->bytes.isSharedWith(bytes))
            return std::move(outcome->decoded);
    }
    return readEquipment(bytes);
}

} // namespace abissora
