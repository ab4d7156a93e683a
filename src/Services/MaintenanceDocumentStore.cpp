// SPDX-License-Identifier: MIT
#include "MaintenanceDocumentStore.h"

#include "AtomicFile.h"
#include "Literals.h"
#include "PdfDocument.h"

#include <QDir>
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
                                                   IdGenerator& ids, Console& console)
    : m_folder(std::move(folder))
    , m_archive(archive)
    , m_panel(panel)
    , m_ids(ids)
    , m_console(console)
{}

IoResult<QString> MaintenanceDocumentStore::documentsDirectory() const
{
    return AtomicFile::makeFolder(m_folder).map([this] { return m_folder; });
}

std::optional<QString> MaintenanceDocumentStore::pickPDFAndStore(const std::optional<QString>& current)
{
    const auto source = m_panel.pickFile({
        .title = u"Seleziona il documento PDF"_s,
        .message = u"Scegli il PDF (scontrino o certificato) da allegare"_s,
        .confirmLabel = u"Allega"_s,
        .contentTypes = {u"application/pdf"_s},
        .accepts = isPdf,
        .refusal = u"Non è un documento PDF."_s,
    });
    if (!source)
        return std::nullopt;
    auto stored = store(*source);
    if (stored && current && *current != *stored)
        deleteDocument(*current);
    return stored;
}

std::optional<QString> MaintenanceDocumentStore::store(const QString& source)
{
    const QString name = uuidText(m_ids.next()) + u'.' + extensionOf(source);
    const auto copied = copyInto(name, source);
    if (!copied) {
        m_console.print(u"Errore salvataggio documento: "_s + copied.error().reason);
        return std::nullopt;
    }
    return name;
}

IoResult<void> MaintenanceDocumentStore::copyInto(const QString& name, const QString& source)
{
    const ScopedAccess access(m_panel, source);
    return documentsDirectory().and_then(
        [&](const QString& folder) { return AtomicFile::copy(source, folder + u'/' + name); });
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
