// SPDX-License-Identifier: MIT
#include "AtomicFile.h"

#include "Literals.h"

#include <QDir>
#include <QRandomGenerator>

namespace abissora::AtomicFile {

QString temporaryName()
{
    const quint64 digits = QRandomGenerator::global()->generate64();
    return u".abissora-%1.tmp"_s.arg(digits, 16, 16, '0'_L1);
}

void removeLeftovers(const QString& folder)
{
    QDir dir(folder);
    const QFileInfoList leftovers = dir.entryInfoList({u".abissora-????????????????.tmp"_s},
                                                      QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System);
    for (const QFileInfo& leftover : leftovers) {
        if (leftover.isDir() && !leftover.isSymLink())
            QDir(leftover.filePath()).removeRecursively();
        else
            dir.remove(leftover.fileName());
    }
}

} // namespace abissora::AtomicFile
