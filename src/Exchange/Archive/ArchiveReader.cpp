// SPDX-License-Identifier: MIT
#include "ArchiveReader.h"

#include "ArchiveTerms.h"
#include "Literals.h"
#include "ZipReader.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QHash>
#include <cerrno>

namespace abissora {

namespace {

constexpr QByteArrayView zipBeginning("PK\3\4");

/// So much more than its own size may a file hold: JSON becomes a tenth, texts that repeat themselves much less.
constexpr qint64 mostRatio = 200;
constexpr qint64 alwaysAllowed = qint64{64} * 1024 * 1024;

tl::unexpected<IoError> damaged()
{
    return archived::refused(u"La copia è incompleta o danneggiata."_s);
}

tl::unexpected<IoError> noCopy()
{
    return archived::refused(u"Questo file non è una copia di un registro."_s);
}

/// One reading of one file.
class Reading
{
public:
    Reading(ZipReader& zip, qint64 zipSize, ArchiveReader::GoesOn goesOn, ArchiveReader::Target* target)
        : m_zip(zip)
        , m_zipSize(zipSize)
        , m_goesOn(std::move(goesOn))
        , m_target(target)
    {}

    IoResult<ArchiveManifest> run()
    {
        return readManifest().and_then([this] { return readFiles(); }).map([this] { return std::move(m_manifest); });
    }

private:
    IoResult<void> readManifest()
    {
        const auto first = m_zip.next();
        if (!first)
            return damaged();
        if (!*first || (*first)->name != ArchiveManifest::entryName || !(*first)->isPlainFile)
            return archived::refused(u"Questo file zip non è una copia di un registro."_s);
        if ((*first)->isEncrypted)
            return archived::refused(u"La copia contiene un file cifrato."_s);
        QByteArray json;
        const auto read = readEntry(ArchiveManifest::mostBytes, [&json](const char* bytes, qsizetype size) {
            json.append(bytes, size);
            return IoResult<void>();
        });
        if (!read)
            return tl::unexpected(read.error());
        auto manifest = ArchiveManifest::fromJson(json);
        if (!manifest)
            return tl::unexpected(manifest.error());
        m_manifest = *std::move(manifest);
        m_whole = m_manifest.totalSize();
        if (m_whole > alwaysAllowed && (m_whole - alwaysAllowed) / mostRatio > m_zipSize)
            return archived::refused(u"La copia annuncia più dati di quanti ne può contenere."_s);
        return m_target != nullptr ? m_target->open(m_manifest) : IoResult<void>();
    }

    IoResult<void> readFiles()
    {
        QHash<QByteArray, const ArchivedFile*> awaited;
        for (const ArchivedFile& file : std::as_const(m_manifest.files))
            awaited.insert(file.name.toUtf8(), &file);
        while (true) {
            const auto entry = m_zip.next();
            if (!entry)
                return damaged();
            if (!*entry)
                break;
            if (!(*entry)->isPlainFile)
                return archived::refused(u"La copia contiene qualcosa che non è un file, come un collegamento."_s);
            if ((*entry)->isEncrypted)
                return archived::refused(u"La copia contiene un file cifrato."_s);
            const ArchivedFile* const file = awaited.take((*entry)->name);
            if (file == nullptr)
                return archived::refused(
                    u"La copia contiene un file che il suo elenco non nomina, o due volte lo stesso."_s);
            if (auto read = readFile(*file); !read)
                return read;
        }
        if (!awaited.isEmpty())
            return archived::refused(u"Nella copia manca «%1»."_s.arg((*awaited.cbegin())->name));
        return {};
    }

    IoResult<void> readFile(const ArchivedFile& file)
    {
        QCryptographicHash sum(QCryptographicHash::Sha256);
        IoResult<void> taken = m_target != nullptr ? m_target->begin(file) : IoResult<void>();
        const auto read = taken.and_then([&] {
            return readEntry(file.size, [&](const char* bytes, qsizetype size) {
                sum.addData(QByteArrayView(bytes, size));
                m_done += size;
                return m_target != nullptr ? m_target->write(bytes, size) : IoResult<void>();
            });
        });
        if (!read)
            return tl::unexpected(read.error());
        if (*read != file.size || sum.result() != file.sum)
            return archived::refused(u"«%1» nella copia è danneggiato."_s.arg(file.name));
        return m_target != nullptr ? m_target->end() : IoResult<void>();
    }

    /// How many bytes the entry has; an error as soon as they are more than `most`, whatever it would hold yet.
    template <typename Take>
    IoResult<qint64> readEntry(qint64 most, Take take)
    {
        QByteArray block(archived::blockSize, Qt::Uninitialized);
        qint64 size = 0;
        while (m_goesOn(m_done, m_whole)) {
            const auto count = m_zip.read(block);
            if (!count)
                return damaged();
            if (*count == 0)
                return size;
            size += *count;
            if (size > most)
                return archived::refused(u"La copia contiene un file più grande di quanto annuncia."_s);
            if (auto taken = take(block.constData(), *count); !taken)
                return tl::unexpected(taken.error());
        }
        return tl::unexpected(IoError::fromErrno(ECANCELED));
    }

    ZipReader& m_zip;
    qint64 m_zipSize;
    ArchiveReader::GoesOn m_goesOn;
    ArchiveReader::Target* m_target;
    ArchiveManifest m_manifest;
    qint64 m_done = 0;
    qint64 m_whole = 0;
};

IoResult<ArchiveLibrary> loadLibrary()
{
    return ArchiveLibrary::load().map_error(
        [](const QString& reason) { return IoError{u"Per le copie serve la libreria libarchive: "_s + reason}; });
}

} // namespace

IoResult<ArchiveManifest> ArchiveReader::read(const QString& path, const GoesOn& goesOn, Target* target)
{
    const auto beginning = RegularFile::beginning(path, zipBeginning.size());
    if (!beginning)
        return archived::refused(u"Non è stato possibile leggere «%1»: %2"_s.arg(path, beginning.error().reason));
    if (*beginning != zipBeginning)
        return noCopy();
    const auto library = loadLibrary();
    if (!library)
        return tl::unexpected(library.error());
    ZipReader zip(*library);
    if (!zip.openFile(path))
        return damaged();
    return Reading(zip, QFileInfo(path).size(), goesOn, target).run();
}

IoResult<ArchiveManifest> ArchiveReader::readBytes(const QByteArray& bytes)
{
    if (!bytes.startsWith(zipBeginning))
        return noCopy();
    const auto library = loadLibrary();
    if (!library)
        return tl::unexpected(library.error());
    ZipReader zip(*library);
    if (!zip.openBytes(bytes))
        return damaged();
    return Reading(
               zip, bytes.size(), [](qint64, qint64) { return true; }, nullptr)
        .run();
}

bool beginsLikeZip(const QString& path)
{
    const auto beginning = RegularFile::beginning(path, zipBeginning.size());
    return beginning && *beginning == zipBeginning;
}

} // namespace abissora
