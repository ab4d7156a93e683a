// SPDX-License-Identifier: MIT
#include "UnpackedArchive.h"

#include "AtomicFile.h"
#include "OutputFile.h"
#include "SyncedFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace abissora {

namespace {

bool holds(const QString& path, const ArchivedFile& file)
{
    QFile present(path);
    const QFileInfo info(path);
    if (!info.isFile() || info.size() != file.size || !present.open(QIODevice::ReadOnly))
        return false;
    QCryptographicHash sum(QCryptographicHash::Sha256);
    return sum.addData(&present) && sum.result() == file.sum;
}

} // namespace

/// Writes the files of a copy that are wanted, each on the disk before the next one begins.
class UnpackedArchive::Writing : public ArchiveReader::Target
{
public:
    explicit Writing(QString folder)
        : m_folder(std::move(folder))
    {}

    IoResult<void> open(const ArchiveManifest& manifest) override
    {
        const QStorageInfo storage(m_folder);
        if (storage.isValid() && storage.bytesAvailable() < manifest.totalSize())
            return tl::unexpected(IoError{u"Lo spazio libero non basta per questa copia."_s});
        return {};
    }

    IoResult<void> begin(const ArchivedFile& file) override
    {
        m_file.reset();
        if (!wants(file))
            return {};
        const QString path = m_folder + u'/' + file.name;
        m_file.emplace();
        return told(path,
                    AtomicFile::makeFolder(QFileInfo(path).path()).and_then([&] { return m_file->create(path); }));
    }

    IoResult<void> write(const char* bytes, qsizetype size) override
    {
        return m_file ? told(m_file->path(), m_file->write(bytes, size)) : IoResult<void>();
    }

    IoResult<void> end() override
    {
        if (!m_file)
            return {};
        auto synced = told(m_file->path(), m_file->sync());
        if (synced)
            m_file->keep();
        return synced;
    }

protected:
    [[nodiscard]] virtual bool wants(const ArchivedFile& file) = 0;

private:
    static IoResult<void> told(const QString& path, const IoResult<void>& done)
    {
        return done.map_error([&path](const IoError& error) { return IoError{OutputFile::failure(path, error)}; });
    }

    QString m_folder;
    std::optional<SyncedFile> m_file;
};

class UnpackedArchive::PreferencesOnly final : public Writing
{
public:
    using Writing::Writing;

private:
    bool wants(const ArchivedFile& file) override { return file.name.startsWith(archived::preferences); }
};

class UnpackedArchive::Unpacking final : public Writing
{
public:
    Unpacking(UnpackedArchive& unpacked, const ApplicationDirectories& directories)
        : Writing(unpacked.m_folder)
        , m_unpacked(unpacked)
        , m_directories(directories)
    {}

private:
    bool wants(const ArchivedFile& file) override
    {
        if (holds(m_directories.root() + u'/' + file.name, file))
            return file.name.startsWith(archived::preferences); // of which nothing may be missing
        if (file.name.startsWith(archived::documents))
            m_unpacked.m_newDocuments.append(file.name.mid(archived::documents.size()));
        return true;
    }

    UnpackedArchive& m_unpacked;
    const ApplicationDirectories& m_directories;
};

UnpackedArchive::UnpackedArchive(QString folder)
    : m_folder(std::move(folder))
{}

UnpackedArchive::~UnpackedArchive()
{
    QDir(m_folder).removeRecursively();
}

IoResult<std::shared_ptr<UnpackedArchive>> UnpackedArchive::unpack(const QString& path,
                                                                   const ApplicationDirectories& directories,
                                                                   const ArchiveReader::GoesOn& goesOn)
{
    std::shared_ptr<UnpackedArchive> unpacked(
        new UnpackedArchive(directories.backups() + u'/' + AtomicFile::temporaryName()));
    if (const auto made = AtomicFile::makeFolder(unpacked->m_folder); !made)
        return tl::unexpected(IoError{OutputFile::failure(directories.backups(), made.error())});
    Unpacking unpacking(*unpacked, directories);
    return ArchiveReader::read(path, goesOn, &unpacking).map([&](const ArchiveManifest& manifest) {
        unpacked->m_manifest = manifest;
        return unpacked;
    });
}

IoResult<ArchiveManifest> UnpackedArchive::unpackPreferences(const QString& path, const QString& folder,
                                                             const ArchiveReader::GoesOn& goesOn)
{
    PreferencesOnly preferences(folder);
    return ArchiveReader::read(path, goesOn, &preferences);
}

} // namespace abissora
