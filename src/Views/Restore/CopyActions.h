// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "ApplicationDirectories.h"
#include "ArchiveRestoration.h"
#include "FilePanel.h"
#include "LongWork.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QWidget>

namespace abissora {

/// A copy of a register that was read to its end, with its preferences written out for a look.
struct OpenedCopy
{
    QString path;
    std::shared_ptr<QTemporaryDir> folder;
    EarlierState state;      ///< in the folder
    QSet<QString> documents; ///< that lie in the copy
};

/// "Crea una copia…", from the question for a name to the word of how it ended, and what "Da un file…" does.
class CopyActions : public QObject
{
    Q_OBJECT

public:
    struct Tools
    {
        FilePanel& panel;
        LongWork& work;
        ApplicationDirectories directories;
        Almanac almanac;
        /// Stores what is pending.
        std::function<void()> settle;
        /// Puts the copy, of which this was read, in the place of the register; the error is a sentence. May end
        /// everything that is shown.
        std::function<IoResult<void>(const UnpackedArchive&, const RestorableFiles&)> restore;
    };

    /// What the tools refer to must outlive it.
    explicit CopyActions(const Tools& tools, QObject* parent = nullptr);

    /// Everything is shown over the window of `over`.
    void createCopy(QWidget* over);

    /// Asks for a copy. Nothing when the person did not choose one.
    [[nodiscard]] std::optional<QString> pickCopy();
    /// Reads a copy and compares its sums. Errors are sentences, "Operation canceled" apart.
    [[nodiscard]] QCoro::Task<IoResult<OpenedCopy>> open(QString path, std::shared_ptr<WorkProgress> progress);
    /// Reads it once more and restores it.
    [[nodiscard]] QCoro::Task<IoResult<void>> restore(QString path, std::shared_ptr<WorkProgress> progress);

private:
    QCoro::Task<> writeCopy(QString path, QPointer<QWidget> over);

    Tools m_tools;
};

} // namespace abissora
