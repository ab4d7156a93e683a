// SPDX-License-Identifier: MIT
#include "MaintenanceDocumentStore.h"

#include "AtomicFile.h"
#include "Literals.h"
#include "PdfDocument.h"
#include "RegularFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace abissora {

namespace {

bool isPlainName(const QString& name)
{
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1 && !name.contains(u'/') && !name.contains(u'\\') &&
           !name.contains(QChar(0));
}

/// What follows the last dot of the name, unless that dot begins it. A stored name must remain a plain name.
QString extensionOf(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString extension = dot > 0 ? name.mid(dot + 1) : QString();
    return isPlainName(extension) ? extension : u"pdf"_s;
}

class ScopedAccess
{
public:
    ScopedAccess(FilePanel& panel, const QString& path)
        : m_panel(panel)
        , m_path(path)
        , m_granted(panel.beginAccess(path))
    {}
    ~ScopedAccess()
    {
        if (m_granted)
            m_panel.endAccess(m_path);
    }
    ScopedAccess(const ScopedAccess&) = delete;
    ScopedAccess& operator=(const ScopedAccess&) = delete;

private:
    FilePanel& m_panel;
    const QString& m_path;
    bool m_granted;
};

} // namespace

MaintenanceDocumentStore::MaintenanceDocumentStore(QString folder, const DocumentArchive& archive, FilePanel& panel,
                                                   LongWork& work, IdGenerator& ids, Console& console)
    : m_folder(std::move(folder))
    , m_archive(archive)
    , m_panel(panel)
    , m_work(work)
    , m_ids(ids)
    , m_console(console)
{}

IoResult<QString> MaintenanceDocumentStore::documentsDirectory() const
{
    return AtomicFile::makeFolder(m_folder).map([this] { return m_folder; });
}

QCoro::Task<std::optional<QString>> MaintenanceDocumentStore::pickPDFAndStore(std::optional<QString> current,
                                                                              std::shared_ptr<WorkProgress> progress)
{
    const FilePanelRequest request{
        .title = u"Seleziona il documento PDF"_s,
        .message = u"Scegli il PDF (scontrino o certificato) da allegare"_s,
        .confirmLabel = u"Allega"_s,
        .contentTypes = {u"application/pdf"_s},
        .accepts = isPdf,
        .refusal = u"Non è un documento PDF."_s,
    };
    const std::weak_ptr<const bool> alive = m_alive;
    const std::optional<QString> source = m_panel.pickFile(request);
    // The panel runs the event loop.
    if (!source || alive.expired() || progress->isCancelled())
        co_return std::nullopt;
    const std::optional<QString> stored = co_await store(*source, progress);
    // What was stored was stored just now, by a store that is still there.
    if (stored && current && *current != *stored)
        deleteDocument(*current);
    co_return stored;
}

QCoro::Task<std::optional<QString>> MaintenanceDocumentStore::store(QString source,
                                                                    std::shared_ptr<WorkProgress> progress)
{
    const QString name = uuidText(m_ids.next()) + u'.' + extensionOf(source);
    const ScopedAccess access(m_panel, source);
    const auto folder = documentsDirectory();
    if (!folder) {
        report(folder.error());
        co_return std::nullopt;
    }
    const QString target = *folder + u'/' + name;
    const std::weak_ptr<const bool> alive = m_alive;
    const auto copied = co_await m_work.run(u"Copia del documento…"_s, copying(source, target), progress);
    if (alive.expired() || progress->isCancelled()) {
        if (copied) // it was too late to stop it
            QFile::remove(target);
        co_return std::nullopt;
    }
    if (!copied) {
        report(copied.error());
        co_return std::nullopt;
    }
    co_return name;
}

LongWork::Function MaintenanceDocumentStore::copying(const QString& source, const QString& target) const
{
    return [source, target, alive = std::weak_ptr<const bool>(m_alive)](WorkProgress& progress) {
        const auto goesOn = [&](qint64 copied, qint64 whole) {
            progress.setFraction(whole > 0 ? static_cast<double>(copied) / static_cast<double>(whole) : 0);
            return !progress.isCancelled() && !alive.expired();
        };
        return checkPdf(source).and_then([&] { return RegularFile::copy(source, target, goesOn); });
    };
}

void MaintenanceDocumentStore::report(const IoError& error)
{
    m_console.print(u"Errore salvataggio documento: "_s + error.reason);
}

std::optional<QString> MaintenanceDocumentStore::url(const QString& name) const
{
    const auto folder = documentsDirectory();
    if (!folder || !isPlainName(name))
        return std::nullopt;
    const QFileInfo file(*folder + u'/' + name);
    if (!file.isFile() || QFileInfo(file.canonicalFilePath()).path() != QDir(*folder).canonicalPath())
        return std::nullopt;
    return file.filePath();
}

void MaintenanceDocumentStore::deleteDocument(const QString& name) const
{
    if (url(name))
        m_archive.archive(name);
}

} // namespace abissora
