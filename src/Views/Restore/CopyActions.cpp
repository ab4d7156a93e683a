// SPDX-License-Identifier: MIT
#include "CopyActions.h"

#include "Alert.h"
#include "Literals.h"
#include "RegisterArchive.h"
#include "StateFiles.h"

#include <QFileInfo>
#include <cerrno>

namespace abissora {

namespace {

const QString copyTitle = u"Copia del registro"_s;

ArchiveReader::GoesOn telling(WorkProgress& progress)
{
    return [&progress](qint64 done, qint64 whole) {
        progress.setFraction(whole > 0 ? static_cast<double>(done) / static_cast<double>(whole) : 0);
        return !progress.isCancelled();
    };
}

// Functions of their own: what a coroutine waits for shall capture nothing of its frame.

LongWork::Function writing(const ApplicationDirectories& directories, const QString& path, Instant now,
                           const std::shared_ptr<ArchiveManifest>& manifest)
{
    return [=](WorkProgress& progress) -> IoResult<void> {
        return RegisterArchive(directories)
            .write(path, now, telling(progress))
            .map([&](const ArchiveManifest& written) { *manifest = written; });
    };
}

LongWork::Function looking(const QString& path, const std::shared_ptr<QTemporaryDir>& folder,
                           const std::shared_ptr<ArchiveManifest>& manifest)
{
    return [=](WorkProgress& progress) -> IoResult<void> {
        if (!folder->isValid())
            return tl::unexpected(IoError{folder->errorString()});
        return UnpackedArchive::unpackPreferences(path, folder->path(), telling(progress))
            .map([&](const ArchiveManifest& read) { *manifest = read; });
    };
}

using Unpacked = std::shared_ptr<UnpackedArchive>;

LongWork::Function unpacking(const QString& path, const ApplicationDirectories& directories,
                             const std::shared_ptr<Unpacked>& unpacked, const std::shared_ptr<RestorableFiles>& files)
{
    return [=](WorkProgress& progress) -> IoResult<void> {
        return UnpackedArchive::unpack(path, directories, telling(progress))
            .and_then([&](const Unpacked& done) {
                *unpacked = done;
                return ArchiveRestoration::read(*done);
            })
            .map([&](const RestorableFiles& read) { *files = read; });
    };
}

/// The names of documents as records know them.
QSet<QString> documentsIn(const ArchiveManifest& manifest)
{
    QSet<QString> names;
    for (const ArchivedFile& file : manifest.files) {
        if (file.name.startsWith(archived::documents))
            names.insert(file.name.mid(archived::documents.size()));
    }
    return names;
}

} // namespace

CopyActions::CopyActions(const Tools& tools, QObject* parent)
    : QObject(parent)
    , m_tools(tools)
{}

void CopyActions::createCopy(QWidget* over)
{
    const QPointer<QWidget> place(over);
    const QPointer<CopyActions> alive(this);
    const QDate today = m_tools.almanac.calendar.local(m_tools.almanac.now()).date();
    const auto target = m_tools.panel.pickTarget({
        .title = u"Crea una copia"_s,
        .message = u"Scegli dove mettere la copia di tutto il registro, documenti compresi"_s,
        .confirmLabel = u"Crea"_s,
        .suggestedName = u"abissora-"_s + today.toString(Qt::ISODate),
        .formats = {{copyTitle, u"zip"_s}},
    });
    // The panel runs the event loop.
    if (target && alive && place)
        writeCopy(target->path, place);
}

QCoro::Task<> CopyActions::writeCopy(QString path, QPointer<QWidget> over)
{
    m_tools.settle();
    const auto manifest = std::make_shared<ArchiveManifest>();
    const auto progress = std::make_shared<WorkProgress>();
    const auto written = co_await m_tools.work.run(
        u"Copia del registro…"_s, writing(m_tools.directories, path, m_tools.almanac.now(), manifest), progress);
    if (!over || (!written && progress->isCancelled()))
        co_return;
    Alert::notice(over, copyTitle,
                  written ? u"La copia «%1» contiene: %2."_s.arg(QFileInfo(path).fileName(), manifest->counts.text())
                          : written.error().reason);
}

std::optional<QString> CopyActions::pickCopy()
{
    return m_tools.panel.pickFile({
        .title = u"Ripristina da un file"_s,
        .message = u"Scegli la copia di un registro"_s,
        .confirmLabel = u"Apri"_s,
        .contentTypes = {u"application/zip"_s},
        .accepts = beginsLikeZip,
        .refusal = u"Questo file non è una copia di un registro."_s,
    });
}

QCoro::Task<IoResult<OpenedCopy>> CopyActions::open(QString path, std::shared_ptr<WorkProgress> progress)
{
    const auto folder = std::make_shared<QTemporaryDir>();
    const auto manifest = std::make_shared<ArchiveManifest>();
    const auto read = co_await m_tools.work.run(u"Controllo della copia…"_s, looking(path, folder, manifest), progress);
    if (!read)
        co_return tl::unexpected(read.error());
    const QString preferences = folder->filePath(u"preferences"_s);
    co_return OpenedCopy{
        path,
        folder,
        {QFileInfo(path).fileName(), preferences, manifest->created, Occasion::change, storedFiles(preferences)},
        documentsIn(*manifest)};
}

QCoro::Task<IoResult<void>> CopyActions::restore(QString path, std::shared_ptr<WorkProgress> progress)
{
    const QPointer<CopyActions> alive(this);
    const auto unpacked = std::make_shared<Unpacked>();
    const auto files = std::make_shared<RestorableFiles>();
    const auto done = co_await m_tools.work.run(u"Ripristino della copia…"_s,
                                                unpacking(path, m_tools.directories, unpacked, files), progress);
    if (!done)
        co_return tl::unexpected(done.error());
    if (!alive || progress->isCancelled())
        co_return tl::unexpected(IoError::fromErrno(ECANCELED));
    const auto restore = m_tools.restore; // what runs shall not go away with this
    co_return restore(**unpacked, *files);
}

} // namespace abissora
