// SPDX-License-Identifier: MIT
#include "ArchiveWriting.h"

#include "ArchiveReader.h"
#include "ArchiveTerms.h"
#include "AtomicFile.h"
#include "OutputFile.h"
#include "PackageInformation.h"
#include "StateContent.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <filesystem>

namespace abissora {

namespace {

tl::unexpected<ArchiveWriting::Trouble> failed(const IoError& error)
{
    return tl::unexpected(ArchiveWriting::Trouble{error});
}

tl::unexpected<ArchiveWriting::Trouble> hasChanged()
{
    return tl::unexpected(ArchiveWriting::Trouble{{}, true});
}

tl::unexpected<ArchiveWriting::Trouble> unreadable(const QString& path, const QString& reason)
{
    return failed({u"Non è stato possibile leggere «%1»: %2"_s.arg(path, reason)});
}

IoResult<void> replace(const QString& source, const QString& target)
{
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(source).toStdString(), QFile::encodeName(target).toStdString(), error);
    if (error)
        return tl::unexpected(IoError::fromErrno(error.value()));
    return {};
}

} // namespace

ArchiveWriting::ArchiveWriting(const ApplicationDirectories& directories, const ArchiveLibrary& library, Instant now,
                               RegisterArchive::GoesOn goesOn)
    : m_directories(directories)
    , m_library(library)
    , m_now(now)
    , m_goesOn(std::move(goesOn))
{}

ArchiveWriting::Result<ArchiveManifest> ArchiveWriting::write(const QString& target)
{
    m_target = target;
    if (QFileInfo::exists(m_directories.backups() + u"/restoring"_s))
        return failed({u"Un ripristino è rimasto a metà: va prima aperta Abissora, che lo completa."_s});
    const auto files = inventory(m_directories);
    if (!files)
        return failed(files.error());
    m_done = 0;
    m_whole = 0;
    for (const InventoryFile& file : *files)
        m_whole += 3 * file.identity.size;
    auto manifest = makeManifest(*files);
    if (!manifest)
        return manifest;

    SyncedFile file;
    const QString folder = QFileInfo(target).path();
    const auto created = file.create(folder + u'/' + AtomicFile::temporaryName(), SyncedFile::Readers::Usual);
    if (!created)
        return failed({OutputFile::failure(target, created.error())});
    const QString temporary = file.path();
    const auto placed = pack(*manifest, *files, file).and_then([&] { return confirm(*manifest, *files, temporary); });
    if (!placed)
        return tl::unexpected(placed.error());
    if (QFileInfo::exists(target))
        QFile::setPermissions(temporary, QFile::permissions(target));
    const auto named = replace(temporary, target);
    if (!named)
        return failed({OutputFile::failure(target, named.error())});
    file.keep();
    if (const auto synced = AtomicFile::syncFolder(folder); !synced)
        return failed({OutputFile::failure(target, synced.error())});
    return manifest;
}

ArchiveWriting::Result<ArchiveManifest> ArchiveWriting::makeManifest(const QList<InventoryFile>& files)
{
    const StateContent content = readPresentContent(m_directories);
    ArchiveManifest manifest;
    manifest.version = BuiltInPackageInformation().value(u"CFBundleShortVersionString"_s).toString();
    manifest.created = Instant(std::chrono::floor<std::chrono::seconds>(m_now));
    manifest.counts = {content.equipment.records.size(), content.maintenanceCount(), content.types.records.size(), 0};
    for (const InventoryFile& file : files) {
        const auto sum = sumOf(file);
        if (!sum)
            return tl::unexpected(sum.error());
        manifest.files.append({file.name, sum->size, sum->bytes});
        if (file.name.startsWith(archived::documents))
            ++manifest.counts.documents;
    }
    return manifest;
}

ArchiveWriting::Result<ArchiveWriting::Sum> ArchiveWriting::sumOf(const InventoryFile& file)
{
    const auto& [device, inode, size, modified] = file.identity;
    const Key key(device, inode, size, modified);
    if (const auto known = m_sums.find(key); known != m_sums.end() && inode != 0) {
        m_done += size;
        return known->second;
    }
    QCryptographicHash sum(QCryptographicHash::Sha256);
    const auto read = readAll(file.path, [&sum](const QByteArray& block) {
        sum.addData(block);
        return IoResult<void>();
    });
    if (!read)
        return tl::unexpected(read.error());
    if (*read != size || FileIdentity::of(file.path) != file.identity)
        return hasChanged();
    return m_sums[key] = {*read, sum.result()};
}

ArchiveWriting::Result<void> ArchiveWriting::pack(const ArchiveManifest& manifest, const QList<InventoryFile>& files,
                                                  SyncedFile& file)
{
    const auto asTrouble = [this](const IoError& error) {
        return Trouble{IoError{OutputFile::failure(m_target, error)}};
    };
    const QByteArray json = manifest.toJson();
    if (json.size() > ArchiveManifest::mostBytes)
        return failed({u"Il registro ha troppi file per una copia."_s});
    ZipWriter zip(m_library, file);
    Result<void> packed =
        zip.begin(QString::fromLatin1(ArchiveManifest::entryName), json.size(), m_now, ZipWriter::Packing::Deflated)
            .and_then([&] { return zip.write(json); })
            .map_error(asTrouble);
    for (qsizetype i = 0; packed && i < files.size(); ++i)
        packed = packFile(zip, manifest.files.at(i), files.at(i));
    return packed.and_then([&] { return zip.finish().and_then([&file] { return file.sync(); }).map_error(asTrouble); });
}

ArchiveWriting::Result<void> ArchiveWriting::packFile(ZipWriter& zip, const ArchivedFile& file,
                                                      const InventoryFile& source)
{
    const auto asTrouble = [this](const IoError& error) {
        return Trouble{IoError{OutputFile::failure(m_target, error)}};
    };
    constexpr qint64 nanoseconds = 1'000'000;
    const Instant modified{std::chrono::milliseconds(source.identity.modified / nanoseconds)};
    const auto packing = source.isDocument ? ZipWriter::Packing::Stored : ZipWriter::Packing::Deflated;
    if (auto begun = zip.begin(file.name, file.size, modified, packing); !begun)
        return begun.map_error(asTrouble);
    QCryptographicHash sum(QCryptographicHash::Sha256);
    qint64 room = file.size;
    const auto read = readAll(source.path, [&](const QByteArray& block) -> IoResult<void> {
        sum.addData(block);
        room -= block.size();
        if (room < 0)
            return {}; // the sum will tell
        return zip.write(block).map_error(
            [this](const IoError& error) { return IoError{OutputFile::failure(m_target, error)}; });
    });
    if (!read)
        return tl::unexpected(read.error());
    return sum.result() == file.sum ? Result<void>() : hasChanged();
}

ArchiveWriting::Result<void> ArchiveWriting::confirm(const ArchiveManifest& manifest, const QList<InventoryFile>& files,
                                                     const QString& written)
{
    if (!isSteady(files))
        return hasChanged();
    const qint64 before = m_done;
    const auto read = ArchiveReader::read(
        written, [&](qint64 done, qint64) { return m_goesOn(std::min(before + done, m_whole), m_whole); });
    if (!read)
        return failed(read.error());
    if (*read != manifest)
        return failed({OutputFile::failure(m_target, IoError::fromErrno(EIO))});
    return m_goesOn(m_whole, m_whole) ? Result<void>() : failed(IoError::fromErrno(ECANCELED));
}

template <typename Take>
ArchiveWriting::Result<qint64> ArchiveWriting::readAll(const QString& path, Take take)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        if (!QFileInfo::exists(path))
            return hasChanged(); // gone since it was listed
        return unreadable(path, file.errorString());
    }
    QByteArray block(archived::blockSize, Qt::Uninitialized);
    qint64 size = 0;
    while (m_goesOn(std::min(m_done, m_whole), m_whole)) {
        const qint64 count = file.read(block.data(), archived::blockSize);
        if (count < 0)
            return unreadable(path, file.errorString());
        if (count == 0)
            return size;
        size += count;
        m_done += count;
        if (auto taken = take(QByteArray::fromRawData(block.constData(), count)); !taken)
            return failed(taken.error());
    }
    return failed(IoError::fromErrno(ECANCELED));
}

bool ArchiveWriting::isSteady(const QList<InventoryFile>& files) const
{
    const QList<InventoryFile> now = preferencesInventory(m_directories);
    return !QFileInfo::exists(m_directories.backups() + u"/restoring"_s) && files.size() >= now.size() &&
           files.first(now.size()) == now &&
           (files.size() == now.size() || !files.at(now.size()).name.startsWith(archived::preferences));
}

} // namespace abissora
