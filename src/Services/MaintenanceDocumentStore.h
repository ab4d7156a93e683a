// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"
#include "DocumentArchive.h"
#include "FilePanel.h"
#include "IdGenerator.h"
#include "IoError.h"
#include "LongWork.h"

#include <optional>

namespace abissora {

/// The PDF files attached to maintenance records, each under a fresh name in one folder. Records keep the bare name.
/// Keeps no state: every operation works on the file system. Copies that are under way when it goes away are cancelled.
class MaintenanceDocumentStore
{
public:
    /// `folder` need not exist. Everything passed by reference must outlive the store.
    MaintenanceDocumentStore(QString folder, const DocumentArchive& archive, FilePanel& panel, LongWork& work,
                             IdGenerator& ids, Console& console);
    Q_DISABLE_COPY_MOVE(MaintenanceDocumentStore)

    /// The documents folder, created when missing.
    [[nodiscard]] IoResult<QString> documentsDirectory() const;

    /// Lets the person pick a PDF and stores a copy. Nothing when the panel was cancelled or the copy failed; the file
    /// called `current` then stays, otherwise it is deleted.
    [[nodiscard]] QCoro::Task<std::optional<QString>>
    pickPDFAndStore(std::optional<QString> current,
                    std::shared_ptr<WorkProgress> progress = std::make_shared<WorkProgress>());

    /// Copies the PDF under a fresh name, keeping its extension ("pdf" when it has none), and gives that name. Nothing
    /// when `progress` was cancelled before this answers: then there is no copy either.
    [[nodiscard]] QCoro::Task<std::optional<QString>>
    store(QString source, std::shared_ptr<WorkProgress> progress = std::make_shared<WorkProgress>());

    /// The path of a stored file. Nothing when there is none of that name, and for anything that is not a plain name of
    /// a regular file inside the folder, links leading out of it included.
    [[nodiscard]] std::optional<QString> url(const QString& name) const;

    /// Moves the file to the archive, from where it can come back. Does nothing when url finds no such file; a failure
    /// is ignored.
    void deleteDocument(const QString& name) const;
    /// Makes the folder agree with a register that was read, whose records name these files.
    void settle(const QSet<QString>& named) const { m_archive.settle(named); }

private:
    void report(const IoError& error);
    [[nodiscard]] LongWork::Function copying(const QString& source, const QString& target) const;

    QString m_folder;
    const DocumentArchive& m_archive;
    FilePanel& m_panel;
    LongWork& m_work;
    IdGenerator& m_ids;
    Console& m_console;
    std::shared_ptr<const bool> m_alive = std::make_shared<const bool>(true); ///< dies with the store
};

} // namespace abissora
