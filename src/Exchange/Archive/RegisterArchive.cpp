// SPDX-License-Identifier: MIT
#include "RegisterArchive.h"

#include "ArchiveReader.h"
#include "ArchiveTerms.h"
#include "ArchiveWriting.h"
#include "OutputFile.h"
#include "StateFiles.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>

namespace abissora {

namespace {

constexpr int attempts = 5;

IoResult<QString> checkedTarget(const QString& chosen, const QString& root)
{
    const QFileInfo link(chosen);
    const QString path = link.isSymLink() ? link.symLinkTarget() : link.absoluteFilePath();
    const QFileInfo info(path);
    const auto fail = [&path](int error) {
        return archived::refused(OutputFile::failure(path, IoError::fromErrno(error)));
    };
    if (info.isDir())
        return fail(EISDIR);
    if (info.exists() && !info.isFile())
        return fail(EINVAL);
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    if (folder.isEmpty())
        return fail(ENOENT);
    const QString own = QFileInfo(root).canonicalFilePath();
    if (folder == own || folder.startsWith(own + u'/'))
        return archived::refused(u"La copia non può stare nella cartella del registro: va messa altrove."_s);
    return folder + u'/' + info.fileName();
}

} // namespace

RegisterArchive::RegisterArchive(ApplicationDirectories directories)
    : m_directories(std::move(directories))
{}

IoResult<ArchiveManifest> RegisterArchive::write(const QString& target, Instant now, const GoesOn& goesOn) const
{
    if (!QFileInfo(storedFiles(m_directories.preferences()).value(registerKey)).isFile())
        return archived::refused(u"In «%1» non c'è un registro."_s.arg(m_directories.root()));
    const auto path = checkedTarget(target, m_directories.root());
    if (!path)
        return tl::unexpected(path.error());
    const auto library = ArchiveLibrary::load();
    if (!library)
        return archived::refused(u"Per le copie serve la libreria libarchive: "_s + library.error());

    ArchiveWriting writing(m_directories, *library, now, goesOn);
    for (int i = 0; i < attempts; ++i) {
        auto written = writing.write(*path);
        if (written || !written.error().isChange)
            return written.map_error([](const ArchiveWriting::Trouble& trouble) { return trouble.error; });
    }
    return archived::refused(u"Il registro continua a cambiare mentre se ne fa la copia: va riprovato più tardi."_s);
}

} // namespace abissora
